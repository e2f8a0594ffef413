#pragma once

#include "OpenFolders.h"

#include <array>
#include <string>
#include <sys/stat.h>

// The source of a copy, open. Throws an NSError if it cannot be read or is a device, a FIFO or a
// socket.
struct CopySource {
    CopySource(OpenFolders& folders, const std::string& path);

    struct stat status = {};
    FileDescriptor file; // of a regular file
    std::string target; // of a symlink
};

// All following functions throw a std::system_error.

// See ConfinedFolder::copyItemAtPath.
void copyItem(const CopySource& source, const Item& to);

// Copies the data of a regular file, `status` being its status, to an empty file. Keeps holes and
// shares the blocks if the file system can (reflink), in files of 128 KiB or more. Throws ENODATA
// (errc::no_message_available) if the size of the source changes during the copy.
void copyFileData(const FileDescriptor& from, const struct stat& status, const FileDescriptor& to);

// Copies owner, mode, xattrs, ACL and times. `status` is the status of `from` before its data was
// read.
void copyFileAttributes(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to);

// For a call that copies metadata: throws only errors that indicate damage. Any other error means
// that the volume, or the permissions of the user, cannot keep the metadata.
template <class Call, class... Arguments> auto tryToKeep(Call* call, Arguments... arguments)
{
    const auto result = uninterrupted(call, arguments...);
    constexpr std::array damage { EIO, ENOMEM, ESTALE, EUCLEAN };
    if (result < 0 && std::ranges::find(damage, errno) != damage.end()) throw lastError();
    return result;
}
