#pragma once

#include "FileDescriptor.h"

#include <sys/stat.h>

// Copies the content of a regular file, whose status is given, into an empty one: as a clone where
// the file system can, with its holes as holes. Data that ends before the file does, or a file that
// is of another length by then, is errc::no_message_available.
std::error_code copyFileData(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to);
