#pragma once

#include "Preflight.h"
#include "TaskReport.h"

#include <Foundation/ConfinedFolder.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

enum class DryRun { no, yes };
enum class TopFolder { exclude, include };

// Installs a bundle entry by entry, replacing an installed one, or uninstalls it. One run per
// object. install() and uninstall() require a background thread.
class BundleTask {
public:
    // `applicationDir` ends in "/" and contains the installed bundle, named `bundleDir`. A dry run
    // shows the same messages, takes the lock and changes nothing; it skips the checks that write.
    // The report outlives the task.
    BundleTask(
        TaskReport& report, std::string applicationDir, std::string bundleDir, DryRun dryRun);

    // Return when the end is reported. `sourcePath` contains the new bundle. It must end in "/",
    // because names are appended to it; this is not checked.
    void install(const std::string& sourcePath);
    void uninstall();

    using Progress = std::function<void(std::int64_t index, std::int64_t count)>;

    // Removes the installed bundle, if any, each folder after its contents. Calls `progress`, if
    // any, on the same thread after each entry. Any thread. Throws an NSError: from the checks
    // before the first removal, or for the first entry that cannot be removed.
    void removeBundle(TopFolder topFolder, const Progress& progress);

private:
    void run(const std::function<void()>& work, const std::string& incompleteCopy);
    void createEntry(const std::string& sourcePath, const BundleTree::File& file);
    void synchronize();

    TaskReport& m_report;
    const std::string m_applicationDir;
    const std::string m_bundleDir;
    const bool m_isDryRun;
    Preflight m_preflight;
    std::optional<ConfinedFolder> m_applications; // holds the lock
    enum class Copy { unchanged, incomplete, unflushed };
    Copy m_copy = Copy::unchanged; // the state of the installed bundle
};
