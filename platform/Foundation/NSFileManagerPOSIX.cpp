#include <Foundation/NSFileManager.h>

#include "ErrorText.h"
#include "OpenFolders.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr const char* failedLook = " couldn’t be looked at";

bool createNew(const std::string& path)
{
    return FileDescriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666))
        .isOpen();
}

}

NSFileManager::NSFileManager(std::unique_ptr<OpenFolders> folders)
    : m_folders(std::move(folders))
{
}

NSFileManager::NSFileManager()
    : NSFileManager(std::make_unique<OpenFolders>())
{
}

NSFileManager::~NSFileManager() = default;

const NSFileManager& NSFileManager::defaultManager()
{
    static const NSFileManager manager(nullptr);
    return manager;
}

std::error_code NSFileManager::find(const std::string& path, Place& place) const
{
    place = { AT_FDCWD, path };
    return m_folders ? m_folders->find(path, place) : std::error_code();
}

std::error_code NSFileManager::followStatus(const std::string& path, struct stat& status) const
{
    Place place;
    const auto error = find(path, place);
    return error ? error : errorOf(fstatat(place.folder, place.name.c_str(), &status, 0));
}

std::optional<bool> NSFileManager::fileExistsAtPath(const std::string& path, NSError* error) const
{
    bool isDirectory = false;
    return fileExistsAtPath(path, isDirectory, error);
}

std::optional<bool> NSFileManager::fileExistsAtPath(
    const std::string& path, bool& isDirectory, NSError* error) const
{
    struct stat status = {};
    const auto reason = followStatus(path, status);
    isDirectory = S_ISDIR(status.st_mode);
    if (!reason)
        return true;
    if (isAbsence(reason))
        return false;
    failBecause(error, quoted(path) + failedLook, reason);
    return std::nullopt;
}

std::optional<std::vector<std::string>> NSFileManager::contentsOfDirectoryAtPath(
    const std::string& path, NSError* error) const
{
    Place place;
    std::vector<std::string> names;
    auto reason = find(path, place);
    if (!reason)
        reason = readNames(place, names);
    if (!reason)
        return names;
    failBecause(error, "The folder " + quoted(path) + " couldn’t be opened", reason);
    return std::nullopt;
}

std::optional<std::string> NSFileManager::destinationOfSymbolicLinkAtPath(
    const std::string& path) const
{
    Place place;
    std::string destination;
    if (find(path, place) || readLink(place, destination))
        return std::nullopt;
    return destination;
}

std::optional<NSFileIdentity> NSFileManager::fileIdentityAtPath(
    const std::string& path, NSError* error) const
{
    struct stat status = {};
    if (const auto reason = followStatus(path, status)) {
        failBecause(error, quoted(path) + failedLook, reason);
        return std::nullopt;
    }
    return NSFileIdentity { status.st_dev, status.st_ino };
}

bool NSFileManager::changeCurrentDirectoryPath(const std::string& path) const
{
    return chdir(path.c_str()) == 0;
}

bool NSFileManager::createFileAtPath(const std::string& path) const
{
    if (createNew(path))
        return true;
    const bool isThere = errno == EEXIST;
    const bool leadsNowhere = isThere && destinationOfSymbolicLinkAtPath(path)
        && fileExistsAtPath(path, nullptr) == false;
    return leadsNowhere ? unlink(path.c_str()) == 0 && createNew(path) : isThere;
}
