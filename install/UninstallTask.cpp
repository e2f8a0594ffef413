#include "UninstallTask.h"

#include "Logger.h"

void UninstallTask::run() const
{
    sharedLogger().log("uninstall bundle", Logger::LogLevel::normal);
    const auto progress
        = [this](std::int64_t index, std::int64_t count) { report().setProgress(index, count); };
    runToEnd([&] { removeBundle(BundleTree::TopFolder::include, progress); }, &TaskReport::finish);
}

void UninstallTask::removeBundle(BundleTree::TopFolder topFolder, const Progress& progress) const
{
    if (!isInstalled())
        return;
    NSConfinedFileManager changes(applicationDir);
    lock(changes);
    removeEntries(changes, listInstalled(topFolder), progress);
    synchronize(changes);
}

void UninstallTask::removeEntries(NSConfinedFileManager& changes,
    const std::vector<BundleTree::File>& files, const Progress& progress) const
{
    for (std::size_t k = 0; k < files.size(); ++k) {
        const BundleTree::File& file = files[files.size() - 1 - k];
        const std::string path = applicationDir + file.path;
        report().showMessage("remove " + path + (file.isDirectory ? "/" : ""));
        NSError error;
        if (!isDryRun() && !changes.removeItemAtPath(path, &error))
            throw error;
        if (progress)
            progress(std::int64_t(k), std::int64_t(files.size()));
    }
}
