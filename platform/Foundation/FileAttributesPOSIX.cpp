#include "FileAttributes.h"

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

// Of an attribute that may be left out.
bool isNoFailure(std::error_code error)
{
    const int number = error.value();
    return number == ENOTSUP || number == EPERM || number == EACCES || number == ENOSPC
        || number == ENODATA;
}

// The names of all extended attributes, each followed by a NUL byte.
std::string attributeNames(const FileDescriptor& file)
{
    std::array<char, 256> few {};
    ssize_t size = flistxattr(file.number(), few.data(), few.size());
    if (size >= 0)
        return { few.data(), std::size_t(size) };

    std::string many(XATTR_LIST_MAX, '\0');
    size = flistxattr(file.number(), many.data(), many.size());
    many.resize(size < 0 ? 0 : std::size_t(size));
    return many;
}

std::error_code copyAttributes(const FileDescriptor& from, const FileDescriptor& to,
    const std::string& names, AttributeKind kind)
{
    std::string value;
    for (std::size_t start = 0; start < names.size();) {
        const std::string name = names.c_str() + start;
        start += name.size() + 1;
        if (kindOf(name) != kind)
            continue;
        value.resize(XATTR_SIZE_MAX);
        const ssize_t size = fgetxattr(from.number(), name.c_str(), value.data(), value.size());
        std::error_code error = errorOf(size);
        if (!error)
            error
                = errorOf(fsetxattr(to.number(), name.c_str(), value.data(), std::size_t(size), 0));
        if (error && !isNoFailure(error))
            return error;
    }
    return {};
}

}

std::error_code copyFileAttributes(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    // In this order nothing undoes what was done before it: a change of owner drops capabilities, a
    // mode without write permission refuses attributes, a mode overwrites a list's mask.
    const std::string names = attributeNames(from);
    [[maybe_unused]] const int ownerMayStay = fchown(to.number(), status.st_uid, status.st_gid);
    if (const auto error = copyAttributes(from, to, names, AttributeKind::plain))
        return error;
    if (const auto error = errorOf(fchmod(to.number(), status.st_mode & modeWithoutSetIDs)))
        return error;
    if (const auto error = copyAttributes(from, to, names, AttributeKind::accessControlList))
        return error;
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    return errorOf(futimens(to.number(), times.data()));
}
