#include "BundleTree.h"

#include <Foundation/NSError.h>

#include <algorithm>
#include <map>

namespace {

// If symlinks lead to folders with more symlinks, the number of entries grows exponentially.
constexpr int mostSymlinksToAFolder = 1000;

struct TreeWalk {
    const BundleTree::Visitor& visitor;
    const NSFileManager fileManager = {};
    std::vector<BundleTree::File> files = {};
    std::vector<std::string> ancestors = {}; // real paths, from the top to the folder being listed
    std::map<std::string, int> symlinks = {}; // by the real path of the folder they lead to

    // `folder` has no "/" at its end, `prefix` has.
    void walk(const std::string& folder, const std::string& prefix, const std::string& realPath);
    std::string targetOf(const std::string& symlink);
};

void TreeWalk::walk(
    const std::string& folder, const std::string& prefix, const std::string& realPath)
{
    ancestors.push_back(realPath);
    const std::string start = folder + "/";
    for (const std::string& name : fileManager.contentsOfDirectoryAtPath(start)) {
        const std::string path = start + name;
        FileStatus status;
        if (!fileManager.fileExistsAtPath(path, &status)) continue;
        if (visitor) visitor({ fileManager, path, status });
        files.push_back({ status.isDirectory, prefix + name });
        if (status.isDirectory)
            walk(path, prefix + name + "/",
                status.isSymlink ? targetOf(path) : realPath + path.substr(folder.size()));
    }
    ancestors.pop_back();
}

// Detects loops by paths: some file systems give all folders the same device and inode.
std::string TreeWalk::targetOf(const std::string& symlink)
{
    std::string folder = fileManager.stringByResolvingSymlinksInPath(symlink);
    if (std::ranges::find(ancestors, folder) != ancestors.end())
        throw NSError(NSLocalizedString("Errors", "symlink loop"), { symlink, folder });
    if (++symlinks[folder] > mostSymlinksToAFolder)
        throw NSError(NSLocalizedString("Errors", "too many symlinks"), { symlink, folder });
    return folder;
}

}

std::vector<BundleTree::File> BundleTree::getFiles(
    const std::string& folder, const std::string& prefix, const Visitor& visitor)
{
    TreeWalk tree { visitor };
    tree.fileManager.contentsOfDirectoryAtPath(folder); // reports its error before any other
    const std::string top = folder.substr(0, folder.size() - 1);
    FileStatus status;
    if (visitor && tree.fileManager.fileExistsAtPath(top, &status))
        visitor({ tree.fileManager, top, status });
    tree.walk(top, prefix, tree.fileManager.stringByResolvingSymlinksInPath(top));
    return std::move(tree.files);
}
