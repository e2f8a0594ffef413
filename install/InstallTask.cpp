#include "InstallTask.h"

#include "BundleChecks.h"
#include "Logger.h"
#include "UninstallTask.h"

#include <Foundation/NSThread.h>

namespace {

constexpr double dryRunPerFile = 0.1; // seconds

}

void InstallTask::run(const std::string& sourcePath) const
{
    sharedLogger().log("install bundle", Logger::LogLevel::normal);
    runToEnd([&] { install(sourcePath); }, &TaskReport::closeWindow);
}

void InstallTask::install(const std::string& sourcePath) const
{
    using TopFolder = BundleTree::TopFolder;
    const auto files = BundleTree::listBundle(
        sourcePath, bundleDir, TopFolder::include, BundleTree::LinksOut::follow);
    NSConfinedFileManager changes(applicationDir);
    lock(changes);
    auto installed = listInstalled(TopFolder::include);
    BundleChecks::requireApart(sourcePath, files, applicationDir, installed);
    BundleChecks::requireFreeNames(sourcePath, files, applicationDir);
    if (!installed.empty())
        installed.erase(installed.begin()); // the bundle's own folder, which stays
    UninstallTask(*this).removeEntries(changes, installed, nullptr);

    for (std::size_t i = 0; i < files.size(); ++i) {
        createEntry(changes, sourcePath, files[i]);
        report().setProgress(std::int64_t(i), std::int64_t(files.size()));
    }
    synchronize(changes);
}

void InstallTask::createEntry(NSConfinedFileManager& changes, const std::string& sourcePath,
    const BundleTree::File& file) const
{
    const std::string destination = applicationDir + file.path;
    report().showMessage((file.isDirectory ? "mkdir " : " copy ") + destination);
    if (isDryRun()) {
        if (!file.isDirectory)
            NSThread::sleepForTimeInterval(dryRunPerFile);
        return;
    }

    NSError error;
    const bool isDone = file.isDirectory
        ? changes.createDirectoryAtPath(destination, &error)
        : changes.copyItemAtPath(sourcePath + file.path, destination, &error);
    if (!isDone)
        throw error;
}
