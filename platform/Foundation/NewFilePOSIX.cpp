#include "NewFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

}

NewFile::NewFile(const std::string& path)
    : m_path(path)
{
    const std::string folder = folderOf(path);
    int number = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (number < 0 && (errno == EOPNOTSUPP || errno == EISDIR)) {
        m_temporaryPath = folder + ".quillbarn-XXXXXX";
        number = mkostemp(m_temporaryPath.data(), O_CLOEXEC);
    }
    m_error = errorOf(number);
    m_descriptor = FileDescriptor(number);
}

NewFile::~NewFile()
{
    if (!m_error && !m_temporaryPath.empty())
        unlink(m_temporaryPath.c_str());
}

std::error_code NewFile::publish()
{
    const auto error = m_temporaryPath.empty() ? linkNameless() : renameTemporary();
    if (!error)
        m_temporaryPath.clear();
    return error;
}

std::error_code NewFile::linkNameless() const
{
    // The short way needs a privilege; without it, it answers that there is no such file.
    const auto error
        = errorOf(linkat(m_descriptor.number(), "", AT_FDCWD, m_path.c_str(), AT_EMPTY_PATH));
    if (error != std::errc::no_such_file_or_directory)
        return error;
    const std::string self = "/proc/self/fd/" + std::to_string(m_descriptor.number());
    return errorOf(linkat(AT_FDCWD, self.c_str(), AT_FDCWD, m_path.c_str(), AT_SYMLINK_FOLLOW));
}

std::error_code NewFile::renameTemporary()
{
    if (const auto error = m_descriptor.close())
        return error;
    const auto error = errorOf(
        renameat2(AT_FDCWD, m_temporaryPath.c_str(), AT_FDCWD, m_path.c_str(), RENAME_NOREPLACE));
    if (error != std::errc::invalid_argument && error != std::errc::function_not_supported)
        return error;
    // A file system that can't refuse to replace: look first.
    if (faccessat(AT_FDCWD, m_path.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        return make_error_code(std::errc::file_exists);
    return errorOf(rename(m_temporaryPath.c_str(), m_path.c_str()));
}
