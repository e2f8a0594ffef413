#pragma once

#include <memory>
#include <string>
#include <vector>

class OpenFolders;

// Changes what is beneath one folder and nothing else, even in a race with processes that rename,
// replace or mount things during the run: every path is resolved beneath the open folder, through
// no symlink and across no mount point. Paths begin with the folder's own. One thread at a time.
// Throws an NSError. Not in Foundation, but with the names of NSFileManager.
class ConfinedFolder {
public:
    // Opens `folder`, which ends in "/" and may be reached through symlinks, and locks it if the
    // file system supports locks. Fails at once if another process holds the lock. A missing folder
    // is created by createDirectoryAtPath, or opened and locked by removeItemAtPath if it exists
    // by then. The lock ends with the object or the process.
    explicit ConfinedFolder(const std::string& folder);
    ~ConfinedFolder();
    ConfinedFolder(const ConfinedFolder&) = delete;
    ConfinedFolder& operator=(const ConfinedFolder&) = delete;

    // Creates a folder with mode 0777 & ~umask, and the confining folder if that is missing. With
    // intermediate directories, an existing folder is a success. Unlike in Foundation, a missing
    // parent inside the confining folder is an error.
    enum class WithIntermediateDirectories { no, yes };
    void createDirectoryAtPath(const std::string& path, WithIntermediateDirectories intermediates);

    // Creates an empty folder for a check, to be removed before synchronize(). Creates nothing if
    // the volume is full, or if a folder on the path is missing or a symlink.
    void createTemporaryDirectoryAtPath(const std::string& path);

    // Copies a file with mode (without set-ID bits), owner and group (both or neither), xattrs
    // (without capabilities), ACL and times, or a symlink as a symlink. Metadata that the volume or
    // the user's permissions cannot keep is omitted. The copy is complete or absent, also after
    // SIGKILL; on a file system without O_TMPFILE a hidden temporary file may remain. An existing
    // item is an error, except a symlink with the same target. Unlike Foundation, refuses folders,
    // devices, FIFOs and sockets. `path` may be anywhere.
    void copyItemAtPath(const std::string& path, const std::string& toPath);

    // Removes a file, a symlink (not its target) or a folder with its contents. Fails at a mount
    // point. Unlike in Foundation, a missing item, or one behind a symlink, is a success.
    void removeItemAtPath(const std::string& path);

    // Flushes all changes of the file system to the disk, those of an earlier run included, with
    // one call. On a volume that ignores this call, flushes each item that this object has created,
    // and then all file systems of the machine.
    void synchronize();

private:
    void open();
    void create();

    const std::string m_folder;
    const std::unique_ptr<OpenFolders> m_sourceFolders;
    std::unique_ptr<OpenFolders> m_folders; // nullptr while the folder is missing
    bool m_ignoresSyncfs = false; // the volume
    std::vector<std::string> m_unflushed; // paths, on such a volume only
};
