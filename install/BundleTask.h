#pragma once

#include "TaskReport.h"

#include <functional>
#include <string>

enum class DryRun { no, yes };

// What the tasks on the installed bundle have in common.
class BundleTask {
public:
    // `applicationDir`, which ends in "/", is the folder with the installed bundle, `bundleDir` the
    // bundle's name. A dry run shows everything and changes nothing. The report outlives the task.
    BundleTask(
        TaskReport& report, std::string applicationDir, std::string bundleDir, DryRun dryRun);

protected:
    using LastStep = void (TaskReport::*)();

    // Does the work. Then shows how that ended: by "completed", a second later, and the last step;
    // or by the NSError that the work threw.
    void runToEnd(const std::function<void()>& work, LastStep lastStep) const;

    TaskReport& report() const { return m_report; }
    bool isDryRun() const { return m_dryRun == DryRun::yes; }

    const std::string applicationDir;
    const std::string bundleDir;

private:
    TaskReport& m_report;
    const DryRun m_dryRun;
};
