#include <Foundation/NSFileManager.h>

#include "ErrorText.h"
#include "FileCopy.h"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace {

constexpr std::initializer_list<int> notFound { ELOOP, ENOENT, ENOTDIR };

bool createNew(const std::string& path)
{
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    return FileDescriptor(uninterrupted(open, path.c_str(), flags, 0666)).isOpen();
}

bool isDanglingSymlink(const std::string& path)
{
    std::error_code reason;
    return is_symlink(std::filesystem::symlink_status(path, reason))
        && !exists(std::filesystem::status(path, reason));
}

NSError failureToExamine(const std::system_error& reason, const std::string& path)
{
    return failure(reason, { path }, NSLocalizedString("Errors", "item not examined"));
}

}

NSFileManager::NSFileManager(std::unique_ptr<OpenFolders> cache) : m_folders(std::move(cache)) {}

NSFileManager::NSFileManager() : NSFileManager(std::make_unique<OpenFolders>()) {}

NSFileManager::~NSFileManager() = default;

const NSFileManager& NSFileManager::defaultManager()
{
    static const NSFileManager manager(nullptr);
    return manager;
}

std::optional<Item> NSFileManager::find(
    const std::string& path, std::initializer_list<int> expected) const
{
    return m_folders ? m_folders->find(path, expected) : Item { AT_FDCWD, path };
}

bool NSFileManager::fileExistsAtPath(const std::string& path, FileStatus* status) const
try {
    const std::optional<Item> item = find(path, notFound);
    struct stat found = {};
    const auto examine = [&](int flags) {
        const char* const name = item->name.c_str();
        return checkExcept(notFound, fstatat, item->folder, name, &found, flags) == 0;
    };
    if (!item || !examine(AT_SYMLINK_NOFOLLOW)) return false;
    const bool isSymlink = S_ISLNK(found.st_mode);
    if (isSymlink && !examine(0)) return false;
    const bool isFolder = S_ISDIR(found.st_mode);
    const bool isSpecial = !isFolder && !S_ISREG(found.st_mode);
    if (status) *status = { isFolder, isSpecial, isSymlink, { found.st_dev, found.st_ino } };
    return true;
} catch (const std::system_error& reason) {
    throw failureToExamine(reason, path);
}

bool NSFileManager::isReadableFileAtPath(const std::string& path) const
{
    return faccessat(AT_FDCWD, path.c_str(), R_OK, 0) == 0;
}

void NSFileManager::requireCopyableItemAtPath(
    const std::string& path, const FileStatus& status) const
try {
    const Item item = *m_folders->find(path);
    if (!m_isOnFuse) m_isOnFuse = isOnFuse(item.folder);
    if (*m_isOnFuse || status.isSpecial || faccessat(item.folder, item.name.c_str(), R_OK, 0) < 0)
        const CopySource source(*m_folders, path);
} catch (const std::system_error& reason) {
    throw failure(reason, { path }, NSLocalizedString("Errors", "item not read"));
}

std::vector<std::string> NSFileManager::contentsOfDirectoryAtPath(const std::string& path) const
try {
    return namesIn(*find(path));
} catch (const std::system_error& reason) {
    throw failure(reason, { path }, NSLocalizedString("Errors", "folder not read"));
}

std::optional<std::string> NSFileManager::destinationOfSymbolicLinkAtPath(
    const std::string& path) const
try {
    const std::optional<Item> item = find(path, notFound);
    return item ? readLink(*item) : std::nullopt;
} catch (const std::system_error& reason) {
    throw failureToExamine(reason, path);
}

// The kernel reports the path of an open file in one step; realpath() examines each component and
// needs minutes for a path of a thousand folders.
std::string NSFileManager::stringByResolvingSymlinksInPath(const std::string& path) const
try {
    const Item item = *find(path);
    const FileDescriptor file(check(openat, item.folder, item.name.c_str(), O_PATH | O_CLOEXEC));
    const std::string link = "/proc/self/fd/" + std::to_string(file.number());
    const auto target = readLink({ AT_FDCWD, link });
    if (!target) // /proc is not mounted
        throw failureToExamine(errorOf(std::errc::no_such_file_or_directory), link);
    return *target;
} catch (const std::system_error& reason) {
    throw failureToExamine(reason, path);
}

bool NSFileManager::changeCurrentDirectoryPath(const std::string& path) const
{
    return chdir(path.c_str()) == 0;
}

bool NSFileManager::createFileAtPath(const std::string& path) const
{
    if (createNew(path)) return true;
    const bool isThere = errno == EEXIST;
    return isDanglingSymlink(path) ? unlink(path.c_str()) == 0 && createNew(path) : isThere;
}
