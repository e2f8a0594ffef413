#pragma once

#include "BundleTree.h"

#include <Foundation/ConfinedFolder.h>

#include <map>
#include <string>
#include <vector>

// The checks before the first change: the installed bundle stays complete if the new one cannot be
// installed. If a check fails, the function throws an NSError. One run per object, on one thread.
class Preflight {
public:
    using Files = std::vector<BundleTree::File>;

    // `applicationDir` ends in "/".
    Preflight(const std::string& applicationDir, const std::string& bundleDir);

    // Returns the bundle in `sourcePath`, which ends in "/", its top folder first. Requires that
    // every file can be read and is neither a device, a FIFO nor a socket.
    const Files& listSource(const std::string& sourcePath);

    // Returns the installed bundle, its top folder first, or nothing if there is none. Requires
    // that it is not a symlink, contains no symlink to a folder outside, and shares no folder with
    // the listed source. Limit: if both are on one file system that gives all folders the same
    // inode (some FUSE file systems), every replacement is refused.
    Files listInstalled();

    // Requires that the listed source, if any, can replace the listed installed bundle: that they
    // share no folder through another file system, that no dangling symlink remains in the place of
    // an entry, and that no two names are equal on a case-insensitive volume. Creates temporary
    // folders in the installed bundle; a check that requires them is skipped if the volume is full.
    void requireReplaceable(ConfinedFolder& applications) const;

private:
    Files list(const std::string& parent, const BundleTree::Visitor& visitor) const;
    void checkInstalled(const BundleTree::Visit& visit);
    void requireFreeNames() const;
    void requireOtherFolders(const std::string& probe) const;
    void requireDistinctNames(ConfinedFolder& applications, const std::string& folder) const;

    const std::string m_applicationDir;
    const std::string m_bundleDir;
    const std::string m_bundle; // its path
    std::string m_sourcePath;
    Files m_source;
    std::map<FileIdentity, std::string> m_sourceFolders;
    std::vector<std::string> m_installedFolders; // paths
};
