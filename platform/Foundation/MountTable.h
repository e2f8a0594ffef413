#pragma once

#include <string>
#include <vector>

// The mount points in the mount table, in its order, of the volumes that a person would call so:
// without the file systems of the kernel and those in memory, without what is a part of a volume
// mounted elsewhere, and without what is marked as hidden.
//
// Asks the table alone and never a volume, so that a dead one can't hold it up. `table` is a file
// of the form of /proc/self/mountinfo; nullptr: that one.
std::vector<std::string> visibleMountPoints(const char* table = nullptr);
