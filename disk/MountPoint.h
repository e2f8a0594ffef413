#pragma once

#include <Foundation/NSURL.h>

#include <optional>
#include <string>

// Returns the mount point of the volume that contains `path`, or nothing. `path` is absolute.
// Symlinks are not resolved: the text of `path` begins with the mount point and "/" (compared by
// NSString::hasPrefix), so the mount point itself gives nothing. The root volume and hidden volumes
// are never returned. If volumes are mounted inside each other, the first in the mount table is
// returned. Safe on any thread.
std::optional<NSURL> getDMGMountPointURL(const std::string& path);
