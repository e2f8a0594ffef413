#include "ErrorText.h"

#include <QFileInfo>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

// The errno symbols for which the catalogues have a sentence.
constexpr auto reasons = std::to_array<std::string_view>(
    { QT_TRANSLATE_NOOP("Reasons", "EACCES"), QT_TRANSLATE_NOOP("Reasons", "EAGAIN"),
        QT_TRANSLATE_NOOP("Reasons", "EBUSY"), QT_TRANSLATE_NOOP("Reasons", "EDQUOT"),
        QT_TRANSLATE_NOOP("Reasons", "EEXIST"), QT_TRANSLATE_NOOP("Reasons", "EFBIG"),
        QT_TRANSLATE_NOOP("Reasons", "EIO"), QT_TRANSLATE_NOOP("Reasons", "EISDIR"),
        QT_TRANSLATE_NOOP("Reasons", "ELOOP"), QT_TRANSLATE_NOOP("Reasons", "EMFILE"),
        QT_TRANSLATE_NOOP("Reasons", "ENAMETOOLONG"), QT_TRANSLATE_NOOP("Reasons", "ENFILE"),
        QT_TRANSLATE_NOOP("Reasons", "ENODATA"), QT_TRANSLATE_NOOP("Reasons", "ENOENT"),
        QT_TRANSLATE_NOOP("Reasons", "ENOMEM"), QT_TRANSLATE_NOOP("Reasons", "ENOSPC"),
        QT_TRANSLATE_NOOP("Reasons", "ENOSYS"), QT_TRANSLATE_NOOP("Reasons", "ENOTDIR"),
        QT_TRANSLATE_NOOP("Reasons", "ENOTEMPTY"), QT_TRANSLATE_NOOP("Reasons", "EOPNOTSUPP"),
        QT_TRANSLATE_NOOP("Reasons", "EPERM"), QT_TRANSLATE_NOOP("Reasons", "EROFS"),
        QT_TRANSLATE_NOOP("Reasons", "ETXTBSY"), QT_TRANSLATE_NOOP("Reasons", "EUCLEAN"),
        QT_TRANSLATE_NOOP("Reasons", "EXDEV"), QT_TRANSLATE_NOOP("Reasons", "other") });

// Who can write to a folder besides root: nobody, its group, its owner, both.
constexpr auto writers = std::to_array<const char*>({ QT_TRANSLATE_NOOP("Errors", "root can write"),
    QT_TRANSLATE_NOOP("Errors", "group can write"), QT_TRANSLATE_NOOP("Errors", "owner can write"),
    QT_TRANSLATE_NOOP("Errors", "owner and group can write") });

std::string writersOf(const std::string& folder, const QFileInfo& info)
{
    const auto nameOr = [](const QString& name, unsigned number) {
        return name.isEmpty() ? std::to_string(number) : name.toStdString();
    };
    const bool ownerCan = info.ownerId() != 0 && info.permission(QFile::WriteOwner);
    const bool groupCan = info.permission(QFile::WriteGroup);
    return NSString::stringWithFormat(
        NSLocalizedString("Errors", writers.at(2U * ownerCan + groupCan)),
        { folder, nameOr(info.owner(), info.ownerId()), nameOr(info.group(), info.groupId()) });
}

}

NSError failure(const std::system_error& reason, const std::vector<std::string>& arguments,
    const std::string& sentence)
{
    const char* const name = strerrorname_np(reason.code().value());
    const std::string symbol = name ? name : std::to_string(reason.code().value());
    const bool isKnown = std::ranges::find(reasons, symbol) != reasons.end();
    const std::string why = NSLocalizedString("Reasons", isKnown ? name : "other");
    return NSError(sentence, arguments).followedBy(NSString::stringWithFormat(why, { symbol }));
}

NSError failureToChange(const std::system_error& reason, const std::vector<std::string>& arguments,
    const std::string& sentence)
{
    NSError plain = failure(reason, arguments, sentence);
    const std::string& item = arguments.back();
    const std::size_t end = item.find_last_of('/', item.size() - 2);
    const std::string folder = item.substr(0, std::max<std::size_t>(1, end));
    const QFileInfo info(QString::fromStdString(folder));
    if (reason.code() != std::errc::permission_denied || !info.exists()
        || faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0)
        return plain;
    // An ACL may permit others to write.
    const bool hasList = getxattr(folder.c_str(), "system.posix_acl_access", nullptr, 0) >= 0;
    return (hasList ? plain : plain.followedBy(writersOf(folder, info)))
        .followedBy(NSLocalizedString("Errors", "write permission required"));
}
