#include "InstallTask.h"

#include "Logger.h"
#include "UninstallTask.h"

#include <Foundation/NSFileManager.h>
#include <Foundation/NSString.h>
#include <Foundation/NSThread.h>

namespace {

constexpr double dryRunPerFile = 0.1; // seconds

// Whether `folder` is, or lies in, the other; both end in "/".
bool isWithin(const std::string& folder, const std::string& other)
{
    return folder.starts_with(other);
}

// To install a bundle over itself would be to empty it first.
void requireApart(const std::string& source, const std::string& destination)
{
    const std::string from = NSString::stringByResolvingSymlinksInPath(source) + "/";
    const std::string to = NSString::stringByResolvingSymlinksInPath(destination) + "/";
    if (isWithin(from, to) || isWithin(to, from))
        throw NSError("“" + source + "” couldn’t be installed as “" + destination
            + "” because these are one folder, or one holds the other.");
}

}

void InstallTask::run(const std::string& sourcePath) const
{
    sharedLogger().log("install bundle", Logger::LogLevel::normal);
    runToEnd([&] { install(sourcePath); }, &TaskReport::closeWindow);
}

void InstallTask::install(const std::string& sourcePath) const
{
    using TopFolder = BundleTree::TopFolder;
    const auto files = BundleTree::listBundle(sourcePath, bundleDir, TopFolder::include);
    requireApart(sourcePath + bundleDir, applicationDir + bundleDir);
    UninstallTask(*this).removeBundle(TopFolder::exclude, nullptr);
    for (std::size_t i = 0; i < files.size(); ++i) {
        createEntry(sourcePath, files[i]);
        report().setProgress(std::int64_t(i), std::int64_t(files.size()));
    }
}

void InstallTask::createEntry(const std::string& sourcePath, const BundleTree::File& file) const
{
    const NSFileManager& fileManager = NSFileManager::defaultManager();
    const std::string destination = applicationDir + file.path;
    report().showMessage((file.isDirectory ? "mkdir " : " copy ") + destination);
    if (isDryRun()) {
        if (!file.isDirectory)
            NSThread::sleepForTimeInterval(dryRunPerFile);
        return;
    }

    NSError error;
    const bool isDone = file.isDirectory
        ? fileManager.createDirectoryAtPath(destination, &error)
        : fileManager.copyItemAtPath(sourcePath + file.path, destination, &error);
    if (!isDone)
        throw error;
}
