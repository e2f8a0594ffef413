#pragma once

#include <Foundation/NSURL.h>

#include <optional>
#include <string>

// Returns the mount point of the volume that contains `path`, or nothing. `path` is absolute. The
// root volume and hidden volumes are never returned. If volumes are mounted inside each other, the
// first in the mount table is returned. Safe on any thread.
std::optional<NSURL> getDMGMountPointURL(const std::string& path);
