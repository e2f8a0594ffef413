#include "support/LogFile.h"

#include "support/Tree.h"

#include <regex>
#include <sstream>

namespace {

constexpr const char* logPath = "/tmp/quillbarninstaller.log";

}

std::vector<std::string> readLog()
{
    static const std::regex form(R"(\d{4}/\d\d/\d\d-\d\d:\d\d:\d\d \d+ ([iwnedt] .*))");
    std::vector<std::string> entries;
    std::istringstream lines(readFile(logPath));
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        entries.push_back(std::regex_match(line, match, form) ? match[1].str() : "?" + line);
    }
    return entries;
}

void clearLog()
{
    writeFile(logPath);
}
