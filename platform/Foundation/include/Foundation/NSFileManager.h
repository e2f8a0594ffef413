#pragma once

#include <Foundation/NSURL.h>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class OpenFolders;
struct Item;

// Device and inode number. Equal identities usually mean the same file, but some FUSE file systems
// have no inode numbers. A file that is visible in two file systems (bindfs, overlay) has two.
using FileIdentity = std::pair<std::uint64_t, std::uint64_t>;

struct FileStatus {
    bool isDirectory = false;
    bool isSpecial = false; // a device, a FIFO or a socket
    bool isSymlink = false; // and the other members describe its target
    FileIdentity identity;
};

// Unlike in Foundation, no property of a volume is fetched: an unreachable volume would block.
enum NSURLResourceKey {
    NSURLVolumeNameKey,
    NSURLVolumeIsRemovableKey,
    NSURLVolumeIsEjectableKey,
    NSURLVolumeIsReadOnlyKey,
};

enum NSVolumeEnumerationOptions { NSVolumeEnumerationSkipHiddenVolumes = 1 << 1 };

// Reads the file system. The only changes are the working directory and new empty files;
// ConfinedFolder changes the bundle. Paths are bytes. Throws an NSError if a system call fails,
// unless stated otherwise.
class NSFileManager {
public:
    // Safe on any thread.
    static const NSFileManager& defaultManager();

    // A separate manager caches the open folders of the last path, so that an entry costs the same
    // at any depth. One thread at a time.
    NSFileManager();
    ~NSFileManager();
    NSFileManager(const NSFileManager&) = delete;
    NSFileManager& operator=(const NSFileManager&) = delete;

    // Returns whether `path` exists, following symlinks; a dangling symlink does not exist. Unlike
    // Foundation, throws on any stat error except "not found": ENOENT, ENOTDIR and ELOOP, so a
    // symlink to itself does not exist either. If `path` exists, sets `status`, if any.
    bool fileExistsAtPath(const std::string& path, FileStatus* status = nullptr) const;

    // Returns whether the user has permission to read `path`, following symlinks. Throws nothing.
    bool isReadableFileAtPath(const std::string& path) const;

    // Not in Foundation: throws if ConfinedFolder::copyItemAtPath could not open the file or would
    // refuse it as a device, FIFO or socket. Examines its permissions, and if the first such file
    // is on FUSE, opens all, because some FUSE file systems refuse that in spite of the
    // permissions. Requires a separate manager.
    void requireCopyableItemAtPath(const std::string& path, const FileStatus& status) const;

    // Returns the names in a folder, hidden ones included, in the order of the file system.
    std::vector<std::string> contentsOfDirectoryAtPath(const std::string& path) const;

    // Returns the target of a symlink, unchanged. Unlike Foundation, returns nothing if `path` is
    // not a symlink or does not exist.
    std::optional<std::string> destinationOfSymbolicLinkAtPath(const std::string& path) const;

    // Returns the absolute path of an existing item, without symlinks. Unlike Foundation, throws if
    // it cannot be determined (for example if it exceeds 4,095 bytes).
    std::string stringByResolvingSymlinksInPath(const std::string& path) const;

    // Returns the mount points of the volumes that are not hidden, in the order of the mount table.
    // Never blocks on a volume. Returns nothing if the table cannot be read.
    std::vector<NSURL> mountedVolumeURLsIncludingResourceValuesForKeys(
        const std::vector<NSURLResourceKey>& keys, NSVolumeEnumerationOptions options) const;

    // Sets the working directory of the process. Returns whether it succeeded.
    bool changeCurrentDirectoryPath(const std::string& path) const;

    // Creates an empty file and returns whether it exists afterwards; throws nothing. Unlike
    // Foundation, leaves an existing file unchanged and replaces a dangling symlink.
    bool createFileAtPath(const std::string& path) const;

private:
    explicit NSFileManager(std::unique_ptr<OpenFolders> cache);

    std::optional<Item> find(
        const std::string& path, std::initializer_list<int> expected = {}) const;

    const std::unique_ptr<OpenFolders> m_folders; // nullptr: no cache
    mutable std::optional<bool> m_isOnFuse;
};
