#include "ErrorText.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t root = 0;

// What a person can act on; the system's own words follow in brackets.
const char* meaningOf(std::error_code reason)
{
    switch (reason.value()) {
    case EACCES:
    case EPERM:
        return "you don’t have permission to access it";
    case EBUSY:
        return "it is in use, or another volume is mounted there";
    case EDQUOT:
        return "your share of the volume’s space is used up";
    case EEXIST:
        return "an item with the same name already exists";
    case EIO:
    case EUCLEAN:
        return "the disk reported a fault";
    case EISDIR:
        return "it is a folder";
    case ELOOP:
        return "a link is on its path";
    case ENAMETOOLONG:
        return "its name or path is too long";
    case ENOENT:
        return "it doesn’t exist";
    case ENOSPC:
        return "the volume is out of space";
    case ENOTDIR:
        return "a part of its path is not a folder";
    case ENOTEMPTY:
        return "it is not empty";
    case ENODATA:
        return "its data ended early: it was changed meanwhile, or the disk reported a fault";
    case EROFS:
        return "the volume is read only";
    case EXDEV:
        return "it lies on another volume, which is mounted there";
    case EFBIG:
        return "it is larger than a file may be";
    case ENOMEM:
        return "the memory is used up";
    default:
        return "the system refused";
    }
}

std::string nameOfUser(uid_t user)
{
    const passwd* const entry = getpwuid(user);
    return quoted(entry ? entry->pw_name : std::to_string(user));
}

std::string nameOfGroup(gid_t group)
{
    const struct group* const entry = getgrgid(group);
    return "the group " + quoted(entry ? entry->gr_name : std::to_string(group));
}

// A sentence; nothing where the caller may write in the folder, or it can't be looked at.
std::string whoElseMayWrite(const std::string& folder)
{
    struct stat status = {};
    if (faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0
        || stat(folder.c_str(), &status) < 0)
        return "";
    std::string who = nameOfUser(root);
    if (status.st_uid != root && (status.st_mode & S_IWUSR))
        who += " and " + nameOfUser(status.st_uid);
    if (status.st_mode & S_IWGRP)
        who += " and " + nameOfGroup(status.st_gid);
    return " Only " + who + " may write in " + quoted(folder)
        + ": start the installer as one who may.";
}

// "/a" of "/a/b" as of "/a/b/".
std::string folderWith(const std::string& path)
{
    const std::filesystem::path item(path);
    return (item.has_filename() ? item : item.parent_path()).parent_path();
}

}

std::string quoted(const std::string& path)
{
    return "“" + path + "”";
}

std::string describe(const std::string& what, std::error_code reason)
{
    const char* const system = strerrordesc_np(reason.value()); // English, as the rest is
    return what + " because " + meaningOf(reason) + " ("
        + (system ? system : std::to_string(reason.value())) + ").";
}

bool fail(NSError* error, const std::string& description)
{
    if (error)
        *error = NSError(description);
    return false;
}

bool failBecause(NSError* error, const std::string& what, std::error_code reason)
{
    return fail(error, describe(what, reason));
}

bool failToChange(
    NSError* error, const std::string& path, const std::string& what, std::error_code reason)
{
    const bool isForbidden
        = reason == std::errc::permission_denied || reason == std::errc::operation_not_permitted;
    return fail(
        error, describe(what, reason) + (isForbidden ? whoElseMayWrite(folderWith(path)) : ""));
}
