#include "BundleTask.h"

#include "Logger.h"

#include <Foundation/NSThread.h>

#include <cassert>

namespace {

constexpr double pauseAtEnd = 1.0; // seconds; the bar stays full
constexpr double dryRunPerFile = 0.1; // seconds

std::optional<NSError> failureOf(const std::function<void()>& work)
try {
    work();
    return std::nullopt;
} catch (const NSError& error) {
    return error;
} catch (const std::bad_alloc&) {
    return NSError(NSLocalizedString("Errors", "out of memory"));
} catch (const std::exception& error) {
    return NSError(NSLocalizedString("Errors", "internal error"), { error.what() });
}

}

BundleTask::BundleTask(
    TaskReport& report, std::string applicationDir, std::string bundleDir, DryRun dryRun)
    : m_report(report)
    , m_applicationDir(std::move(applicationDir))
    , m_bundleDir(std::move(bundleDir))
    , m_isDryRun(dryRun == DryRun::yes)
    , m_preflight(m_applicationDir, m_bundleDir)
{
}

void BundleTask::install(const std::string& sourcePath)
{
    sharedLogger().log("install bundle", Logger::LogLevel::normal);
    const auto work = [&] {
        const auto& files = m_preflight.listSource(sourcePath);
        removeBundle(TopFolder::exclude, nullptr);
        for (std::size_t i = 0; i < files.size(); ++i) {
            createEntry(sourcePath, files[i]);
            m_report.setProgress(std::int64_t(i), std::int64_t(files.size()));
        }
        synchronize();
    };
    run(work, NSLocalizedString("Errors", "incomplete, install again"));
}

void BundleTask::uninstall()
{
    sharedLogger().log("uninstall bundle", Logger::LogLevel::normal);
    const auto work = [&] {
        const NSFileManager& files = NSFileManager::defaultManager();
        // If there is nothing to remove, no lock is needed. An unreadable folder cannot be locked.
        if (!files.fileExistsAtPath(m_applicationDir + m_bundleDir)
            && !files.isReadableFileAtPath(m_applicationDir))
            return;
        removeBundle(TopFolder::include,
            [this](std::int64_t index, std::int64_t count) { m_report.setProgress(index, count); });
        synchronize(); // also the removals of an earlier, killed run
    };
    run(work, NSLocalizedString("Errors", "incomplete, uninstall again"));
}

void BundleTask::run(const std::function<void()>& work, const std::string& incompleteCopy)
{
    assert(!NSThread::isMainThread()); // setProgress() waits for the main thread
    std::optional<NSError> failure = failureOf(work);
    const std::string folder = m_applicationDir.substr(0, m_applicationDir.size() - 1);
    if (!failure) {
        NSThread::sleepForTimeInterval(pauseAtEnd);
        m_report.showMessage("completed");
    } else if (m_copy != Copy::unchanged) {
        const std::string state = m_copy == Copy::incomplete
            ? incompleteCopy
            : NSLocalizedString("Errors", "maybe incomplete");
        failure = failure->followedBy(NSString::stringWithFormat(state, { folder }));
    }
    m_report.end(failure);
}

void BundleTask::removeBundle(TopFolder topFolder, const Progress& progress)
{
    if (!m_applications) m_applications.emplace(m_applicationDir);
    auto files = m_preflight.listInstalled();
    if (!m_isDryRun) m_preflight.requireReplaceable(*m_applications);
    if (topFolder == TopFolder::exclude && !files.empty()) files.erase(files.begin());
    for (std::size_t k = 0; k < files.size(); ++k) {
        const BundleTree::File& file = files[files.size() - 1 - k];
        const std::string path = m_applicationDir + file.path;
        m_report.showMessage("remove " + path + (file.isDirectory ? "/" : ""));
        if (!m_isDryRun) {
            m_applications->removeItemAtPath(path);
            m_copy = Copy::incomplete;
        }
        if (progress) progress(std::int64_t(k), std::int64_t(files.size()));
    }
}

void BundleTask::createEntry(const std::string& sourcePath, const BundleTree::File& file)
{
    using Intermediates = ConfinedFolder::WithIntermediateDirectories;
    const std::string destination = m_applicationDir + file.path;
    m_report.showMessage((file.isDirectory ? "mkdir " : " copy ") + destination);
    if (m_isDryRun) {
        if (!file.isDirectory) NSThread::sleepForTimeInterval(dryRunPerFile);
        return;
    }
    if (!file.isDirectory)
        m_applications->copyItemAtPath(sourcePath + file.path, destination);
    else // only the top folder may exist
        m_applications->createDirectoryAtPath(
            destination, file.path == m_bundleDir ? Intermediates::yes : Intermediates::no);
    m_copy = Copy::incomplete;
}

void BundleTask::synchronize()
{
    if (m_isDryRun) return;
    m_copy = Copy::unflushed;
    m_applications->synchronize();
}
