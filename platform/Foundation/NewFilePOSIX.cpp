#include "NewFile.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

NewFile::NewFile(Place place)
    : m_place(std::move(place))
    , m_descriptor(openat(m_place.folder, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600))
{
    m_error = errorOf(m_descriptor.number());
    if (!isUnsupported(m_error) && m_error != std::errc::is_a_directory)
        return;
    m_temporaryName = ".quillbarn-" + std::to_string(getpid());
    m_descriptor = FileDescriptor(openat(
        m_place.folder, m_temporaryName.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600));
    m_error = errorOf(m_descriptor.number());
}

NewFile::~NewFile()
{
    if (!m_error && !m_temporaryName.empty())
        unlinkat(m_place.folder, m_temporaryName.c_str(), 0);
}

std::error_code NewFile::publish()
{
    const auto error = m_temporaryName.empty() ? nameAndClose() : closeAndRename();
    if (!error)
        m_temporaryName.clear();
    return error;
}

std::error_code NewFile::nameAndClose()
{
    // The short way needs a privilege; without it, it answers that there is no such file.
    const char* const name = m_place.name.c_str();
    auto error = errorOf(linkat(m_descriptor.number(), "", m_place.folder, name, AT_EMPTY_PATH));
    if (error == std::errc::no_such_file_or_directory) {
        const std::string self = "/proc/self/fd/" + std::to_string(m_descriptor.number());
        error = errorOf(linkat(AT_FDCWD, self.c_str(), m_place.folder, name, AT_SYMLINK_FOLLOW));
    }
    if (error)
        return error;
    error = m_descriptor.close();
    if (error)
        unlinkat(m_place.folder, name, 0);
    return error;
}

std::error_code NewFile::closeAndRename()
{
    if (const auto error = m_descriptor.close())
        return error;
    const char* const from = m_temporaryName.c_str();
    const char* const to = m_place.name.c_str();
    const auto error
        = errorOf(renameat2(m_place.folder, from, m_place.folder, to, RENAME_NOREPLACE));
    if (error != std::errc::invalid_argument && !isUnsupported(error))
        return error;
    // A file system that can't refuse to replace: look first.
    if (faccessat(m_place.folder, to, F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        return make_error_code(std::errc::file_exists);
    return errorOf(renameat(m_place.folder, from, m_place.folder, to));
}
