#pragma once

#include "BundleTree.h"
#include "TaskReport.h"

#include <Foundation/ConfinedFolder.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

enum class DryRun { no, yes };
enum class TopFolder { exclude, include };

// Puts a bundle into the applications folder, entry by entry, in place of the one that is
// installed, or removes that. One task a run, on one thread, which is not the main thread.
class BundleTask {
public:
    // `applicationDir`, which ends in "/", is the folder with the installed bundle, `bundleDir` the
    // bundle's name. A dry run shows everything and changes nothing. The report outlives the task.
    BundleTask(
        TaskReport& report, std::string applicationDir, std::string bundleDir, DryRun dryRun);

    // Return when the end is reported. `sourcePath` ends in "/"; the bundle is copied from there.
    void install(const std::string& sourcePath);
    void uninstall();

    using Progress = std::function<void(std::int64_t index, std::int64_t count)>;

    // The removal alone, the deepest entry first; no bundle is no failure. `progress`, if any, is
    // called on the caller's thread after each entry. Any thread. Throws an NSError: before the
    // first removal, where that would lead out of the bundle, or take what is to be installed; else
    // at the first entry that can't be removed.
    void removeBundle(TopFolder topFolder, const Progress& progress);

private:
    using Files = std::vector<BundleTree::File>;

    void runToEnd(const std::function<void()>& work, void (TaskReport::*lastStep)());
    Files listBundle(const std::string& parent, const BundleTree::Visitor& visit) const;
    Files listInstalled() const;
    void requireOwnFolder(
        const NSFileManager& fileManager, const std::string& folder, FileIdentity identity) const;
    void requireFreeName(const std::string& sourcePath, const BundleTree::File& file) const;
    void createEntry(const std::string& sourcePath, const BundleTree::File& file);
    ConfinedFolder& changes();
    void synchronize();

    TaskReport& m_report;
    const std::string m_applicationDir;
    const std::string m_bundleDir;
    const bool m_isDryRun;
    std::optional<ConfinedFolder> m_changes; // from its first use on no other installer is at work
    std::map<FileIdentity, std::string> m_sourceFolders;
};
