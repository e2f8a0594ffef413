#include "BundleTask.h"

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
        m_report.showMessage("");
        m_report.showMessage(error.localizedDescription());
        m_report.showFailure(error);
        return;
    }
    NSThread::sleepForTimeInterval(pauseAtEnd);
    m_report.showMessage("completed");
    (m_report.*lastStep)();
}
