#include "ViewController.h"

#include "BundleTask.h"
#include "UnmountTask.h"
#include "WindowReport.h"

void ViewController::installBundle(const std::string& sourcePath)
{
    WindowReport report(self(), Mode::install);
    BundleTask(report, applicationDir, bundleDir, dryRun()).install(sourcePath);
}

void ViewController::uninstallBundle()
{
    WindowReport report(self(), Mode::uninstall);
    BundleTask(report, applicationDir, bundleDir, dryRun()).uninstall();
}

void ViewController::unmountDiskImage(const std::string& path)
{
    UnmountTask(std::make_shared<WindowReport>(self(), Mode::unmount), path, m_ejectLoop).run();
}

std::vector<ViewController::File> ViewController::getFiles(
    const std::string& folder, const std::string& prefix)
{
    return BundleTree::getFiles(folder, prefix);
}

void ViewController::removeBundle(TopFolder topFolder, const BundleTask::Progress& progress)
{
    WindowReport report(self(), Mode::uninstall);
    BundleTask(report, applicationDir, bundleDir, dryRun()).removeBundle(topFolder, progress);
}
