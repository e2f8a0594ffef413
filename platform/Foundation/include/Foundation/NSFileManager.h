#pragma once

#include <Foundation/NSURL.h>

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class OpenFolders;
struct Item;

// Which file an existing path leads to, by volume and number: no two files have the same, and one
// file has it under every path.
using FileIdentity = std::pair<unsigned long, unsigned long>;

// Unlike in Foundation, naming a property of a volume fetches nothing: it could only be had from
// the volume itself, which may be out of reach.
enum NSURLResourceKey {
    NSURLVolumeNameKey,
    NSURLVolumeIsRemovableKey,
    NSURLVolumeIsEjectableKey,
    NSURLVolumeIsReadOnlyKey,
};

enum NSVolumeEnumerationOptions { NSVolumeEnumerationSkipHiddenVolumes = 1 << 1 };

// Looks at the file system. Paths are bytes. What changes a tree is ConfinedFolder. What fails
// throws an NSError, unless told otherwise.
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
    // Foundation, what can't be looked at is neither there nor absent, but an error; and the answer
    // may be which file it is.
    bool fileExistsAtPath(const std::string& path) const;
    std::optional<FileIdentity> fileExistsAtPath(const std::string& path, bool& isDirectory) const;

    // The names in a folder, hidden ones included, in the file system's order.
    std::vector<std::string> contentsOfDirectoryAtPath(const std::string& path) const;

    // Where a link leads, as it stands in it. Unlike in Foundation, none for what is no link.
    std::optional<std::string> destinationOfSymbolicLinkAtPath(const std::string& path) const;

    // `path` with all links in it followed, or as it stands where nothing is there.
    std::string stringByResolvingSymlinksInPath(const std::string& path) const;

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

    Item find(const std::string& path, std::initializer_list<int> expected = {}) const;

    const std::unique_ptr<OpenFolders> m_folders; // or none
};
