#pragma once

#include "FileDescriptor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// An item, which need not be there: a name in an open folder, which stays the same folder whatever
// happens to its path meanwhile. The descriptor is someone else's; AT_FDCWD with a path will do.
struct Item {
    int folder;
    std::string name;
};

// Finds items by their paths. The folders on the way to one stay open for the next, which as a rule
// lies nearby: then the depth of a tree costs nothing. One thread at a time. Throws a
// std::system_error.
class OpenFolders {
public:
    // How a path is followed: as the system does it; or never out of the folder where it begins,
    // through no link and into no other volume.
    enum class Way { anywhere, beneath };

    // Paths begin with `path`, that of `folder`, which ends in "/".
    OpenFolders(FileDescriptor folder, const std::string& path, Way way);

    // Paths begin and lead anywhere.
    OpenFolders();

    // Where the item at `path` is to be looked for, until the next call; a path that ends in "/" is
    // that of the folder itself. The folder is -1 where opening one on the way fails with one of
    // the errors that are expected.
    Item find(const std::string& path, std::initializer_list<int> expected = {});

    // Of the folder in which all paths begin.
    int top() const { return m_folders.front().descriptor.number(); }

private:
    struct Folder {
        std::string path;
        FileDescriptor descriptor;
    };

    const Way m_way;
    std::vector<Folder> m_folders; // the first always; then each lies in the one before it
};

// For such flags as open() takes. Answers none for an error that is expected.
FileDescriptor openFolder(const Item& folder, std::uint64_t flags, OpenFolders::Way way,
    std::initializer_list<int> expected = {});

// The names in a folder, without "." and "..", in the file system's order.
std::vector<std::string> namesIn(const Item& folder);

// Where a link leads, as it stands in it; none for what is no link, or not there.
std::optional<std::string> readLink(const Item& link);
