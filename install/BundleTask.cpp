#include "BundleTask.h"

#include "Logger.h"

#include <Foundation/NSError.h>
#include <Foundation/NSThread.h>

#include <algorithm>
#include <cassert>
#include <filesystem>

namespace {

constexpr double pauseAtEnd = 1.0; // seconds in which the bar stands full
constexpr double dryRunPerFile = 0.1; // seconds

bool leadsOutOfItsFolder(const std::filesystem::path& link)
{
    return link.is_absolute() || link.lexically_normal().string().starts_with("..");
}

}

BundleTask::BundleTask(
    TaskReport& report, std::string applicationDir, std::string bundleDir, DryRun dryRun)
    : m_report(report)
    , m_applicationDir(std::move(applicationDir))
    , m_bundleDir(std::move(bundleDir))
    , m_isDryRun(dryRun == DryRun::yes)
{
}

void BundleTask::install(const std::string& sourcePath)
{
    sharedLogger().log("install bundle", Logger::LogLevel::normal);
    runToEnd(
        [&] {
            const Files files = listBundle(sourcePath,
                [this](const NSFileManager&, const std::string& folder, FileIdentity identity) {
                    m_sourceFolders.emplace(identity, folder);
                });
            changes();
            for (const BundleTree::File& file : files)
                requireFreeName(sourcePath, file);
            removeBundle(TopFolder::exclude, nullptr);
            for (std::size_t i = 0; i < files.size(); ++i) {
                createEntry(sourcePath, files[i]);
                m_report.setProgress(std::int64_t(i), std::int64_t(files.size()));
            }
            synchronize();
        },
        &TaskReport::closeWindow);
}

void BundleTask::uninstall()
{
    sharedLogger().log("uninstall bundle", Logger::LogLevel::normal);
    runToEnd(
        [&] {
            removeBundle(TopFolder::include, [this](std::int64_t index, std::int64_t count) {
                m_report.setProgress(index, count);
            });
            synchronize(); // also what an earlier run has removed, and was ended before it could
        },
        &TaskReport::finish);
}

// Whatever is thrown, the person hears of it.
void BundleTask::runToEnd(const std::function<void()>& work, void (TaskReport::*lastStep)())
{
    assert(!NSThread::isMainThread()); // which is to show the steps meanwhile
    try {
        work();
    } catch (const NSError& error) {
        return m_report.fail(error);
    } catch (const std::bad_alloc&) {
        return m_report.fail(NSError(
            NSLocalizedString("Errors", "The run couldn’t go on because the memory is used up.")));
    } catch (const std::exception& error) {
        return m_report.fail(
            NSError(NSLocalizedString("Errors", "The run couldn’t go on because of: %1"),
                { error.what() }));
    }
    NSThread::sleepForTimeInterval(pauseAtEnd);
    m_report.showMessage("completed");
    (m_report.*lastStep)();
}

void BundleTask::removeBundle(TopFolder topFolder, const Progress& progress)
{
    changes();
    Files files = listInstalled();
    if (topFolder == TopFolder::exclude && !files.empty()) files.erase(files.begin());
    for (std::size_t k = 0; k < files.size(); ++k) {
        const BundleTree::File& file = files[files.size() - 1 - k];
        const std::string path = m_applicationDir + file.path;
        m_report.showMessage("remove " + path + (file.isDirectory ? "/" : ""));
        if (!m_isDryRun) changes().removeItemAtPath(path);
        if (progress) progress(std::int64_t(k), std::int64_t(files.size()));
    }
}

// With the bundle's own folder.
BundleTask::Files BundleTask::listBundle(
    const std::string& parent, const BundleTree::Visitor& visit) const
{
    Files files = BundleTree::getFiles(parent + m_bundleDir + "/", m_bundleDir + "/", visit);
    files.insert(files.begin(), { true, m_bundleDir });
    return files;
}

// None where there is no bundle.
BundleTask::Files BundleTask::listInstalled() const
{
    const std::string bundle = m_applicationDir + m_bundleDir;
    const NSFileManager& fileManager = NSFileManager::defaultManager();
    if (const auto destination = fileManager.destinationOfSymbolicLinkAtPath(bundle))
        throw NSError(
            NSLocalizedString("Errors", "“%1” couldn’t be changed because it is a link, to “%2”."),
            { bundle, *destination });
    if (!fileManager.fileExistsAtPath(bundle)) return {};
    return listBundle(
        m_applicationDir, [this](const auto&... visited) { requireOwnFolder(visited...); });
}

// A folder of the bundle that lies there, and nowhere else.
void BundleTask::requireOwnFolder(
    const NSFileManager& fileManager, const std::string& folder, FileIdentity identity) const
{
    const auto same = m_sourceFolders.find(identity);
    if (same != m_sourceFolders.end())
        throw NSError(
            NSLocalizedString("Errors",
                "“%1” couldn’t be installed because it is “%2”, which would be emptied first."),
            { same->second, folder });

    if (!fileManager.destinationOfSymbolicLinkAtPath(folder)) return;
    const std::string bundle = m_applicationDir + m_bundleDir;
    const std::string destination = fileManager.stringByResolvingSymlinksInPath(folder);
    if (!destination.starts_with(fileManager.stringByResolvingSymlinksInPath(bundle) + "/"))
        throw NSError(
            NSLocalizedString("Errors",
                "“%1” couldn’t be changed because the link “%2” leads out of it, to “%3”."),
            { bundle, folder, destination });
}

// A link that leads nowhere is not listed, so that it stays in the bundle's own folder when that is
// emptied. One that a killed install has left there before what it leads to is no hindrance.
void BundleTask::requireFreeName(const std::string& sourcePath, const BundleTree::File& file) const
{
    const std::string path = m_applicationDir + file.path;
    if (std::ranges::count(file.path, '/') != 1) return;
    const NSFileManager& fileManager = NSFileManager::defaultManager();
    const auto link = fileManager.destinationOfSymbolicLinkAtPath(path);
    if (!link || fileManager.fileExistsAtPath(path)) return;
    if (leadsOutOfItsFolder(*link)
        || link != fileManager.destinationOfSymbolicLinkAtPath(sourcePath + file.path))
        throw NSError(
            NSLocalizedString("Errors",
                "“%1” couldn’t be installed because a link that leads nowhere has its place. "
                "Uninstall first, which removes the link, too."),
            { path });
}

void BundleTask::createEntry(const std::string& sourcePath, const BundleTree::File& file)
{
    const std::string destination = m_applicationDir + file.path;
    m_report.showMessage((file.isDirectory ? "mkdir " : " copy ") + destination);
    if (m_isDryRun) {
        if (!file.isDirectory) NSThread::sleepForTimeInterval(dryRunPerFile);
    } else if (file.isDirectory)
        changes().createDirectoryAtPath(destination);
    else
        changes().copyItemAtPath(sourcePath + file.path, destination);
}

ConfinedFolder& BundleTask::changes()
{
    return m_changes ? *m_changes : m_changes.emplace(m_applicationDir);
}

void BundleTask::synchronize()
{
    if (!m_isDryRun) changes().synchronize();
}
