#include "FileCopy.h"

#include "ErrorText.h"
#include "FileAttributes.h"
#include "FileData.h"
#include "FileDescriptor.h"
#include "NewFile.h"

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class ItemCopy {
public:
    ItemCopy(const std::string& source, const std::string& destination, NSError* error)
        : m_source(source)
        , m_destination(destination)
        , m_error(error)
    {
    }

    bool run() const;

private:
    bool copyFile(const struct stat& status) const;
    bool copyLink(const struct stat& status) const;
    bool copySpecialFile(const struct stat& status) const;
    void copyOwnerAndTimes(const struct stat& status) const;

    bool failToRead(std::error_code reason) const
    {
        return failBecause(m_error, quoted(m_source) + " couldn’t be read", reason);
    }
    bool failToCopy(std::error_code reason) const
    {
        const std::string what
            = quoted(m_source) + " couldn’t be copied to " + quoted(m_destination);
        return failBecause(m_error, what, reason);
    }

    const std::string& m_source;
    const std::string& m_destination;
    NSError* m_error;
};

bool ItemCopy::run() const
{
    struct stat status = {};
    if (lstat(m_source.c_str(), &status) < 0)
        return failToRead(lastError());
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        return copyFile(status);
    case S_IFLNK:
        return copyLink(status);
    case S_IFDIR:
        return failToCopy(make_error_code(std::errc::is_a_directory));
    default:
        return copySpecialFile(status);
    }
}

bool ItemCopy::copyFile(const struct stat& status) const
{
    // O_NONBLOCK: what has become a pipe since its status was read is not waited for.
    const FileDescriptor from(
        open(m_source.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!from.isOpen())
        return failToRead(lastError());

    NewFile copy(m_destination);
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
    std::error_code code;
    const std::filesystem::path target = std::filesystem::read_symlink(m_source, code);
    if (code)
        return failToRead(code);
    if (symlink(target.c_str(), m_destination.c_str()) < 0)
        return failToCopy(lastError());
    copyOwnerAndTimes(status);
    return true;
}

// A pipe, socket or device is made anew, never opened: reading one could wait for ever.
bool ItemCopy::copySpecialFile(const struct stat& status) const
{
    const mode_t permissions = status.st_mode & 0777;
    if (mknod(m_destination.c_str(), (status.st_mode & S_IFMT) | permissions, status.st_rdev) < 0
        || chmod(m_destination.c_str(), permissions) < 0)
        return failToCopy(lastError());
    copyOwnerAndTimes(status);
    return true;
}

// Of what has no content, owner and times are kept where that is allowed.
void ItemCopy::copyOwnerAndTimes(const struct stat& status) const
{
    const char* path = m_destination.c_str();
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    [[maybe_unused]] int mayFail = lchown(path, status.st_uid, status.st_gid);
    mayFail = utimensat(AT_FDCWD, path, times.data(), AT_SYMLINK_NOFOLLOW);
}

}

bool copyItem(const std::string& source, const std::string& destination, NSError* error)
{
    return ItemCopy(source, destination, error).run();
}
