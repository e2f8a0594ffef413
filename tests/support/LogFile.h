#pragma once

#include "support/Tree.h"

#include <fstream>
#include <vector>

using Lines = std::vector<std::string>;

// The entries of the installer's log file as "level message", whatever their time and process.
inline Lines readLog()
{
    Lines entries;
    std::ifstream file("/tmp/quillbarninstaller.log");
    for (std::string time, id, entry; file >> time >> id && std::getline(file.ignore(), entry);)
        entries.push_back(entry);
    return entries;
}

// Empties the file, which a logger may hold open.
inline void clearLog() { writeFile("/tmp/quillbarninstaller.log"); }
