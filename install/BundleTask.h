#pragma once

#include "BundleTree.h"
#include "TaskReport.h"

#include <Foundation/NSConfinedFileManager.h>

#include <functional>
#include <string>

enum class DryRun { no, yes };

// What the tasks on the installed bundle have in common.
class BundleTask {
public:
    // `parent`, which ends in "/", is the folder with the installed bundle, `name` the bundle's. A
    // dry run shows everything and changes nothing. The report outlives the task.
    BundleTask(TaskReport& report, std::string parent, std::string name, DryRun dryRun);

protected:
    using LastStep = void (TaskReport::*)();

    // Does the work. Then shows how that ended: by "completed", a second later, and the last step;
    // or by the NSError that the work threw.
    void runToEnd(const std::function<void()>& work, LastStep lastStep) const;

    // Throws an NSError where that can't be told.
    bool isInstalled() const;

    // All entries of the installed bundle, none where there is none. Throws an NSError also where a
    // removal would lead out of it.
    std::vector<BundleTree::File> listInstalled(BundleTree::TopFolder topFolder) const;

    // From now on no other installer changes the bundle, until `changes` goes. Throws an NSError.
    static void lock(NSConfinedFileManager& changes);

    // Unless nothing was changed. Throws an NSError.
    void synchronize(NSConfinedFileManager& changes) const;

    TaskReport& report() const { return m_report; }
    bool isDryRun() const { return m_dryRun == DryRun::yes; }

    const std::string applicationDir;
    const std::string bundleDir;

private:
    TaskReport& m_report;
    const DryRun m_dryRun;
};
