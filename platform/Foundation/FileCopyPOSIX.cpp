#include "FileCopy.h"

#include "ErrorText.h"
#include "FileAttributes.h"
#include "FileData.h"
#include "NewFile.h"

#include <array>
#include <fcntl.h>
#include <unistd.h>

namespace {

class ItemCopy {
public:
    ItemCopy(const std::string& path, const std::string& toPath, NSError* error)
        : m_path(path)
        , m_toPath(toPath)
        , m_error(error)
    {
    }

    bool run(OpenFolders& sources, OpenFolders& destinations);

private:
    bool copyFile(const struct stat& status) const;
    bool copyLink(const struct stat& status) const;
    bool copySpecialFile(const struct stat& status) const;
    bool copyOwnerAndTimes(const struct stat& status) const;

    bool failToRead(std::error_code reason) const
    {
        return failBecause(m_error, quoted(m_path) + " couldn’t be read", reason);
    }
    std::string failure() const
    {
        return quoted(m_path) + " couldn’t be copied to " + quoted(m_toPath);
    }
    bool failToCopy(std::error_code reason) const
    {
        return failToChange(m_error, m_toPath, failure(), reason);
    }

    const std::string& m_path;
    const std::string& m_toPath;
    NSError* const m_error;
    Place m_from;
    Place m_to;
};

bool ItemCopy::run(OpenFolders& sources, OpenFolders& destinations)
{
    struct stat status = {};
    auto reason = sources.find(m_path, m_from);
    if (!reason)
        reason = readStatus(m_from, status);
    if (reason)
        return failToRead(reason);
    reason = destinations.find(m_toPath, m_to);
    if (reason)
        return failToCopy(reason);
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        return copyFile(status);
    case S_IFLNK:
        return copyLink(status);
    case S_IFIFO:
    case S_IFSOCK:
        return copySpecialFile(status);
    case S_IFDIR:
        return failToCopy(make_error_code(std::errc::is_a_directory));
    default:
        return fail(m_error, failure() + " because it is a device.");
    }
}

bool ItemCopy::copyFile(const struct stat& status) const
{
    // O_NONBLOCK: what has become a pipe since its status was read is not waited for.
    const FileDescriptor from(
        openat(m_from.folder, m_from.name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!from.isOpen())
        return failToRead(lastError());

    NewFile copy(m_to);
    auto error = copy.error();
    if (!error)
        error = copyFileData(from, status, copy.descriptor());
    if (!error)
        error = copyFileAttributes(from, status, copy.descriptor());
    if (!error)
        error = copy.publish();
    return !error || failToCopy(error);
}

bool ItemCopy::copyLink(const struct stat& status) const
{
    std::string destination;
    if (const auto reason = readLink(m_from, destination))
        return failToRead(reason);
    auto reason = errorOf(symlinkat(destination.c_str(), m_to.folder, m_to.name.c_str()));
    std::string present;
    if (reason == std::errc::file_exists && !readLink(m_to, present) && present == destination)
        reason.clear();
    if (isUnsupported(reason))
        return fail(m_error, failure() + " because the volume has no links.");
    if (reason)
        return failToCopy(reason);
    return copyOwnerAndTimes(status);
}

// A pipe or socket is made anew, never opened: reading one could wait for ever.
bool ItemCopy::copySpecialFile(const struct stat& status) const
{
    const char* const name = m_to.name.c_str();
    const mode_t permissions = status.st_mode & 0777;
    auto reason = errorOf(mknodat(m_to.folder, name, (status.st_mode & S_IFMT) | permissions, 0));
    if (!reason)
        reason = errorOf(fchmodat(m_to.folder, name, permissions, AT_SYMLINK_NOFOLLOW));
    if (reason)
        return failToCopy(reason);
    return copyOwnerAndTimes(status);
}

// Of what has no content, owner and times are kept where that is allowed.
bool ItemCopy::copyOwnerAndTimes(const struct stat& status) const
{
    const char* const name = m_to.name.c_str();
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    [[maybe_unused]] const int ownerMayStay
        = fchownat(m_to.folder, name, status.st_uid, status.st_gid, AT_SYMLINK_NOFOLLOW);
    const auto reason = errorOf(utimensat(m_to.folder, name, times.data(), AT_SYMLINK_NOFOLLOW));
    return !reason || isUnsupported(reason) || failToCopy(reason);
}

}

bool copyItem(OpenFolders& sources, const std::string& path, OpenFolders& destinations,
    const std::string& toPath, NSError* error)
{
    return ItemCopy(path, toPath, error).run(sources, destinations);
}
