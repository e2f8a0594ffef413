#pragma once

#include <Foundation/NSError.h>

#include <memory>
#include <string>

class OpenFolders;

// Changes what lies beneath one folder, and nothing else, whoever moves, links or mounts what
// meanwhile: a path is followed from that folder, which stays open, through no link and into no
// other volume. One thread at a time. Where an operation answers false it has filled in `error`.
// Foundation has nothing of the kind.
class NSConfinedFileManager {
public:
    // All paths given later begin with `folder`, which ends in "/" and may be reached through
    // links. Nothing is opened yet.
    explicit NSConfinedFileManager(const std::string& folder);
    ~NSConfinedFileManager();
    NSConfinedFileManager(const NSConfinedFileManager&) = delete;
    NSConfinedFileManager& operator=(const NSConfinedFileManager&) = delete;

    // Opens the folder for this manager alone, until it is destroyed or the process ends. Fails at
    // once where another manager has it. To be called first. A folder that is missing is opened as
    // soon as createDirectoryAtPath has created it.
    bool lock(NSError* error);

    // Creates a folder, and the missing ones on the way to it, with the default mode. One that is
    // there already is success.
    bool createDirectoryAtPath(const std::string& path, NSError* error);

    // Copies a file with its mode (less set-ID bits), owner where allowed, attributes (less
    // capabilities) and times; a link as a link; a pipe or socket as such. Mode and times are left
    // out where the volume has none. The copy is whole or absent under its name, also after a kill.
    // An item in its place is an error, save a link that leads to the same. Unlike in Foundation,
    // folders and devices are refused. `path` may lie anywhere.
    bool copyItemAtPath(const std::string& path, const std::string& toPath, NSError* error);

    // Removes a file, a link (not what it leads to) or a folder with all it holds, but nothing that
    // lies on another volume. Unlike in Foundation, an item that is not there counts as removed.
    bool removeItemAtPath(const std::string& path, NSError* error);

    // Returns when all changes are on the disk.
    bool synchronize(NSError* error);

private:
    bool createFolder(NSError* error);

    const std::string m_folder;
    std::unique_ptr<OpenFolders> m_folders; // none while the folder is missing
    const std::unique_ptr<OpenFolders> m_sourceFolders;
};
