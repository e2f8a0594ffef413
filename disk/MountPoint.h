#pragma once

#include <Foundation/NSURL.h>

#include <optional>
#include <string>

// The mounted volume on which `path` lies, or none. `path` is absolute; the root volume and hidden
// volumes are never chosen. The first volume in the platform's order whose path, followed by "/",
// begins `path` wins. Safe on any thread.
std::optional<NSURL> getDMGMountPointURL(const std::string& path);
