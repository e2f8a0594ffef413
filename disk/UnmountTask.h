#pragma once

#include "DiskImageEjector.h"
#include "TaskReport.h"

#include <cstdint>
#include <memory>
#include <string>

// Detaches the disk image that contains a path, with at most seven attempts. It has succeeded if
// the path no longer exists. Each step that runs later has a copy of the task.
class UnmountTask {
public:
    // `ejectLoop` counts the attempts. Threads write it one after the other. It must outlive the
    // report.
    UnmountTask(std::shared_ptr<TaskReport> report, std::string path, std::int64_t& ejectLoop);

    // Returns after the first attempt has started or the end was reported. Everything else runs on
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
