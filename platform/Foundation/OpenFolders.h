#pragma once

#include "FileDescriptor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// An entry of a folder, existing or not: its name in an open folder, which remains the same folder
// if its path is renamed or replaced. Does not own the descriptor. AT_FDCWD and a path also work.
struct Item {
    int folder;
    std::string name;
};

// Finds items by their paths. Caches the open folders of the last path for the next one, which is
// usually nearby, so that an item costs the same at any depth. One thread at a time. Throws a
// std::system_error.
class OpenFolders {
public:
    // How a path is resolved: by the rules of the system; or never above the root folder, through
    // no symlink and across no mount point.
    enum class Scope { anywhere, beneath };

    // All paths begin with `path`, the path of `root`, which ends in "/".
    OpenFolders(FileDescriptor root, const std::string& path, Scope scope);

    // Any path is allowed.
    OpenFolders();

    // Returns the item at `path`, valid until the next call; a path that ends in "/" means the
    // folder itself. Returns nothing if opening a folder on the path fails with an expected error.
    std::optional<Item> find(const std::string& path, std::initializer_list<int> expected = {});

    // Returns the descriptor of the root folder.
    int root() const { return m_folders.front().descriptor.number(); }

private:
    struct Folder {
        std::string path;
        FileDescriptor descriptor;
    };

    int deepest() const;

    const Scope m_scope;
    std::vector<Folder> m_folders; // the root, never closed; then folders along the last path
};

// Opens a folder with flags of open(). Returns a closed descriptor for an expected error.
FileDescriptor openFolder(const Item& folder, std::uint64_t flags, OpenFolders::Scope scope,
    std::initializer_list<int> expected = {});

// Returns the names in a folder, without "." and "..", in the order of the file system.
std::vector<std::string> namesIn(const Item& folder);

// Returns whether an open folder is on a FUSE file system.
bool isOnFuse(int folder);

// Returns the target of a symlink, unchanged; nothing if `item` is not a symlink or does not exist.
std::optional<std::string> readLink(const Item& item);
