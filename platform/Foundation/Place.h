#pragma once

#include <string>
#include <sys/stat.h>
#include <system_error>
#include <vector>

// Where an item is to be looked for: a name in an open folder, which stays the same folder whatever
// happens to its path meanwhile. The descriptor is someone else's; AT_FDCWD with a path will do.
struct Place {
    int folder = -1;
    std::string name;
};

// Of the item itself, not of what a link leads to.
std::error_code readStatus(const Place& place, struct stat& status);

// Where a link leads; errc::invalid_argument for what is no link.
std::error_code readLink(const Place& place, std::string& destination);

// The names in a folder, without "." and "..".
std::error_code readNames(const Place& place, std::vector<std::string>& names);

// Whether an error says that nothing is there: a part of the path is missing, is no folder, or is a
// link that leads nowhere.
bool isAbsence(std::error_code error);
