#include "OpenFolders.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr std::size_t limit = 128; // of the folders kept open; a process may have 1024 files

// Has no wrapper in the C library.
int openBeneath(int folder, const char* name, const open_how& how)
{
    return int(syscall(SYS_openat2, folder, name, &how, sizeof how));
}

}

OpenFolders::OpenFolders(FileDescriptor top, const std::string& topPath)
    : m_top(std::move(top))
    , m_start(topPath.size())
{
}

int OpenFolders::current() const
{
    if (!m_folders.empty())
        return m_folders.back().descriptor.number();
    return m_top.isOpen() ? m_top.number() : AT_FDCWD;
}

std::error_code OpenFolders::find(const std::string& path, Place& place, MissingFolders missing)
{
    const std::size_t end = path.rfind('/') + 1; // 0 where there is none
    const auto error = enter(path.substr(0, end), missing);
    place = { current(), end < path.size() ? path.substr(end) : "." };
    return error;
}

std::error_code OpenFolders::enter(const std::string& path, MissingFolders missing)
{
    leave(path);
    if (!m_top.isOpen() && path.starts_with('/') && m_folders.empty())
        if (const auto error = step("/", 0, missing))
            return error;
    for (;;) {
        const std::size_t start = path.find_first_not_of('/', reached());
        if (start == std::string::npos)
            return {};
        const std::size_t end = std::min(path.find('/', start), path.size());
        if (const auto error = step(path.substr(start, end - start), end, missing))
            return error;
    }
}

// Closes the folders that are not on the way to `path`.
void OpenFolders::leave(const std::string& path)
{
    const auto common = std::size_t(std::ranges::mismatch(m_path, path).in1 - m_path.begin());
    while (
        !m_folders.empty() && (m_folders.back().end > common || path[m_folders.back().end] != '/'))
        m_folders.pop_back();
    m_path = path;
}

// To the folder of that name in the last one.
std::error_code OpenFolders::step(const std::string& name, std::size_t end, MissingFolders missing)
{
    FileDescriptor folder = open(name);
    if (!folder.isOpen() && errno == ENOENT && missing == MissingFolders::create
        && mkdirat(current(), name.c_str(), 0777) == 0)
        folder = open(name);
    if (!folder.isOpen())
        return lastError();
    m_folders.push_back({ end, std::move(folder) });
    if (m_folders.size() > limit)
        m_folders.pop_front();
    return {};
}

FileDescriptor OpenFolders::open(const std::string& name) const
{
    constexpr int flags = O_PATH | O_DIRECTORY | O_CLOEXEC;
    if (!m_top.isOpen())
        return FileDescriptor(openat(current(), name.c_str(), flags));
    const open_how how { .flags = flags,
        .mode = 0,
        .resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_XDEV };
    return FileDescriptor(openBeneath(current(), name.c_str(), how));
}
