#include "OpenFolders.h"

#include <array>
#include <climits>
#include <fcntl.h>
#include <filesystem>
#include <linux/openat2.h>
#include <sys/syscall.h>

namespace {

constexpr std::size_t limit = 128; // of the folders kept open; a process may have 1024 files

}

OpenFolders::OpenFolders(FileDescriptor folder, const std::string& path, Way way) : m_way(way)
{
    m_folders.push_back({ path, std::move(folder) });
}

OpenFolders::OpenFolders() : OpenFolders(FileDescriptor(AT_FDCWD), "", Way::anywhere) {}

Item OpenFolders::find(const std::string& path, std::initializer_list<int> expected)
{
    const std::size_t end = path.rfind('/') + 1; // 0 where there is none
    while (!path.starts_with(m_folders.back().path))
        m_folders.pop_back();
    for (std::size_t start = m_folders.back().path.size(); start < end;) {
        const std::size_t next = std::min(path.find_first_not_of('/', path.find('/', start)), end);
        FileDescriptor folder
            = openFolder({ m_folders.back().descriptor.number(), path.substr(start, next - start) },
                O_PATH, m_way, expected);
        if (!folder.isOpen()) return { -1, "" };
        m_folders.push_back({ path.substr(0, next), std::move(folder) });
        if (m_folders.size() > limit) m_folders.erase(m_folders.begin() + 1);
        start = next;
    }
    return { m_folders.back().descriptor.number(), end < path.size() ? path.substr(end) : "." };
}

FileDescriptor openFolder(const Item& folder, std::uint64_t flags, OpenFolders::Way way,
    std::initializer_list<int> expected)
{
    const open_how how { .flags = flags | O_DIRECTORY | O_CLOEXEC,
        .mode = 0,
        .resolve = way == OpenFolders::Way::anywhere
            ? 0ULL
            : RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_XDEV };
    // The C library has no wrapper for it.
    return FileDescriptor(check(
        [&] {
            return int(syscall(SYS_openat2, folder.folder, folder.name.c_str(), &how, sizeof how));
        },
        expected));
}

std::vector<std::string> namesIn(const Item& folder)
{
    const std::string start
        = folder.folder == AT_FDCWD ? "" : "/proc/self/fd/" + std::to_string(folder.folder) + "/";
    for (;;) {
        try {
            std::vector<std::string> names;
            for (const auto& entry : std::filesystem::directory_iterator(start + folder.name))
                names.push_back(entry.path().filename());
            return names;
        } catch (const std::filesystem::filesystem_error& reason) {
            if (reason.code() != std::errc::interrupted) throw;
        }
    }
}

std::optional<std::string> readLink(const Item& link)
{
    std::array<char, PATH_MAX> destination {};
    const auto size = check(
        [&] {
            return readlinkat(
                link.folder, link.name.c_str(), destination.data(), destination.size());
        },
        { EINVAL, ENOENT, ENOTDIR });
    if (size < 0) return std::nullopt;
    return std::string(destination.data(), std::size_t(size));
}
