#include "Preflight.h"

#include <Foundation/NSError.h>
#include <Foundation/NSString.h>

#include <filesystem>
#include <random>

namespace {

bool pointsOutOfItsFolder(const std::filesystem::path& target)
{
    return target.is_absolute() || *target.lexically_normal().begin() == "..";
}

NSError sameFolder(const std::string& source, const std::string& installed)
{
    return NSError(
        NSLocalizedString("Errors", "source is the installed folder"), { source, installed });
}

}

Preflight::Preflight(const std::string& applicationDir, const std::string& bundleDir)
    : m_applicationDir(applicationDir), m_bundleDir(bundleDir), m_bundle(applicationDir + bundleDir)
{
}

Preflight::Files Preflight::list(
    const std::string& parent, const BundleTree::Visitor& visitor) const
{
    Files files = BundleTree::getFiles(parent + m_bundleDir + "/", m_bundleDir + "/", visitor);
    files.insert(files.begin(), { true, m_bundleDir });
    return files;
}

const Preflight::Files& Preflight::listSource(const std::string& sourcePath)
{
    m_sourcePath = sourcePath;
    m_source = list(sourcePath, [this](const BundleTree::Visit& visit) { checkSource(visit); });
    return m_source;
}

void Preflight::checkSource(const BundleTree::Visit& visit)
{
    const FileStatus& status = visit.status;
    if (status.isDirectory)
        m_sourceFolders.emplace(status.identity, visit.path);
    else if (!status.isSymlink
        && (status.isSpecial || !visit.fileManager.isReadableFileAtPath(visit.path)))
        ConfinedFolder::requireCopyableItemAtPath(visit.path);
}

Preflight::Files Preflight::listInstalled() const
{
    const NSFileManager& fileManager = NSFileManager::defaultManager();
    if (const auto target = fileManager.destinationOfSymbolicLinkAtPath(m_bundle))
        throw NSError(
            NSLocalizedString("Errors", "application is a symlink"), { m_bundle, *target });
    if (!fileManager.fileExistsAtPath(m_bundle)) return {};
    return list(
        m_applicationDir, [this](const BundleTree::Visit& visit) { checkInstalled(visit); });
}

void Preflight::checkInstalled(const BundleTree::Visit& visit) const
{
    if (!visit.status.isDirectory) return;
    const auto same = m_sourceFolders.find(visit.status.identity);
    if (same != m_sourceFolders.end()) throw sameFolder(same->second, visit.path);
    if (!visit.status.isSymlink) return;
    const std::string target = visit.fileManager.stringByResolvingSymlinksInPath(visit.path);
    const std::string top
        = NSFileManager::defaultManager().stringByResolvingSymlinksInPath(m_bundle);
    if (!(target + "/").starts_with(top + "/"))
        throw NSError(NSLocalizedString("Errors", "symlink points outside"),
            { m_bundle, visit.path, target });
}

void Preflight::requireReplaceable(ConfinedFolder& applications) const
{
    const NSFileManager& fileManager = NSFileManager::defaultManager();
    if (m_source.empty() || !fileManager.fileExistsAtPath(m_bundle)) return;
    for (const BundleTree::File& file : m_source)
        if (file.path.rfind('/') == m_bundleDir.size()) // in the top folder
            requireFreeName(file.path);

    // The source can be the installed bundle, seen through another file system (bindfs, overlay).
    // Then a folder created in one appears in the other.
    const std::string probe = "/.quillbarn-" + std::to_string(std::random_device()());
    applications.createDirectoryAtPath(
        m_bundle + probe, ConfinedFolder::WithIntermediateDirectories::no);
    try {
        requireOtherFolders(probe);
        if (fileManager.fileExistsAtPath(m_bundle + NSString::uppercaseString(probe)))
            requireDistinctNames();
    } catch (...) {
        applications.removeItemAtPath(m_bundle + probe);
        throw;
    }
    applications.removeItemAtPath(m_bundle + probe);
}

// A dangling symlink is not listed, so it stays in the top folder. It is a conflict, unless it
// equals the symlink of the source and its target is in the bundle: then a killed install has left
// it and the copy of its target follows.
void Preflight::requireFreeName(const std::string& path) const
{
    const std::string installed = m_applicationDir + path;
    const NSFileManager& fileManager = NSFileManager::defaultManager();
    const auto target = fileManager.destinationOfSymbolicLinkAtPath(installed);
    if (target && !fileManager.fileExistsAtPath(installed)
        && (pointsOutOfItsFolder(*target)
            || target != fileManager.destinationOfSymbolicLinkAtPath(m_sourcePath + path)))
        throw NSError(NSLocalizedString("Errors", "dangling symlink exists"), { installed });
}

void Preflight::requireOtherFolders(const std::string& probe) const
{
    const NSFileManager fileManager;
    for (const auto& [identity, folder] : m_sourceFolders)
        if (fileManager.fileExistsAtPath(folder + probe)) throw sameFolder(folder, m_bundle);
}

void Preflight::requireDistinctNames() const
{
    std::map<std::string, std::string> paths; // by their uppercase form
    for (const BundleTree::File& file : m_source) {
        const std::string path = m_sourcePath + file.path;
        const auto [same, isNew] = paths.emplace(NSString::uppercaseString(path), path);
        if (!isNew)
            throw NSError(NSLocalizedString("Errors", "names are equal"), { path, same->second });
    }
}
