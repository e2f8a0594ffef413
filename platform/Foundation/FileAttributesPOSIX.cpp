#include "FileCopy.h"

#include <array>
#include <linux/limits.h>
#include <string_view>
#include <sys/xattr.h>

namespace {

constexpr mode_t modeWithoutSetIDs = 0777 | S_ISVTX;
constexpr const char* accessControlList = "system.posix_acl_access";

// The volume, or the caller, doesn't have what was asked for.
constexpr std::initializer_list<int> refusals { EACCES, ENODATA, ENOSPC, ENOSYS, EOPNOTSUPP,
    EPERM };

void copyAttribute(const FileDescriptor& from, const FileDescriptor& to, const char* name)
{
    static thread_local std::array<char, XATTR_SIZE_MAX> value;
    const auto size = check(
        [&] { return fgetxattr(from.number(), name, value.data(), value.size()); }, refusals);
    if (size >= 0)
        check([&] { return fsetxattr(to.number(), name, value.data(), std::size_t(size), 0); },
            refusals);
}

// Capabilities would make the copy more than a file. Answers whether there is a list, which would
// overwrite the mode and is left out here.
bool copyPlainAttributes(const FileDescriptor& from, const FileDescriptor& to)
{
    static thread_local std::array<char, XATTR_LIST_MAX> names; // each followed by a NUL byte
    const auto list = [&](std::size_t room) {
        return check([&] { return flistxattr(from.number(), names.data(), room); }, refusals);
    };
    // The system takes its time to find room for so many, where as a rule there are none.
    const auto size = list(0) > 0 ? list(names.size()) : 0;
    bool hasList = false;
    for (ssize_t start = 0; start < size;) {
        const std::string name = &names[std::size_t(start)];
        if (name == accessControlList)
            hasList = true;
        else if (name != "security.capability")
            copyAttribute(from, to, name.c_str());
        start += ssize_t(name.size()) + 1;
    }
    return hasList;
}

// A new file may have got one from its folder.
void removeList(const FileDescriptor& file)
{
    if (check([&] { return fgetxattr(file.number(), accessControlList, nullptr, 0); }, refusals)
        >= 0)
        check([&] { return fremovexattr(file.number(), accessControlList); }, refusals);
}

}

void copyFileAttributes(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    // In this order nothing undoes what was done before it: a change of owner drops capabilities, a
    // mode without write permission refuses attributes, a mode overwrites a list's mask.
    uninterrupted([&] { return fchown(to.number(), status.st_uid, status.st_gid); }); // may fail
    const bool hasList = copyPlainAttributes(from, to);
    check([&] { return fchmod(to.number(), status.st_mode & modeWithoutSetIDs); }, refusals);
    if (hasList)
        copyAttribute(from, to, accessControlList);
    else
        removeList(to);
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    check([&] { return futimens(to.number(), times.data()); }, refusals);
}
