#include "controller/ViewController.h"

#include "Dispatch/DispatchQueue.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSThread.h"
#include "disk/DiskImageEjector.h"
#include "disk/MountPoint.h"
#include "log/Logger.h"

namespace {

constexpr int attemptLimit = 7;
constexpr double pauseAfterFailure = 5.0; // seconds

}

// What the steps of a run share. Each step that runs later takes a copy along.
class ViewController::UnmountTask {
public:
    UnmountTask(std::shared_ptr<ViewController> controller, std::string path)
        : m_controller(std::move(controller))
        , m_path(std::move(path))
    {
    }

    void tryEject() const;

private:
    void onEjectResult(DiskImageEjector::Result result) const;
    void checkUnmountResult() const;
    bool pathExists() const { return NSFileManager::defaultManager().fileExistsAtPath(m_path); }

    const std::shared_ptr<ViewController> m_controller;
    const std::string m_path;
};

void ViewController::UnmountTask::tryEject() const
{
    if (!pathExists() || m_controller->m_ejectLoop >= attemptLimit) {
        DispatchQueue::main().async([task = *this] { task.checkUnmountResult(); });
        return;
    }

    ++m_controller->m_ejectLoop;
    const auto volumeURL = getDMGMountPointURL(m_path);
    if (!volumeURL) {
        sharedLogger().log("getDMGMountPointURL failed", Logger::LogLevel::debug);
        checkUnmountResult();
        return;
    }
    // A process whose working folder is on the volume keeps it in use.
    NSFileManager::defaultManager().changeCurrentDirectoryPath("/");
    std::make_shared<DiskImageEjector>()->eject(*volumeURL,
        [task = *this](DiskImageEjector::Result result) { task.onEjectResult(result); });
}

void ViewController::UnmountTask::onEjectResult(DiskImageEjector::Result result) const
{
    DispatchQueue::main().async([task = *this, result] {
        if (result == DiskImageEjector::Result::succeeded) {
            task.checkUnmountResult();
            return;
        }
        NSThread::sleepForTimeInterval(pauseAfterFailure);
        task.tryEject();
    });
}

void ViewController::UnmountTask::checkUnmountResult() const
{
    m_controller->report(pathExists() ? "failed" : "unmount succeeded");
    DispatchQueue::main().async([controller = m_controller] { controller->finish(); });
}

void ViewController::unmountDiskImage(const std::string& path)
{
    const std::string message = "unmount " + path;
    sharedLogger().log(message, Logger::LogLevel::normal);
    report(message);
    m_ejectLoop = 0;
    UnmountTask(self(), path).tryEject();
}
