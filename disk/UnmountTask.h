#pragma once

#include "DiskImageEjector.h"
#include "TaskReport.h"

#include <cstdint>
#include <memory>
#include <string>

// Detaches the disk image that contains a path in a limited number of attempts. Success means that
// the path no longer exists. Each step that runs later has a copy of the task.
class UnmountTask {
public:
    // `ejectLoop` counts the attempts. Only the task writes it, first on the thread of run(), then
    // on the main thread. It must outlive all copies of the task.
    UnmountTask(std::shared_ptr<TaskReport> report, std::string path, std::int64_t& ejectLoop);

    // Returns when the first attempt has started or nothing is left to do. Everything else runs on
    // the main thread, including the pauses between attempts.
    void run() const;

private:
    void tryEject() const;
    void onEjectResult(DiskImageEjector::Result result) const;
    void checkUnmountResult() const;
    bool pathExists() const;

    std::shared_ptr<TaskReport> m_report;
    std::string m_path;
    std::int64_t& m_ejectLoop;
};
