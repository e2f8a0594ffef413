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
    Files listInstalled() const;

    // Requires that the listed source, if any, can replace the listed installed bundle: that it is
    // not the same bundle in another file system, that no dangling symlink remains in the place of
    // an entry, and that no two names are equal on a case-insensitive volume. Creates a temporary
    // folder in the installed bundle.
    void requireReplaceable(ConfinedFolder& applications) const;

private:
    Files list(const std::string& parent, const BundleTree::Visitor& visitor) const;
    void checkSource(const BundleTree::Visit& visit);
    void checkInstalled(const BundleTree::Visit& visit) const;
    void requireFreeName(const std::string& path) const;
    void requireOtherFolders(const std::string& probe) const;
    void requireDistinctNames() const;

    const std::string m_applicationDir;
    const std::string m_bundleDir;
    const std::string m_bundle; // its path
    std::string m_sourcePath;
    Files m_source;
    std::map<FileIdentity, std::string> m_sourceFolders;
};
