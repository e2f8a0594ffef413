#pragma once

#include "DiskImageEjector.h"
#include "TaskReport.h"

#include <cstdint>
#include <memory>
#include <string>

// Detaches the disk image that holds a path, trying again while it is in use. It has succeeded when
// the path is gone. Each step that runs later holds a copy of the task.
class UnmountTask {
public:
    // `ejectLoop` counts the attempts, written by one thread after the other; it lives as long as
    // the report.
    UnmountTask(std::shared_ptr<TaskReport> report, std::string path, std::int64_t& ejectLoop);

    // Returns when the first attempt has started, or the end was reported. All that follows happens
    // on the main thread, the pauses between attempts too.
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
