#include <Foundation/NSConfinedFileManager.h>

#include "ErrorText.h"
#include "FileCopy.h"
#include "OpenFolders.h"

#include <cassert>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace {

// That there is a folder, or why not.
std::error_code requireFolder(const Place& place)
{
    struct stat status = {};
    const auto error = readStatus(place, status);
    return error || S_ISDIR(status.st_mode) ? error : make_error_code(std::errc::file_exists);
}

// Some volumes have no locks.
bool isLockedByAnother(const FileDescriptor& folder)
{
    return flock(folder.number(), LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK;
}

std::error_code removeItem(OpenFolders& folders, const std::string& path)
{
    Place place;
    auto error = folders.find(path, place);
    if (!error)
        error = errorOf(unlinkat(place.folder, place.name.c_str(), 0));
    if (error == std::errc::is_a_directory)
        error = errorOf(unlinkat(place.folder, place.name.c_str(), AT_REMOVEDIR));
    return isAbsence(error) ? std::error_code() : error;
}

std::error_code removeTree(OpenFolders& folders, const std::string& path)
{
    auto error = removeItem(folders, path);
    if (error != std::errc::directory_not_empty)
        return error;
    Place place;
    std::vector<std::string> names;
    error = folders.find(path + "/", place);
    if (!error)
        error = readNames(place, names);
    for (std::size_t i = 0; !error && i < names.size(); ++i)
        error = removeTree(folders, path + "/" + names[i]);
    return error ? error : removeItem(folders, path);
}

}

NSConfinedFileManager::NSConfinedFileManager(const std::string& folder)
    : m_folder(folder)
    , m_sourceFolders(std::make_unique<OpenFolders>())
{
    assert(folder.ends_with('/'));
}

NSConfinedFileManager::~NSConfinedFileManager() = default;

bool NSConfinedFileManager::lock(NSError* error)
{
    FileDescriptor folder(open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen() && errno == ENOENT)
        return true;
    const std::string failure = "The folder " + quoted(m_folder) + " couldn’t be opened";
    if (!folder.isOpen())
        return failBecause(error, failure, lastError());
    if (isLockedByAnother(folder))
        return fail(error, failure + " because another installer is at work there.");
    m_folders = std::make_unique<OpenFolders>(std::move(folder), m_folder);
    return true;
}

bool NSConfinedFileManager::createFolder(NSError* error)
{
    std::error_code reason;
    std::filesystem::create_directories(m_folder, reason);
    if (!reason && !lock(error))
        return false;
    return m_folders
        || failToChange(
            error, m_folder, "The folder " + quoted(m_folder) + " couldn’t be created", reason);
}

bool NSConfinedFileManager::createDirectoryAtPath(const std::string& path, NSError* error)
{
    if (!m_folders && !createFolder(error))
        return false;
    Place place;
    auto reason = m_folders->find(path, place, OpenFolders::MissingFolders::create);
    if (!reason)
        reason = errorOf(mkdirat(place.folder, place.name.c_str(), 0777));
    if (reason == std::errc::file_exists)
        reason = requireFolder(place);
    return !reason
        || failToChange(error, path, "The folder " + quoted(path) + " couldn’t be created", reason);
}

bool NSConfinedFileManager::copyItemAtPath(
    const std::string& path, const std::string& toPath, NSError* error)
{
    assert(m_folders); // lies in a folder that was created
    return copyItem(*m_sourceFolders, path, *m_folders, toPath, error);
}

bool NSConfinedFileManager::removeItemAtPath(const std::string& path, NSError* error)
{
    const auto reason = m_folders ? removeTree(*m_folders, path) : std::error_code();
    return !reason || failToChange(error, path, quoted(path) + " couldn’t be removed", reason);
}

bool NSConfinedFileManager::synchronize(NSError* error)
{
    const auto reason = m_folders ? errorOf(syncfs(m_folders->top().number())) : std::error_code();
    return !reason
        || failBecause(error,
            "What was changed in " + quoted(m_folder) + " couldn’t be written to the disk", reason);
}
