#include "BundleTree.h"

#include <Foundation/NSFileManager.h>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

// Walks down a tree, each folder before what it holds.
class TreeWalk {
public:
    void walk(const std::string& folder, const std::string& prefix);

    std::vector<BundleTree::File> files;

private:
    struct Ancestor {
        std::optional<NSFileIdentity> identity;
        std::string path;
    };

    void enter(const std::string& folder);

    const NSFileManager& m_fileManager = NSFileManager::defaultManager();
    std::vector<Ancestor> m_ancestors; // from the first folder to the one being read
};

void TreeWalk::walk(const std::string& folder, const std::string& prefix)
{
    enter(folder);
    NSError error;
    const auto names = m_fileManager.contentsOfDirectoryAtPath(folder, &error);
    if (!names)
        throw error;
    for (const std::string& name : *names) {
        const std::string path = folder + name;
        bool isDirectory = false;
        if (!m_fileManager.fileExistsAtPath(path, isDirectory))
            continue;
        files.push_back({ isDirectory, prefix + name });
        if (isDirectory)
            walk(path + "/", prefix + name + "/");
    }
    m_ancestors.pop_back();
}

// Links to folders are followed, and one may lead back to one of its ancestors. The walk would go
// round there until the paths are too long.
void TreeWalk::enter(const std::string& folder)
{
    const auto identity = m_fileManager.fileIdentityAtPath(folder);
    const auto known = std::ranges::find_if(m_ancestors,
        [&](const Ancestor& ancestor) { return identity && ancestor.identity == identity; });
    if (known != m_ancestors.end())
        throw NSError("The link “" + folder.substr(0, folder.size() - 1)
            + "” couldn’t be followed because it leads back to “" + known->path
            + "”, a folder that holds it.");
    m_ancestors.push_back({ identity, folder });
}

}

std::vector<BundleTree::File> BundleTree::getFiles(
    const std::string& folder, const std::string& prefix)
{
    TreeWalk tree;
    tree.walk(folder, prefix);
    return std::move(tree.files);
}

std::vector<BundleTree::File> BundleTree::listBundle(
    const std::string& parent, const std::string& name, TopFolder topFolder)
{
    std::vector<File> files;
    if (topFolder == TopFolder::include)
        files.push_back({ true, name });
    std::ranges::move(getFiles(parent + name + "/", name + "/"), std::back_inserter(files));
    return files;
}
