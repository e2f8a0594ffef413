#include "Foundation/NewFilePOSIX.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

int errorOf(int result)
{
    return result < 0 ? errno : 0;
}

}

NewFile::NewFile(const std::string& path)
    : m_path(path)
{
    const std::string folder = folderOf(path);
    m_descriptor = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    const bool canBeNameless = m_descriptor >= 0 || (errno != EOPNOTSUPP && errno != EISDIR);
    if (!canBeNameless) {
        m_temporaryPath = folder + ".quillbarn-XXXXXX";
        m_descriptor = mkostemp(m_temporaryPath.data(), O_CLOEXEC);
    }
    m_error = errorOf(m_descriptor);
}

NewFile::~NewFile()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    if (m_error == 0 && !m_temporaryPath.empty())
        unlink(m_temporaryPath.c_str());
}

int NewFile::publish()
{
    const int number = m_temporaryPath.empty() ? linkNameless() : renameTemporary();
    if (number == 0)
        m_temporaryPath.clear();
    return number;
}

int NewFile::linkNameless() const
{
    // The short way needs a privilege; without it, it answers ENOENT.
    const int number = errorOf(linkat(m_descriptor, "", AT_FDCWD, m_path.c_str(), AT_EMPTY_PATH));
    if (number != ENOENT)
        return number;
    const std::string self = "/proc/self/fd/" + std::to_string(m_descriptor);
    return errorOf(linkat(AT_FDCWD, self.c_str(), AT_FDCWD, m_path.c_str(), AT_SYMLINK_FOLLOW));
}

int NewFile::renameTemporary()
{
    // On a network some errors of writing come with the close only.
    const int closed = errorOf(close(std::exchange(m_descriptor, -1)));
    if (closed != 0)
        return closed;

    const int number = errorOf(
        renameat2(AT_FDCWD, m_temporaryPath.c_str(), AT_FDCWD, m_path.c_str(), RENAME_NOREPLACE));
    if (number != EINVAL && number != ENOSYS)
        return number;
    // A file system that can't refuse to replace: look first.
    if (faccessat(AT_FDCWD, m_path.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        return EEXIST;
    return errorOf(rename(m_temporaryPath.c_str(), m_path.c_str()));
}
