#pragma once

#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>

#include <optional>
#include <string>
#include <vector>

// Which file an existing path leads to: no two files have the same, and one file has it under
// every path.
struct NSFileIdentity {
    unsigned long systemNumber = 0;
    unsigned long systemFileNumber = 0;

    bool operator==(const NSFileIdentity&) const = default;
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

// The file system. Paths are bytes; where an operation answers false or none it has filled in
// `error`. Safe on any thread.
class NSFileManager {
public:
    static const NSFileManager& defaultManager();

    // Follow links: a link to nothing does not exist.
    bool fileExistsAtPath(const std::string& path) const;
    bool fileExistsAtPath(const std::string& path, bool& isDirectory) const;

    // The names in a folder, hidden ones included, in the file system's order.
    std::optional<std::vector<std::string>> contentsOfDirectoryAtPath(
        const std::string& path, NSError* error) const;

    // Follows links. None where nothing is there.
    std::optional<NSFileIdentity> fileIdentityAtPath(const std::string& path) const;

    // The mount points of the volumes that are not hidden, in the order of the mount table. Never
    // waits for a volume.
    std::vector<NSURL> mountedVolumeURLsIncludingResourceValuesForKeys(
        const std::vector<NSURLResourceKey>& keys, NSVolumeEnumerationOptions options) const;

    // Makes a folder the one from which relative paths start, for the whole process. Whether it
    // could.
    bool changeCurrentDirectoryPath(const std::string& path) const;

    // Creates an empty file. Unlike Foundation, one that is there already, or appears meanwhile,
    // keeps its content, and that is success.
    bool createFileAtPath(const std::string& path) const;

    // Creates a folder, and the missing ones on the way to it, with the default mode. One that is
    // there already is success.
    bool createDirectoryAtPath(const std::string& path, NSError* error) const;

    // Copies a file with its mode (less set-ID bits), owner where allowed, attributes and times; a
    // link as a link; a pipe, socket or device as such. The copy is whole or absent under its name,
    // also after a kill. An item in its place is an error. Unlike Foundation, a folder is one, too.
    bool copyItemAtPath(const std::string& path, const std::string& toPath, NSError* error) const;

    // Removes a file, a link (not what it leads to) or a folder with all it holds.
    bool removeItemAtPath(const std::string& path, NSError* error) const;
};
