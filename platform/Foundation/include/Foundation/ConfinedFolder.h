#pragma once

#include <memory>
#include <string>

class OpenFolders;

// Changes what lies beneath one folder, and nothing else, whoever moves, links or mounts what
// meanwhile: a path is followed from that folder, which stays open, through no link and into no
// other volume. One thread at a time. Throws an NSError. Foundation has nothing of the kind.
class ConfinedFolder {
public:
    // Opens `folder`, with which all paths given later begin, for this object alone, until it goes
    // or the process ends. It ends in "/" and may be reached through links. Fails at once where
    // another program holds it locked. One that is missing is opened as soon as
    // createDirectoryAtPath has created it.
    explicit ConfinedFolder(const std::string& folder);
    ~ConfinedFolder();
    ConfinedFolder(const ConfinedFolder&) = delete;
    ConfinedFolder& operator=(const ConfinedFolder&) = delete;

    // Creates a folder, with the default mode. One that is there already is success. Unlike in
    // Foundation, only the confining folder is created with the missing ones on the way to it.
    void createDirectoryAtPath(const std::string& path);

    // Copies a file with its mode (less set-ID bits), owner where allowed, attributes (less
    // capabilities), access control list and times; a link as a link. What the volume doesn't have
    // is left out. The copy is whole or absent under its name, also after a kill. An item in its
    // place is an error, save a link that leads to the same. Unlike in Foundation, folders are
    // refused, as are devices, pipes and sockets. `path` may lie anywhere.
    void copyItemAtPath(const std::string& path, const std::string& toPath);

    // Removes a file, a link (not what it leads to) or a folder with all it holds, but nothing that
    // lies on another volume. Unlike in Foundation, an item that is not there counts as removed.
    void removeItemAtPath(const std::string& path);

    // Returns when all changes are on the disk, those of an earlier run, too.
    void synchronize();

private:
    void open();
    void create();

    const std::string m_folder;
    const std::unique_ptr<OpenFolders> m_sourceFolders;
    std::unique_ptr<OpenFolders> m_folders; // none while the folder is missing
};
