#pragma once

#include <Foundation/NSURL.h>

#include <optional>
#include <string>

// Returns the mount point of the volume that contains `path`, or nothing. `path` is absolute. The
// root volume and hidden volumes are never returned. If several volumes match, the first in the
// platform's order wins. Safe on any thread.
std::optional<NSURL> getDMGMountPointURL(const std::string& path);
