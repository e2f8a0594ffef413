#include "BundleTree.h"

#include <Foundation/NSFileManager.h>
#include <Foundation/NSString.h>

#include <algorithm>
#include <optional>

namespace {

// Walks down a tree, each folder before what it holds.
class TreeWalk {
public:
    // Without following a link out of the bundle. Throws where that is one itself.
    void stayIn(const std::string& bundle);

    void walk(const std::string& folder, const std::string& prefix);

    std::vector<BundleTree::File> files;

private:
    struct Ancestor {
        std::optional<NSFileIdentity> identity;
        std::string path;
    };

    void enter(const std::string& folder);
    void requireInside(const std::string& folder) const;

    const NSFileManager m_fileManager;
    std::optional<std::string> m_bundle; // its real path, followed by "/"
    std::vector<Ancestor> m_ancestors; // from the first folder to the one being read
};

void TreeWalk::stayIn(const std::string& bundle)
{
    if (const auto destination = m_fileManager.destinationOfSymbolicLinkAtPath(bundle))
        throw NSError("“" + bundle + "” couldn’t be changed because it is a link, to “"
            + *destination + "”.");
    m_bundle = NSString::stringByResolvingSymlinksInPath(bundle) + "/";
}

void TreeWalk::requireInside(const std::string& folder) const
{
    if (!m_bundle || !m_fileManager.destinationOfSymbolicLinkAtPath(folder))
        return;
    const std::string destination = NSString::stringByResolvingSymlinksInPath(folder);
    if (!destination.starts_with(*m_bundle))
        throw NSError("“" + m_bundle->substr(0, m_bundle->size() - 1)
            + "” couldn’t be changed because the link “" + folder + "” leads out of it, to “"
            + destination + "”.");
}

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
        const auto exists = m_fileManager.fileExistsAtPath(path, isDirectory, &error);
        if (!exists)
            throw error;
        if (!*exists)
            continue;
        files.push_back({ isDirectory, prefix + name });
        if (!isDirectory)
            continue;
        requireInside(path);
        walk(path + "/", prefix + name + "/");
    }
    m_ancestors.pop_back();
}

// Links to folders are followed, and one may lead back to one of its ancestors. The walk would go
// round there until the paths are too long.
void TreeWalk::enter(const std::string& folder)
{
    const auto identity = m_fileManager.fileIdentityAtPath(folder, nullptr);
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
    const std::string& parent, const std::string& name, TopFolder topFolder, LinksOut linksOut)
{
    TreeWalk tree;
    if (linksOut == LinksOut::refuse)
        tree.stayIn(parent + name);
    if (topFolder == TopFolder::include)
        tree.files.push_back({ true, name });
    tree.walk(parent + name + "/", name + "/");
    return std::move(tree.files);
}
