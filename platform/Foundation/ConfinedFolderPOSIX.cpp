#include <Foundation/ConfinedFolder.h>

#include "ErrorText.h"
#include "FileCopy.h"
#include "OpenFolders.h"

#include <cassert>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/sysmacros.h>

namespace {

using Scope = OpenFolders::Scope;

void removeTree(const Item& item)
{
    const auto remove = [&](int flags, std::initializer_list<int> expected) {
        return checkExcept(expected, unlinkat, item.folder, item.name.c_str(), flags) == 0
            || errno == ENOENT;
    };
    if (remove(0, { EISDIR, ENOENT }) || remove(AT_REMOVEDIR, { ENOENT, ENOTEMPTY })) return;
    const FileDescriptor folder = openFolder(item, O_PATH, Scope::beneath);
    for (const std::string& name : namesIn({ folder.number(), "." }))
        removeTree({ folder.number(), name });
    remove(AT_REMOVEDIR, { ENOENT });
}

// Without a block device, FUSE does not pass syncfs on to the file system behind it.
bool ignoresSyncfs(const FileDescriptor& folder)
{
    struct stat status = {};
    check(fstat, folder.number(), &status);
    return isOnFuse(folder.number()) && major(status.st_dev) == 0;
}

void flush(const Item& item)
{
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const FileDescriptor file(
        checkExcept({ EACCES, ELOOP }, openat, item.folder, item.name.c_str(), flags));
    if (file.isOpen()) check(fsync, file.number());
}

}

ConfinedFolder::ConfinedFolder(const std::string& folder)
    : m_folder(folder), m_sourceFolders(std::make_unique<OpenFolders>())
{
    assert(folder.ends_with('/'));
    open();
}

ConfinedFolder::~ConfinedFolder() = default;

void ConfinedFolder::open()
try {
    FileDescriptor folder
        = openFolder({ AT_FDCWD, m_folder }, O_RDONLY, Scope::anywhere, { ENOENT });
    if (!folder.isOpen()) return;
    // Any other error means that the file system has no locks.
    if (uninterrupted(flock, folder.number(), LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK)
        throw NSError(NSLocalizedString("Errors", "folder is locked"), { m_folder });
    m_ignoresSyncfs = ignoresSyncfs(folder);
    m_folders = std::make_unique<OpenFolders>(std::move(folder), m_folder, Scope::beneath);
} catch (const std::system_error& reason) {
    throw failure(reason, { m_folder }, NSLocalizedString("Errors", "folder not opened"));
}

void ConfinedFolder::create()
try {
    std::filesystem::create_directories(m_folder);
    open();
    if (!m_folders) throw errorOf(std::errc::no_such_file_or_directory); // removed again
} catch (const std::system_error& reason) {
    throw failureToChange(reason, { m_folder }, NSLocalizedString("Errors", "folder not created"));
}

void ConfinedFolder::createDirectoryAtPath(
    const std::string& path, WithIntermediateDirectories intermediates)
try {
    if (!m_folders) create();
    const Item item = *m_folders->find(path);
    if (checkExcept({ EEXIST }, mkdirat, item.folder, item.name.c_str(), mode_t(0777)) < 0
        && (intermediates == WithIntermediateDirectories::no
            || !openFolder(item, O_PATH, Scope::beneath, { ELOOP, ENOTDIR }).isOpen()))
        throw errorOf(std::errc::file_exists);
    if (m_ignoresSyncfs) m_unflushed.push_back(path);
} catch (const std::system_error& reason) {
    throw failureToChange(reason, { path }, NSLocalizedString("Errors", "folder not created"));
}

void ConfinedFolder::createTemporaryDirectoryAtPath(const std::string& path)
try {
    const auto item = m_folders->find(path, { ELOOP, ENOENT });
    if (item)
        checkExcept({ EDQUOT, ENOSPC }, mkdirat, item->folder, item->name.c_str(), mode_t(0700));
} catch (const std::system_error& reason) {
    throw failureToChange(reason, { path }, NSLocalizedString("Errors", "folder not created"));
}

void ConfinedFolder::copyItemAtPath(const std::string& path, const std::string& toPath)
{
    const CopySource source(*m_sourceFolders, path);
    try {
        copyItem(source, *m_folders->find(toPath));
        if (m_ignoresSyncfs) m_unflushed.push_back(toPath);
    } catch (const std::system_error& reason) {
        throw failureToChange(
            reason, { path, toPath }, NSLocalizedString("Errors", "item not copied"));
    }
}

void ConfinedFolder::removeItemAtPath(const std::string& path)
try {
    if (!m_folders) open(); // perhaps another installer has created it
    const auto item = m_folders ? m_folders->find(path, { ELOOP, ENOENT, ENOTDIR }) : std::nullopt;
    if (item) removeTree(*item);
    std::erase(m_unflushed, path);
} catch (const std::system_error& reason) {
    throw failureToChange(reason, { path }, NSLocalizedString("Errors", "item not removed"));
}

void ConfinedFolder::synchronize()
try {
    if (!m_folders) return;
    for (const std::string& path : m_unflushed)
        flush(*m_folders->find(path));
    check(syncfs, m_folders->root());
    // Removals leave nothing to flush. This also flushes the file system behind FUSE.
    if (m_ignoresSyncfs) sync();
} catch (const std::system_error& reason) {
    throw failure(reason, { m_folder }, NSLocalizedString("Errors", "changes not written"));
}
