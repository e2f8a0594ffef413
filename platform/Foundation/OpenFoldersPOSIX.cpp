#include "OpenFolders.h"

#include <array>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <linux/openat2.h>
#include <memory>
#include <sys/syscall.h>
#include <sys/vfs.h>

namespace {

// Each cache may use an eighth of the descriptors. A copy uses two caches; the toolkit needs the
// rest.
std::size_t mostOpenFolders()
{
    static const std::size_t most = std::size_t(std::clamp(sysconf(_SC_OPEN_MAX) / 8, 4L, 128L));
    return most;
}

}

OpenFolders::OpenFolders(FileDescriptor root, const std::string& path, Scope scope) : m_scope(scope)
{
    m_folders.push_back({ path, std::move(root) });
}

OpenFolders::OpenFolders() : OpenFolders(FileDescriptor(), "", Scope::anywhere) {}

int OpenFolders::deepest() const
{
    const FileDescriptor& folder = m_folders.back().descriptor;
    return folder.isOpen() ? folder.number() : AT_FDCWD;
}

std::optional<Item> OpenFolders::find(const std::string& path, std::initializer_list<int> expected)
{
    const std::size_t end = path.rfind('/') + 1; // 0 if there is none
    while (!path.starts_with(m_folders.back().path))
        m_folders.pop_back();
    for (std::size_t start = m_folders.back().path.size(); start < end;) {
        const std::size_t next = std::min(path.find_first_not_of('/', path.find('/', start)), end);
        FileDescriptor folder = openFolder(
            { deepest(), path.substr(start, next - start) }, O_PATH, m_scope, expected);
        if (!folder.isOpen()) return std::nullopt;
        m_folders.push_back({ path.substr(0, next), std::move(folder) });
        if (m_folders.size() > mostOpenFolders()) m_folders.erase(m_folders.begin() + 1);
        start = next;
    }
    return Item { deepest(), end < path.size() ? path.substr(end) : "." };
}

FileDescriptor openFolder(const Item& folder, std::uint64_t flags, OpenFolders::Scope scope,
    std::initializer_list<int> expected)
{
    const open_how how { .flags = flags | O_DIRECTORY | O_CLOEXEC,
        .mode = 0,
        .resolve = scope == OpenFolders::Scope::anywhere
            ? 0ULL
            : RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_XDEV };
    // glibc has no wrapper for openat2.
    return FileDescriptor(int(checkExcept(
        expected, syscall, SYS_openat2, folder.folder, folder.name.c_str(), &how, sizeof how)));
}

std::vector<std::string> namesIn(const Item& folder)
{
    FileDescriptor descriptor = openFolder(folder, O_RDONLY, OpenFolders::Scope::anywhere);
    std::unique_ptr<DIR, int (*)(DIR*)> stream(nullptr, closedir);
    while (!stream) {
        stream.reset(fdopendir(descriptor.number()));
        if (!stream && errno != EINTR) throw lastError();
    }
    descriptor.release(); // closed with the stream
    std::vector<std::string> names;
    for (;;) {
        errno = 0;
        if (const dirent* const entry = readdir(stream.get()))
            names.emplace_back(entry->d_name);
        else if (errno == 0)
            break;
        else if (errno != EINTR)
            throw lastError();
    }
    std::erase_if(names, [](const std::string& name) { return name == "." || name == ".."; });
    return names;
}

bool isOnFuse(int folder)
{
    struct statfs volume = {};
    check(fstatfs, folder, &volume);
    return volume.f_type == FUSE_SUPER_MAGIC;
}

std::optional<std::string> readLink(const Item& item)
{
    std::array<char, PATH_MAX> target {};
    const auto size = checkExcept({ EINVAL, ENOENT, ENOTDIR }, readlinkat, item.folder,
        item.name.c_str(), target.data(), target.size());
    if (size < 0) return std::nullopt;
    return std::string(target.data(), std::size_t(size));
}
