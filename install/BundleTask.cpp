#include "BundleTask.h"

#include <Foundation/NSFileManager.h>
#include <Foundation/NSThread.h>

#include <cassert>

namespace {

constexpr double pauseAtEnd = 1.0; // seconds in which the bar stands full

}

BundleTask::BundleTask(TaskReport& report, std::string parent, std::string name, DryRun dryRun)
    : applicationDir(std::move(parent))
    , bundleDir(std::move(name))
    , m_report(report)
    , m_dryRun(dryRun)
{
}

void BundleTask::runToEnd(const std::function<void()>& work, LastStep lastStep) const
{
    assert(!NSThread::isMainThread()); // which is to show the steps meanwhile
    try {
        work();
    } catch (const NSError& error) {
        m_report.fail(error);
        return;
    }
    NSThread::sleepForTimeInterval(pauseAtEnd);
    m_report.showMessage("completed");
    (m_report.*lastStep)();
}

bool BundleTask::isInstalled() const
{
    NSError error;
    const auto exists
        = NSFileManager::defaultManager().fileExistsAtPath(applicationDir + bundleDir, &error);
    if (!exists)
        throw error;
    return *exists;
}

std::vector<BundleTree::File> BundleTask::listInstalled(BundleTree::TopFolder topFolder) const
{
    if (!isInstalled())
        return {};
    return BundleTree::listBundle(
        applicationDir, bundleDir, topFolder, BundleTree::LinksOut::refuse);
}

void BundleTask::lock(NSConfinedFileManager& changes)
{
    NSError error;
    if (!changes.lock(&error))
        throw error;
}

void BundleTask::synchronize(NSConfinedFileManager& changes) const
{
    NSError error;
    if (!isDryRun() && !changes.synchronize(&error))
        throw error;
}
