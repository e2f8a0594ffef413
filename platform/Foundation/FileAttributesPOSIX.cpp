#include "Foundation/FileAttributesPOSIX.h"

#include <array>
#include <cerrno>
#include <linux/limits.h>
#include <string>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr mode_t modeWithoutSetIDs = 0777 | S_ISVTX;

enum class AttributeKind { plain, accessControlList };

AttributeKind kindOf(const std::string& name)
{
    return name.starts_with("system.posix_acl_") ? AttributeKind::accessControlList
                                                 : AttributeKind::plain;
}

bool isNoFailure(int number)
{
    return number == ENOTSUP || number == EPERM || number == EACCES || number == ENOSPC
        || number == ENODATA;
}

// The names of all extended attributes, each followed by a NUL byte.
std::string attributeNames(int file)
{
    std::array<char, 256> few {};
    ssize_t size = flistxattr(file, few.data(), few.size());
    if (size >= 0)
        return { few.data(), std::size_t(size) };

    std::string many(XATTR_LIST_MAX, '\0');
    size = flistxattr(file, many.data(), many.size());
    many.resize(size < 0 ? 0 : std::size_t(size));
    return many;
}

int copyAttributes(int from, int to, const std::string& names, AttributeKind kind)
{
    std::string value;
    for (std::size_t start = 0; start < names.size();) {
        const std::string name = names.c_str() + start;
        start += name.size() + 1;
        if (kindOf(name) != kind)
            continue;
        value.resize(XATTR_SIZE_MAX);
        const ssize_t size = fgetxattr(from, name.c_str(), value.data(), value.size());
        const bool failed
            = size < 0 || fsetxattr(to, name.c_str(), value.data(), std::size_t(size), 0) < 0;
        if (failed && !isNoFailure(errno))
            return errno;
    }
    return 0;
}

}

int copyFileAttributes(int from, const struct stat& status, int to)
{
    // In this order nothing undoes what was done before it: a change of owner drops capabilities, a
    // mode without write permission refuses attributes, a mode overwrites a list's mask.
    const std::string names = attributeNames(from);
    [[maybe_unused]] const int ownerMayStay = fchown(to, status.st_uid, status.st_gid);
    if (const int number = copyAttributes(from, to, names, AttributeKind::plain))
        return number;
    if (fchmod(to, status.st_mode & modeWithoutSetIDs) < 0)
        return errno;
    if (const int number = copyAttributes(from, to, names, AttributeKind::accessControlList))
        return number;
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    return futimens(to, times.data()) < 0 ? errno : 0;
}
