#include "ErrorText.h"

#include <cerrno>
#include <cstring>

namespace {

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
        return "the disk reported a fault";
    case EISDIR:
        return "it is a folder";
    case ELOOP:
        return "too many links lead from one to the next";
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
    case EROFS:
        return "the volume is read only";
    default:
        return "the system refused";
    }
}

}

std::string quoted(const std::string& path)
{
    return "“" + path + "”";
}

NSError errorBecause(const std::string& what, std::error_code reason)
{
    const char* const system = strerrordesc_np(reason.value()); // English, as the rest is
    return NSError(what + " because " + meaningOf(reason) + " ("
        + (system ? system : std::to_string(reason.value())) + ").");
}

bool failBecause(NSError* error, const std::string& what, std::error_code reason)
{
    if (error)
        *error = errorBecause(what, reason);
    return false;
}
