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
