#include "Fuzz.h"
#include "Logger.h"

#include <regex>

// What reads like an escape is taken for one, in a message too.
static std::string toldBack(const std::string& text)
{
    static const std::regex lineFeed(R"(\\n)"), beforeLineFeed(R"(\\r\n)");
    return std::regex_replace(std::regex_replace(text, lineFeed, "\n"), beforeLineFeed, "\r\n");
}

// A message is one line of the log, from which it can be told.
void tryOne(FuzzedDataProvider& draw)
{
    static Logger logger("/tmp/log");
    static const std::regex form(R"(\d{4}/\d\d/\d\d-\d\d:\d\d:\d\d \d+ [inwedt] ([^\n]*)\n)");
    const auto level = Logger::LogLevel(draw.ConsumeIntegralInRange(0, 5));
    const std::string message = drawText(draw);
    writeFile("/tmp/log");
    logger.log(message, level);
    const std::string entry = readFile("/tmp/log");
    std::smatch match;
    assert(std::regex_match(entry, match, form));
    assert(toldBack(match[1]) == toldBack(message));
}
