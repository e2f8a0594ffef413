#pragma once

#include "BundleTask.h"

// Copies a bundle into the applications folder, entry by entry, in place of the one that is
// installed.
class InstallTask : public BundleTask {
public:
    using BundleTask::BundleTask;

    // Returns when the end is reported. `sourcePath` ends in "/"; the bundle is copied from there.
    void run(const std::string& sourcePath) const;

private:
    void install(const std::string& sourcePath) const;
    void createEntry(NSConfinedFileManager& changes, const std::string& sourcePath,
        const BundleTree::File& file) const;
};
