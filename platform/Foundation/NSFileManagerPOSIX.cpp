#include <Foundation/NSFileManager.h>

#include "ErrorText.h"
#include "OpenFolders.h"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace {

constexpr std::initializer_list<int> absence { ELOOP, ENOENT, ENOTDIR };

bool createNew(const std::string& path)
{
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    return FileDescriptor(uninterrupted([&] { return open(path.c_str(), flags, 0666); })).isOpen();
}

bool leadsNowhere(const std::string& path)
{
    std::error_code reason;
    return is_symlink(std::filesystem::symlink_status(path, reason))
        && !exists(std::filesystem::status(path, reason));
}

}

NSFileManager::NSFileManager(std::unique_ptr<OpenFolders> folders) : m_folders(std::move(folders))
{
}

NSFileManager::NSFileManager() : NSFileManager(std::make_unique<OpenFolders>()) {}

NSFileManager::~NSFileManager() = default;

const NSFileManager& NSFileManager::defaultManager()
{
    static const NSFileManager manager(nullptr);
    return manager;
}

Item NSFileManager::find(const std::string& path, std::initializer_list<int> expected) const
{
    return m_folders ? m_folders->find(path, expected) : Item { AT_FDCWD, path };
}

std::optional<FileIdentity> NSFileManager::fileExistsAtPath(
    const std::string& path, bool& isDirectory) const
try {
    struct stat status = {};
    const Item item = find(path, absence);
    if (item.folder == -1
        || check([&] { return fstatat(item.folder, item.name.c_str(), &status, 0); }, absence) < 0)
        return std::nullopt;
    isDirectory = S_ISDIR(status.st_mode);
    return FileIdentity { status.st_dev, status.st_ino };
} catch (const std::system_error& reason) {
    throw failure(reason, { path },
        NSLocalizedString("Errors", "“%1” couldn’t be looked at because %2 (%3)."));
}

bool NSFileManager::fileExistsAtPath(const std::string& path) const
{
    bool isDirectory = false;
    return fileExistsAtPath(path, isDirectory).has_value();
}

std::vector<std::string> NSFileManager::contentsOfDirectoryAtPath(const std::string& path) const
try {
    return namesIn(find(path));
} catch (const std::system_error& reason) {
    throw failure(reason, { path },
        NSLocalizedString("Errors", "The folder “%1” couldn’t be opened because %2 (%3)."));
}

std::optional<std::string> NSFileManager::destinationOfSymbolicLinkAtPath(
    const std::string& path) const
try {
    return readLink(find(path));
} catch (const std::system_error& reason) {
    throw failure(reason, { path },
        NSLocalizedString("Errors", "“%1” couldn’t be looked at because %2 (%3)."));
}

// The kernel names what it has opened in one step; asking for each part of the path in turn, as
// realpath() does, takes minutes on a path of a thousand folders.
std::string NSFileManager::stringByResolvingSymlinksInPath(const std::string& path) const
{
    const FileDescriptor item(
        uninterrupted([&] { return open(path.c_str(), O_PATH | O_CLOEXEC); }));
    const std::string name = "/proc/self/fd/" + std::to_string(item.number());
    return destinationOfSymbolicLinkAtPath(name).value_or(path);
}

bool NSFileManager::changeCurrentDirectoryPath(const std::string& path) const
{
    return chdir(path.c_str()) == 0;
}

bool NSFileManager::createFileAtPath(const std::string& path) const
{
    if (createNew(path)) return true;
    const bool isThere = errno == EEXIST;
    return leadsNowhere(path) ? unlink(path.c_str()) == 0 && createNew(path) : isThere;
}
