#include "Foundation/NSFileManager.h"

#include "Foundation/ErrorPOSIX.h"
#include "Foundation/FileCopyPOSIX.h"

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
        failBecause(error, failure, errno);
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
        failBecause(error, failure, errno);
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
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0)
        return errno == EEXIST;
    close(descriptor);
    return true;
}

bool NSFileManager::createDirectoryAtPath(const std::string& path, NSError* error) const
{
    if (mkdir(path.c_str(), 0777) == 0)
        return true;
    const int number = errno;
    if (number == EEXIST && isFolder(path))
        return true;

    const std::string parent = parentFolder(path);
    const bool parentIsMissing = number == ENOENT || number == ENOTDIR;
    if (parentIsMissing && !parent.empty() && !isFolder(parent))
        return createDirectoryAtPath(parent, error) && createDirectoryAtPath(path, error);
    return failBecause(error, "The folder " + quoted(path) + " couldn’t be created", number);
}

bool NSFileManager::copyItemAtPath(
    const std::string& path, const std::string& toPath, NSError* error) const
{
    return copyItem(path, toPath, error);
}

bool NSFileManager::removeItemAtPath(const std::string& path, NSError* error) const
{
    if (unlink(path.c_str()) == 0)
        return true;
    int number = errno;
    if (number == EISDIR && rmdir(path.c_str()) == 0)
        return true;
    if (number == EISDIR)
        number = errno;
    if (number == ENOTEMPTY) {
        std::error_code code;
        std::filesystem::remove_all(path, code);
        number = code.value();
        if (number == 0)
            return true;
    }
    return failBecause(error, quoted(path) + " couldn’t be removed", number);
}
