#include "FileCopy.h"

#include <array>
#include <cstring>
#include <linux/limits.h>
#include <string_view>
#include <sys/xattr.h>

namespace {

constexpr mode_t modeWithoutSetIDs = 0777 | S_ISVTX;
constexpr const char* accessControlList = "system.posix_acl_access";

// On the heap: a thread-local array would reduce the stack of every thread.
std::vector<char>& buffer()
{
    static thread_local std::vector<char> bytes(XATTR_SIZE_MAX);
    return bytes;
}

void copyAttribute(const FileDescriptor& from, const FileDescriptor& to, const char* name)
{
    char* const value = buffer().data();
    const auto size = tryToKeep(fgetxattr, from.number(), name, value, buffer().size());
    if (size >= 0) tryToKeep(fsetxattr, to.number(), name, value, std::size_t(size), 0);
}

// Returns the names of the xattrs, each followed by a NUL byte.
std::string attributeNames(const FileDescriptor& file)
{
    const auto list = [&](std::size_t room) {
        return tryToKeep(flistxattr, file.number(), buffer().data(), room);
    };
    // Asks for the size first: for a buffer the kernel allocates memory, and most files have none.
    const auto size = list(0) > 0 ? list(XATTR_LIST_MAX) : 0;
    return { buffer().data(), std::size_t(std::max<ssize_t>(0, size)) };
}

// Skips capabilities, and the ACL, which would change the mode. Returns whether there is an ACL.
bool copyPlainAttributes(const FileDescriptor& from, const FileDescriptor& to)
{
    const std::string names = attributeNames(from);
    bool hasAccessControlList = false;
    for (std::size_t start = 0; start < names.size(); start += std::strlen(&names[start]) + 1) {
        const std::string_view name = &names[start];
        if (name == accessControlList)
            hasAccessControlList = true;
        else if (name != "security.capability")
            copyAttribute(from, to, &names[start]);
    }
    return hasAccessControlList;
}

}

void copyFileAttributes(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    // In this order no step undoes another: a change of owner drops capabilities, a mode without
    // write permission denies xattrs, a mode overwrites the mask of an ACL.
    uninterrupted(fchown, to.number(), status.st_uid, status.st_gid); // may fail
    const bool hasAccessControlList = copyPlainAttributes(from, to);
    tryToKeep(fchmod, to.number(), status.st_mode & modeWithoutSetIDs);
    if (hasAccessControlList)
        copyAttribute(from, to, accessControlList);
    else if (tryToKeep(fgetxattr, to.number(), accessControlList, nullptr, 0U) >= 0) // inherited
        tryToKeep(fremovexattr, to.number(), accessControlList);
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    tryToKeep(futimens, to.number(), times.data());
}
