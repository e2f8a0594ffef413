#pragma once

#include <string>
#include <vector>

// Returns the mount points of the visible volumes, in the order of the mount table. Hidden: pseudo
// and in-memory file systems, bind mounts of folders, further subvolumes of a btrfs, and mounts
// with the option x-gvfs-hide.
//
// Reads only the table and never a volume, because an unresponsive one blocks. `table` is a file in
// the format of /proc/self/mountinfo, which is the default (nullptr).
std::vector<std::string> visibleMountPoints(const char* table = nullptr);
