#include "ViewController.h"

#include "InstallTask.h"
#include "UnmountTask.h"
#include "WindowReport.h"

void ViewController::installBundle(const std::string& sourcePath)
{
    WindowReport report(self(), Mode::install);
    InstallTask(report, applicationDir, bundleDir, dryRun()).run(sourcePath);
}

void ViewController::uninstallBundle()
{
    WindowReport report(self(), Mode::uninstall);
    UninstallTask(report, applicationDir, bundleDir, dryRun()).run();
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

void ViewController::removeBundle(
    BundleTree::TopFolder topFolder, const UninstallTask::Progress& progress)
{
    WindowReport report(self(), Mode::uninstall);
    UninstallTask(report, applicationDir, bundleDir, dryRun()).removeBundle(topFolder, progress);
}
