#include "BundleTree.h"

#include <Foundation/NSError.h>

#include <map>

namespace {

class TreeWalk {
public:
    explicit TreeWalk(const BundleTree::Visitor& visit) : m_visit(visit) {}

    // `folder` has no "/" at its end, `prefix` has.
    void walk(const std::string& folder, const std::string& prefix);

    std::vector<BundleTree::File> files;

private:
    FileIdentity enter(const std::string& folder);

    const NSFileManager m_fileManager;
    const BundleTree::Visitor& m_visit;
    std::map<FileIdentity, std::string> m_ancestors; // from the first folder to the one being read
};

void TreeWalk::walk(const std::string& folder, const std::string& prefix)
{
    const std::string start = folder + "/";
    const FileIdentity identity = enter(folder); // whose own folder is still open
    for (const std::string& name : m_fileManager.contentsOfDirectoryAtPath(start)) {
        const std::string path = start + name;
        bool isDirectory = false;
        if (!m_fileManager.fileExistsAtPath(path, isDirectory)) continue;
        files.push_back({ isDirectory, prefix + name });
        if (isDirectory) walk(path, prefix + name + "/");
    }
    m_ancestors.erase(identity);
}

// A link may lead back to a folder that holds it. The walk would go round there until the paths are
// too long.
FileIdentity TreeWalk::enter(const std::string& folder)
{
    bool isDirectory = false;
    const auto identity
        = m_fileManager.fileExistsAtPath(folder, isDirectory).value_or(FileIdentity());
    const auto [known, isNew] = m_ancestors.emplace(identity, folder);
    if (!isNew)
        throw NSError(NSLocalizedString("Errors",
                          "The link “%1” couldn’t be followed because it leads "
                          "back to “%2/”, a folder that holds it."),
            { folder, known->second });
    if (m_visit) m_visit(m_fileManager, folder, identity);
    return identity;
}

}

std::vector<BundleTree::File> BundleTree::getFiles(
    const std::string& folder, const std::string& prefix, const Visitor& visit)
{
    TreeWalk tree(visit);
    tree.walk(folder.substr(0, folder.size() - 1), prefix);
    return std::move(tree.files);
}
