#pragma once

#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>

#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

class OpenFolders;
struct Place;
struct stat;

// Which file an existing path leads to: no two files have the same, and one file has it under
// every path.
struct NSFileIdentity {
    unsigned long systemNumber = 0;
    unsigned long systemFileNumber = 0;

    bool operator==(const NSFileIdentity&) const = default;
    bool operator<(const NSFileIdentity& other) const
    {
        return std::tie(systemNumber, systemFileNumber)
            < std::tie(other.systemNumber, other.systemFileNumber);
    }
};

// Unlike in Foundation, naming a property of a volume fetches nothing: it could only be had from
// the volume itself, which may be out of reach.
enum NSURLResourceKey {
    NSURLVolumeNameKey,
    NSURLVolumeIsRemovableKey,
    NSURLVolumeIsEjectableKey,
    NSURLVolumeIsReadOnlyKey,
};

enum NSVolumeEnumerationOptions { NSVolumeEnumerationSkipHiddenVolumes = 1 << 1 };

// Looks at the file system. Paths are bytes. What changes a tree is NSConfinedFileManager.
class NSFileManager {
public:
    // Safe on any thread.
    static const NSFileManager& defaultManager();

    // A manager of one's own keeps folders open that it has been to, so that the next item costs
    // the same however deep it lies. One thread at a time.
    NSFileManager();
    ~NSFileManager();
    NSFileManager(const NSFileManager&) = delete;
    NSFileManager& operator=(const NSFileManager&) = delete;

    // Whether something is there. Follow links: a link that leads nowhere does not exist. Unlike in
    // Foundation, what can't be looked at is neither there nor absent: the answer is none, and
    // `error`, where it is wanted, is filled in.
    std::optional<bool> fileExistsAtPath(const std::string& path, NSError* error) const;
    std::optional<bool> fileExistsAtPath(
        const std::string& path, bool& isDirectory, NSError* error) const;

    // The names in a folder, hidden ones included, in the file system's order; none, and `error`
    // filled in, where it can't be read.
    std::optional<std::vector<std::string>> contentsOfDirectoryAtPath(
        const std::string& path, NSError* error) const;

    // Where a link leads, as it stands in it. Unlike in Foundation without an error: none for what
    // is no link.
    std::optional<std::string> destinationOfSymbolicLinkAtPath(const std::string& path) const;

    // Follows links. None, and `error` filled in, where nothing is there or can be looked at.
    std::optional<NSFileIdentity> fileIdentityAtPath(const std::string& path, NSError* error) const;

    // The mount points of the volumes that are not hidden, in the order of the mount table. Never
    // waits for a volume.
    std::vector<NSURL> mountedVolumeURLsIncludingResourceValuesForKeys(
        const std::vector<NSURLResourceKey>& keys, NSVolumeEnumerationOptions options) const;

    // Makes a folder the one from which relative paths start, for the whole process. Whether it
    // could.
    bool changeCurrentDirectoryPath(const std::string& path) const;

    // Creates an empty file. Unlike Foundation, one that is there already, or appears meanwhile,
    // keeps its content, and that is success. A link that leads nowhere is replaced.
    bool createFileAtPath(const std::string& path) const;

private:
    explicit NSFileManager(std::unique_ptr<OpenFolders> folders);

    std::error_code find(const std::string& path, Place& place) const;
    std::error_code followStatus(const std::string& path, struct stat& status) const;

    const std::unique_ptr<OpenFolders> m_folders; // or none
};
