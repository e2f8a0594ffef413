#include "UnmountTask.h"

#include "Logger.h"
#include "MountPoint.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSFileManager.h>
#include <Foundation/NSThread.h>

namespace {

constexpr std::int64_t attemptLimit = 7;
constexpr double pauseAfterFailure = 5.0; // seconds

}

UnmountTask::UnmountTask(
    std::shared_ptr<TaskReport> report, std::string path, std::int64_t& ejectLoop)
    : m_report(std::move(report)), m_path(std::move(path)), m_ejectLoop(ejectLoop)
{
}

void UnmountTask::run() const
{
    const std::string message = "unmount " + m_path;
    sharedLogger().log(message, Logger::LogLevel::normal);
    m_report->showMessage(message);
    m_ejectLoop = 0;
    tryEject();
}

// A path that cannot be examined counts as existing.
bool UnmountTask::pathExists() const
try {
    return NSFileManager::defaultManager().fileExistsAtPath(m_path);
} catch (const NSError&) {
    return true;
}

void UnmountTask::tryEject() const
{
    if (!pathExists() || m_ejectLoop >= attemptLimit)
        return DispatchQueue::main().async([task = *this] { task.checkUnmountResult(); });

    ++m_ejectLoop;
    const auto volumeURL = getDMGMountPointURL(m_path);
    if (!volumeURL) {
        sharedLogger().log("getDMGMountPointURL failed", Logger::LogLevel::debug);
        return checkUnmountResult();
    }
    // A working directory on the volume makes it busy.
    NSFileManager::defaultManager().changeCurrentDirectoryPath("/");
    std::make_shared<DiskImageEjector>()->eject(*volumeURL,
        [task = *this](DiskImageEjector::Result result) { task.onEjectResult(result); });
}

void UnmountTask::onEjectResult(DiskImageEjector::Result result) const
{
    // Runs after the completion handler has returned.
    DispatchQueue::main().async([task = *this, result] {
        if (result == DiskImageEjector::Result::succeeded) return task.checkUnmountResult();
        if (task.m_ejectLoop < attemptLimit) task.m_report->showRetrying();
        NSThread::sleepForTimeInterval(pauseAfterFailure);
        task.tryEject();
    });
}

void UnmountTask::checkUnmountResult() const
{
    m_report->showMessage(pathExists() ? "failed" : "unmount succeeded");
    m_report->end(std::nullopt);
}
