#pragma once

#include <string>
#include <vector>

// The entries of the installer's log file as "level message", whatever their time and process. An
// entry that doesn't have the log's form stands as it is, with a "?" before it.
std::vector<std::string> readLog();

// Empties the file, which a logger may hold open.
void clearLog();
