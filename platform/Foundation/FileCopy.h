#pragma once

#include "OpenFolders.h"

#include <string>
#include <sys/stat.h>

// What is to be copied, open. Throws an NSError where it can't be read.
struct CopySource {
    CopySource(OpenFolders& folders, const std::string& path);

    struct stat status = {};
    FileDescriptor file; // not open for a link
    std::string link; // where it leads
};

// The three of them throw a std::system_error.

// See ConfinedFolder::copyItemAtPath.
void copyItem(const CopySource& source, const Item& to);

// Copies the content of a regular file, whose status is given, into an empty one: sharing its
// blocks where the file system can, with its holes as holes. Data that ends before the file does,
// or a file that is of another length by then, is errc::no_message_available.
void copyFileData(const FileDescriptor& from, const struct stat& status, const FileDescriptor& to);

// Gives the file `to` what the file `from` carries beside its data. `status` is that of `from`
// before its data was read.
void copyFileAttributes(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to);
