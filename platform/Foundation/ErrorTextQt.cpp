#include "ErrorText.h"

#include <QFileInfo>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <libintl.h>
#include <unistd.h>

namespace {

struct Meaning {
    int error;
    const char* text;
};

// What a person can act on; the system's own words follow in brackets.
constexpr auto meanings = std::to_array<Meaning>({
    { EACCES, QT_TRANSLATE_NOOP("Reasons", "you don’t have permission to access it") },
    { EBUSY, QT_TRANSLATE_NOOP("Reasons", "it is in use, or another volume is mounted there") },
    { EDQUOT, QT_TRANSLATE_NOOP("Reasons", "your share of the volume’s space is used up") },
    { EEXIST, QT_TRANSLATE_NOOP("Reasons", "an item with the same name already exists") },
    { EFBIG, QT_TRANSLATE_NOOP("Reasons", "it is larger than a file may be") },
    { EIO, QT_TRANSLATE_NOOP("Reasons", "the disk reported a fault") },
    { EISDIR, QT_TRANSLATE_NOOP("Reasons", "it is a folder") },
    { ELOOP, QT_TRANSLATE_NOOP("Reasons", "a link is on its path") },
    { ENAMETOOLONG, QT_TRANSLATE_NOOP("Reasons", "its name or path is too long") },
    { ENODATA,
        QT_TRANSLATE_NOOP("Reasons",
            "its data ended early: it was changed meanwhile, or the disk reported a fault") },
    { ENOENT, QT_TRANSLATE_NOOP("Reasons", "it doesn’t exist") },
    { ENOMEM, QT_TRANSLATE_NOOP("Reasons", "the memory is used up") },
    { ENOSPC, QT_TRANSLATE_NOOP("Reasons", "the volume is out of space") },
    { ENOSYS,
        QT_TRANSLATE_NOOP(
            "Reasons", "that takes Linux 5.6 or later, and no sandbox that hides openat2") },
    { ENOTDIR, QT_TRANSLATE_NOOP("Reasons", "a part of its path is not a folder") },
    { ENOTEMPTY, QT_TRANSLATE_NOOP("Reasons", "it is not empty") },
    { EPERM,
        QT_TRANSLATE_NOOP(
            "Reasons", "it or its folder is protected: immutable, append-only or sticky") },
    { EROFS, QT_TRANSLATE_NOOP("Reasons", "the volume is read only") },
    { EUCLEAN, QT_TRANSLATE_NOOP("Reasons", "the disk reported a fault") },
    { EXDEV, QT_TRANSLATE_NOOP("Reasons", "it lies on another volume, which is mounted there") },
    { 0, QT_TRANSLATE_NOOP("Reasons", "the system refused") }, // whatever it was
});

// With the places of whom an item's folder is open to: no one else, its group, its owner, both.
constexpr auto permissions = std::to_array<const char*>({
    QT_TRANSLATE_NOOP(
        "Errors", "%1 Only “root” may write in “%2”: start the installer as one who may."),
    QT_TRANSLATE_NOOP("Errors",
        "%1 Only “root” and the group “%4” may write in “%2”: start the installer as one who may."),
    QT_TRANSLATE_NOOP(
        "Errors", "%1 Only “root” and “%3” may write in “%2”: start the installer as one who may."),
    QT_TRANSLATE_NOOP("Errors",
        "%1 Only “root” and “%3” and the group “%4” may write in “%2”: start the installer as one "
        "who may."),
});

}

NSError failure(const std::system_error& reason, std::vector<std::string> arguments,
    const std::string& sentence)
{
    const int error = reason.code().value();
    const auto* const found = std::ranges::find(meanings, error, &Meaning::error);
    const Meaning& meaning = found != meanings.end() ? *found : meanings.back();
    const char* const words = strerrordesc_np(error);
    arguments.push_back(NSLocalizedString("Reasons", meaning.text));
    arguments.push_back(words ? dgettext("libc", words) : std::to_string(error));
    return NSError(sentence, arguments);
}

NSError failureToChange(const std::system_error& reason, const std::vector<std::string>& arguments,
    const std::string& sentence)
{
    NSError plain = failure(reason, arguments, sentence);
    const std::string& item = arguments.back();
    const std::string folder = item.substr(0, item.find_last_of('/', item.size() - 2));
    const QFileInfo info(QString::fromStdString(folder + "/"));
    if (reason.code() != std::errc::permission_denied || !info.exists()
        || faccessat(AT_FDCWD, (folder + "/").c_str(), W_OK | X_OK, AT_EACCESS) == 0)
        return plain;
    const auto nameOr = [](const QString& name, unsigned number) {
        return name.isEmpty() ? std::to_string(number) : name.toStdString();
    };
    const bool ownerMay = info.ownerId() != 0 && info.permission(QFile::WriteOwner);
    const bool groupMay = info.permission(QFile::WriteGroup);
    return NSError(NSLocalizedString("Errors", permissions.at(2U * ownerMay + groupMay)),
        { plain.localizedDescription(), folder.empty() ? "/" : folder,
            nameOr(info.owner(), info.ownerId()), nameOr(info.group(), info.groupId()) });
}
