#include "ErrorText.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

struct Meaning {
    int error;
    const char* text;
};

// What a person can act on; the system's own words follow in brackets.
constexpr std::array meanings {
    Meaning { EACCES, "you don’t have permission to access it" },
    Meaning { EBUSY, "it is in use, or another volume is mounted there" },
    Meaning { EDQUOT, "your share of the volume’s space is used up" },
    Meaning { EEXIST, "an item with the same name already exists" },
    Meaning { EFBIG, "it is larger than a file may be" },
    Meaning { EIO, "the disk reported a fault" },
    Meaning { EISDIR, "it is a folder" },
    Meaning { ELOOP, "a link is on its path" },
    Meaning { ENAMETOOLONG, "its name or path is too long" },
    Meaning {
        ENODATA, "its data ended early: it was changed meanwhile, or the disk reported a fault" },
    Meaning { ENOENT, "it doesn’t exist" },
    Meaning { ENOMEM, "the memory is used up" },
    Meaning { ENOSPC, "the volume is out of space" },
    Meaning { ENOSYS, "that takes Linux 5.6 or later, and no sandbox that hides openat2" },
    Meaning { ENOTDIR, "a part of its path is not a folder" },
    Meaning { ENOTEMPTY, "it is not empty" },
    Meaning { EPERM, "it or its folder is protected: immutable, append-only or sticky" },
    Meaning { EROFS, "the volume is read only" },
    Meaning { EUCLEAN, "the disk reported a fault" },
    Meaning { EXDEV, "it lies on another volume, which is mounted there" },
};

const char* meaningOf(int error)
{
    const auto* const found = std::ranges::find(meanings, error, &Meaning::error);
    return found != meanings.end() ? found->text : "the system refused";
}

std::string nameOr(const QString& name, unsigned number)
{
    return quoted(name.isEmpty() ? std::to_string(number) : name.toStdString());
}

// A sentence; nothing where the caller may write in the folder, or it can't be looked at.
std::string whoElseMayWrite(const std::string& item)
{
    const std::string folder = item.substr(0, item.find_last_of('/', item.size() - 2));
    const QFileInfo info(QString::fromStdString(folder + "/"));
    if (!info.exists() || faccessat(AT_FDCWD, (folder + "/").c_str(), W_OK | X_OK, AT_EACCESS) == 0)
        return "";
    std::string who = "“root”";
    if (info.ownerId() != 0 && info.permission(QFile::WriteOwner))
        who += " and " + nameOr(info.owner(), info.ownerId());
    if (info.permission(QFile::WriteGroup))
        who += " and the group " + nameOr(info.group(), info.groupId());
    return " Only " + who + " may write in " + quoted(folder.empty() ? "/" : folder)
        + ": start the installer as one who may.";
}

}

std::string quoted(const std::string& path)
{
    return "“" + path + "”";
}

std::string describe(const std::string& what, std::error_code reason, const std::string& changed)
{
    const int error = reason.value();
    const char* const system = strerrordesc_np(error); // English, as the rest is
    return what + " because " + meaningOf(error) + " (" + (system ? system : std::to_string(error))
        + ")." + (error == EACCES && !changed.empty() ? whoElseMayWrite(changed) : "");
}
