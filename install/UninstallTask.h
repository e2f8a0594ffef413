#pragma once

#include "BundleTask.h"

#include <cstdint>
#include <functional>

// Removes the installed bundle, entry by entry, the deepest first.
class UninstallTask : public BundleTask {
public:
    using BundleTask::BundleTask;
    explicit UninstallTask(const BundleTask& task)
        : BundleTask(task)
    {
    }

    // Returns when the end is reported.
    void run() const;

    using Progress = std::function<void(std::int64_t index, std::int64_t count)>;

    // The removal alone; no bundle is no failure. `progress`, if any, is called on the caller's
    // thread after each entry. Throws an NSError at the first that can't be removed.
    void removeBundle(BundleTree::TopFolder topFolder, const Progress& progress) const;

    // The same of entries that were listed.
    void removeEntries(NSConfinedFileManager& changes, const std::vector<BundleTree::File>& files,
        const Progress& progress) const;
};
