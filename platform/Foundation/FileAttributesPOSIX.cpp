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

// Capabilities would make the copy more than a file.
bool isToBeCopied(const std::string& name, AttributeKind kind)
{
    return kindOf(name) == kind && name != "security.capability";
}

bool isNotPermitted(std::error_code error)
{
    return isUnsupported(error) || error == std::errc::permission_denied;
}

// The names of all extended attributes, each followed by a NUL byte.
std::error_code readAttributeNames(const FileDescriptor& file, std::string& names)
{
    std::array<char, 256> few {};
    ssize_t size = flistxattr(file.number(), few.data(), few.size());
    if (size >= 0) {
        names.assign(few.data(), std::size_t(size));
        return {};
    }
    if (errno == ERANGE) {
        names.resize(XATTR_LIST_MAX);
        size = flistxattr(file.number(), names.data(), names.size());
    }
    const auto error = errorOf(size);
    names.resize(error ? 0 : std::size_t(size));
    return isNotPermitted(error) ? std::error_code() : error;
}

std::error_code copyAttribute(
    const FileDescriptor& from, const FileDescriptor& to, const char* name, std::string& value)
{
    value.resize(XATTR_SIZE_MAX);
    const ssize_t size = fgetxattr(from.number(), name, value.data(), value.size());
    auto error = errorOf(size);
    if (!error) {
        error = errorOf(fsetxattr(to.number(), name, value.data(), std::size_t(size), 0));
        if (error == std::errc::no_space_on_device)
            return {};
    }
    return isNotPermitted(error) ? std::error_code() : error;
}

std::error_code copyAttributes(const FileDescriptor& from, const FileDescriptor& to,
    const std::string& names, AttributeKind kind)
{
    std::string value;
    for (std::size_t start = 0; start < names.size();) {
        const std::string name = names.c_str() + start;
        start += name.size() + 1;
        if (isToBeCopied(name, kind))
            if (const auto error = copyAttribute(from, to, name.c_str(), value))
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
    std::string names;
    if (const auto error = readAttributeNames(from, names))
        return error;
    [[maybe_unused]] const int ownerMayStay = fchown(to.number(), status.st_uid, status.st_gid);
    if (const auto error = copyAttributes(from, to, names, AttributeKind::plain))
        return error;
    auto error = errorOf(fchmod(to.number(), status.st_mode & modeWithoutSetIDs));
    if (error && !isUnsupported(error))
        return error;
    error = copyAttributes(from, to, names, AttributeKind::accessControlList);
    if (error)
        return error;
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    error = errorOf(futimens(to.number(), times.data()));
    return isUnsupported(error) ? std::error_code() : error;
}
