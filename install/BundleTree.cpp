#include "controller/ViewController.h"

#include "Foundation/NSFileManager.h"

#include <algorithm>
#include <iterator>

// Walks down a tree, each folder before what it holds.
class ViewController::TreeWalk {
public:
    void walk(const std::string& directory, const std::string& prefix);

    std::vector<File> files;

private:
    struct Folder {
        std::optional<NSFileIdentity> identity;
        std::string path;
    };

    void enter(const std::string& directory);

    const NSFileManager& m_fileManager = NSFileManager::defaultManager();
    std::vector<Folder> m_way; // from the first folder to the one being read
};

void ViewController::TreeWalk::walk(const std::string& directory, const std::string& prefix)
{
    enter(directory);
    NSError error;
    const auto names = m_fileManager.contentsOfDirectoryAtPath(directory, &error);
    if (!names)
        throw error;
    for (const std::string& name : *names) {
        const std::string path = directory + name;
        bool isDirectory = false;
        if (!m_fileManager.fileExistsAtPath(path, isDirectory))
            continue;
        files.push_back({ isDirectory, prefix + name });
        if (isDirectory)
            walk(path + "/", prefix + name + "/");
    }
    m_way.pop_back();
}

// Links to folders are followed, and one may lead back to where it was come from. The walk would go
// round there until the paths are too long.
void ViewController::TreeWalk::enter(const std::string& directory)
{
    const auto identity = m_fileManager.fileIdentityAtPath(directory);
    const auto known = std::ranges::find_if(
        m_way, [&](const Folder& folder) { return identity && folder.identity == identity; });
    if (known != m_way.end())
        throw NSError("The link “" + directory.substr(0, directory.size() - 1)
            + "” couldn’t be followed because it leads back to “" + known->path
            + "”, a folder that holds it.");
    m_way.push_back({ identity, directory });
}

std::vector<ViewController::File> ViewController::getFiles(
    const std::string& directory, const std::string& prefix)
{
    TreeWalk tree;
    tree.walk(directory, prefix);
    return std::move(tree.files);
}

std::vector<ViewController::File> ViewController::listBundle(
    const std::string& parent, TopDirectory topDirectory) const
{
    std::vector<File> files;
    if (topDirectory == TopDirectory::include)
        files.push_back({ true, bundleDir });
    std::ranges::move(
        getFiles(parent + bundleDir + "/", bundleDir + "/"), std::back_inserter(files));
    return files;
}
