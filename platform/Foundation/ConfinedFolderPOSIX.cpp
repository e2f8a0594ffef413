#include <Foundation/ConfinedFolder.h>

#include "ErrorText.h"
#include "FileCopy.h"
#include "OpenFolders.h"

#include <cassert>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>

namespace {

using Way = OpenFolders::Way;

// Some volumes have no locks.
bool isLockedByAnother(const FileDescriptor& folder)
{
    return uninterrupted([&] { return flock(folder.number(), LOCK_EX | LOCK_NB); }) < 0
        && errno == EWOULDBLOCK;
}

void removeTree(const Item& item)
{
    const auto remove = [&](int flags, std::initializer_list<int> expected) {
        return check([&] { return unlinkat(item.folder, item.name.c_str(), flags); }, expected) == 0
            || errno == ENOENT;
    };
    if (remove(0, { EISDIR, ENOENT }) || remove(AT_REMOVEDIR, { ENOENT, ENOTEMPTY })) return;
    const FileDescriptor folder = openFolder(item, O_PATH, Way::beneath);
    for (const std::string& name : namesIn({ folder.number(), "." }))
        removeTree({ folder.number(), name });
    remove(AT_REMOVEDIR, { ENOENT });
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
    FileDescriptor folder = openFolder({ AT_FDCWD, m_folder }, O_RDONLY, Way::anywhere, { ENOENT });
    if (!folder.isOpen()) return;
    if (isLockedByAnother(folder))
        throw NSError(
            NSLocalizedString("Errors",
                "The folder “%1” couldn’t be opened because another program holds it locked."),
            { m_folder });
    m_folders = std::make_unique<OpenFolders>(std::move(folder), m_folder, Way::beneath);
} catch (const std::system_error& reason) {
    throw failure(reason, { m_folder },
        NSLocalizedString("Errors", "The folder “%1” couldn’t be opened because %2 (%3)."));
}

void ConfinedFolder::create()
try {
    std::filesystem::create_directories(m_folder);
    open();
} catch (const std::system_error& reason) {
    throw failureToChange(reason, { m_folder },
        NSLocalizedString("Errors", "The folder “%1” couldn’t be created because %2 (%3)."));
}

void ConfinedFolder::createDirectoryAtPath(const std::string& path)
try {
    if (!m_folders) create();
    const Item item = m_folders->find(path);
    struct stat status = {};
    if (check([&] { return mkdirat(item.folder, item.name.c_str(), 0777); }, { EEXIST }) < 0) {
        check(
            [&] { return fstatat(item.folder, item.name.c_str(), &status, AT_SYMLINK_NOFOLLOW); });
        if (!S_ISDIR(status.st_mode)) throw errorOf(std::errc::file_exists);
    }
} catch (const std::system_error& reason) {
    throw failureToChange(reason, { path },
        NSLocalizedString("Errors", "The folder “%1” couldn’t be created because %2 (%3)."));
}

void ConfinedFolder::copyItemAtPath(const std::string& path, const std::string& toPath)
{
    const CopySource source(*m_sourceFolders, path);
    if (!S_ISREG(source.status.st_mode) && !S_ISLNK(source.status.st_mode)
        && !S_ISDIR(source.status.st_mode))
        throw NSError(
            NSLocalizedString("Errors",
                "“%1” couldn’t be copied to “%2” because it is a device, a pipe or a socket."),
            { path, toPath });
    try {
        if (S_ISDIR(source.status.st_mode)) throw errorOf(std::errc::is_a_directory);
        copyItem(source, m_folders->find(toPath));
    } catch (const std::system_error& reason) {
        throw failureToChange(reason, { path, toPath },
            NSLocalizedString("Errors", "“%1” couldn’t be copied to “%2” because %3 (%4)."));
    }
}

void ConfinedFolder::removeItemAtPath(const std::string& path)
try {
    if (!m_folders) return;
    const Item item = m_folders->find(path, { ELOOP, ENOENT, ENOTDIR });
    if (item.folder >= 0) removeTree(item);
} catch (const std::system_error& reason) {
    throw failureToChange(
        reason, { path }, NSLocalizedString("Errors", "“%1” couldn’t be removed because %2 (%3)."));
}

void ConfinedFolder::synchronize()
try {
    if (m_folders) check([&] { return syncfs(m_folders->top()); });
} catch (const std::system_error& reason) {
    throw failure(reason, { m_folder },
        NSLocalizedString(
            "Errors", "What was changed in “%1” couldn’t be written to the disk because %2 (%3)."));
}
