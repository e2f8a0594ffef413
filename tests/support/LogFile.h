#pragma once

#include "support/Tree.h"

#include <sstream>
#include <vector>

using Lines = std::vector<std::string>;

// The entries of the installer's log file as "level message", whatever their time and process.
inline Lines readLog()
{
    Lines entries;
    std::istringstream lines(readFile("/tmp/quillbarninstaller.log"));
    for (std::string line; std::getline(lines, line);)
        entries.push_back(
            line.substr(std::min(line.size(), line.find(' ', sizeof "yyyy/mm/dd-hh:mm:ss") + 1)));
    return entries;
}

// Empties the file, which a logger may hold open.
inline void clearLog()
{
    writeFile("/tmp/quillbarninstaller.log");
}
