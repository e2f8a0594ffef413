#include <Foundation/NSFileManager.h>

#include "ErrorText.h"
#include "FileCopy.h"
#include "FileDescriptor.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

bool isFolder(const std::string& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string parentFolder(const std::string& path)
{
    return std::filesystem::path(path).parent_path().string();
}

}

const NSFileManager& NSFileManager::defaultManager()
{
    static const NSFileManager manager;
    return manager;
}

bool NSFileManager::fileExistsAtPath(const std::string& path) const
{
    bool isDirectory = false;
    return fileExistsAtPath(path, isDirectory);
}

bool NSFileManager::fileExistsAtPath(const std::string& path, bool& isDirectory) const
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        return false;
    isDirectory = S_ISDIR(status.st_mode);
    return true;
}

std::optional<std::vector<std::string>> NSFileManager::contentsOfDirectoryAtPath(
    const std::string& path, NSError* error) const
{
    const std::string failure = "The folder " + quoted(path) + " couldn’t be opened";
    const std::unique_ptr<DIR, CloseFolder> folder(opendir(path.c_str()));
    if (!folder) {
        failBecause(error, failure, lastError());
        return std::nullopt;
    }

    std::vector<std::string> names;
    errno = 0;
    while (const dirent* entry = readdir(folder.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    if (errno != 0) {
        failBecause(error, failure, lastError());
        return std::nullopt;
    }
    return names;
}

std::optional<NSFileIdentity> NSFileManager::fileIdentityAtPath(const std::string& path) const
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return NSFileIdentity { status.st_dev, status.st_ino };
}

bool NSFileManager::changeCurrentDirectoryPath(const std::string& path) const
{
    return chdir(path.c_str()) == 0;
}

bool NSFileManager::createFileAtPath(const std::string& path) const
{
    const FileDescriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    return file.isOpen() || errno == EEXIST;
}

bool NSFileManager::createDirectoryAtPath(const std::string& path, NSError* error) const
{
    const auto reason = errorOf(mkdir(path.c_str(), 0777));
    if (!reason || (reason == std::errc::file_exists && isFolder(path)))
        return true;

    const std::string parent = parentFolder(path);
    const bool parentIsMissing
        = reason == std::errc::no_such_file_or_directory || reason == std::errc::not_a_directory;
    if (parentIsMissing && !parent.empty() && !isFolder(parent))
        return createDirectoryAtPath(parent, error) && createDirectoryAtPath(path, error);
    return failBecause(error, "The folder " + quoted(path) + " couldn’t be created", reason);
}

bool NSFileManager::copyItemAtPath(
    const std::string& path, const std::string& toPath, NSError* error) const
{
    return copyItem(path, toPath, error);
}

bool NSFileManager::removeItemAtPath(const std::string& path, NSError* error) const
{
    auto reason = errorOf(unlink(path.c_str()));
    if (reason == std::errc::is_a_directory)
        reason = errorOf(rmdir(path.c_str()));
    if (reason == std::errc::directory_not_empty) {
        reason.clear();
        std::filesystem::remove_all(path, reason);
    }
    return !reason || failBecause(error, quoted(path) + " couldn’t be removed", reason);
}
