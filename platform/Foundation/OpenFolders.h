#pragma once

#include "FileDescriptor.h"
#include "Place.h"

#include <deque>
#include <string>

// Finds items relative to open folders. The folders on the way to an item stay open for the next
// one, which as a rule lies nearby: then the depth of a tree costs nothing. One thread at a time.
class OpenFolders {
public:
    // Paths are followed as the system does it, through links and from one volume to the next.
    OpenFolders() = default;

    // Paths begin with `topPath`, that of `top`, and stay beneath it, whoever moves or links what
    // meanwhile: a link on the way is errc::too_many_symbolic_link_levels, a mount point
    // errc::cross_device_link.
    OpenFolders(FileDescriptor top, const std::string& topPath);

    enum class MissingFolders { fail, create };

    // Answers where the item at `path` is to be looked for; a path that ends in "/" is that of the
    // folder itself. Valid until the next call.
    std::error_code find(
        const std::string& path, Place& place, MissingFolders missing = MissingFolders::fail);

    const FileDescriptor& top() const { return m_top; }

private:
    struct Folder {
        std::size_t end; // of its path in m_path
        FileDescriptor descriptor;
    };

    int current() const;
    std::size_t reached() const { return m_folders.empty() ? m_start : m_folders.back().end; }
    void leave(const std::string& path);
    std::error_code enter(const std::string& path, MissingFolders missing);
    std::error_code step(const std::string& name, std::size_t end, MissingFolders missing);
    FileDescriptor open(const std::string& name) const;

    const FileDescriptor m_top {}; // not open where paths may lead anywhere
    const std::size_t m_start = 0; // in a path, of what is followed
    std::string m_path; // to the last of the folders
    std::deque<Folder> m_folders; // each but the first lies in the one before it
};
