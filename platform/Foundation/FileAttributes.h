#pragma once

#include "FileDescriptor.h"

#include <sys/stat.h>

// Gives the file `to` what the file `from` carries beside its data: owner, extended attributes,
// mode less set-ID bits, access control list, times. `status` is that of `from` before its data was
// read. What the file system or the caller's rights don't allow is left out.
std::error_code copyFileAttributes(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to);
