#include "Preflight.h"

#include <Foundation/NSError.h>
#include <Foundation/NSString.h>

#include <exception>
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
    m_source = list(sourcePath, [this](const BundleTree::Visit& visit) {
        if (visit.status.isDirectory)
            m_sourceFolders.emplace(visit.status.identity, visit.path);
        else if (!visit.status.isSymlink)
            visit.fileManager.requireCopyableItemAtPath(visit.path, visit.status);
    });
    return m_source;
}

Preflight::Files Preflight::listInstalled()
{
    const NSFileManager& fileManager = NSFileManager::defaultManager();
    if (const auto target = fileManager.destinationOfSymbolicLinkAtPath(m_bundle))
        throw NSError(
            NSLocalizedString("Errors", "application is a symlink"), { m_bundle, *target });
    if (!fileManager.fileExistsAtPath(m_bundle)) return {};
    return list(
        m_applicationDir, [this](const BundleTree::Visit& visit) { checkInstalled(visit); });
}

void Preflight::checkInstalled(const BundleTree::Visit& visit)
{
    if (!visit.status.isDirectory) return;
    m_installedFolders.push_back(visit.path);
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

// The source can contain a folder of the installed bundle, seen through another file system
// (bindfs, overlay). Then a folder created in one appears in the other.
void Preflight::requireReplaceable(ConfinedFolder& applications) const
{
    if (m_source.empty() || m_installedFolders.empty()) return;
    requireFreeNames();
    const std::string probe = "/.quillbarn-" + std::to_string(std::random_device()());
    std::vector<std::string> probes;
    std::exception_ptr failure;
    try {
        for (const std::string& folder : m_installedFolders) {
            applications.createTemporaryDirectoryAtPath(folder + probe);
            probes.push_back(folder + probe);
        }
        requireOtherFolders(probe);
        requireDistinctNames(applications, m_bundle + probe + "/");
    } catch (...) {
        failure = std::current_exception();
    }
    for (const std::string& path : probes)
        applications.removeItemAtPath(path);
    if (failure) std::rethrow_exception(failure);
}

// A dangling symlink is not listed, so it stays in the top folder. It is a conflict, unless it
// equals the symlink of the source and its target is in the bundle: then a killed install has left
// it and the copy of its target follows.
void Preflight::requireFreeNames() const
{
    const NSFileManager fileManager;
    for (const BundleTree::File& file : m_source) {
        if (file.path.rfind('/') != m_bundleDir.size()) continue; // not in the top folder
        const std::string installed = m_applicationDir + file.path;
        const auto target = fileManager.destinationOfSymbolicLinkAtPath(installed);
        if (target && !fileManager.fileExistsAtPath(installed)
            && (pointsOutOfItsFolder(*target)
                || target != fileManager.destinationOfSymbolicLinkAtPath(m_sourcePath + file.path)))
            throw NSError(NSLocalizedString("Errors", "dangling symlink exists"), { installed });
    }
}

void Preflight::requireOtherFolders(const std::string& probe) const
{
    const NSFileManager fileManager;
    for (const BundleTree::File& file : m_source) {
        const std::string folder = m_sourcePath + file.path;
        if (file.isDirectory && fileManager.fileExistsAtPath(folder + probe))
            throw sameFolder(folder, m_bundle);
    }
}

// Tries the names that may be equal, because each file system has its own rules. `folder` is empty.
void Preflight::requireDistinctNames(ConfinedFolder& applications, const std::string& folder) const
{
    std::map<std::string, std::vector<std::string>> similar; // paths
    for (const BundleTree::File& file : m_source) {
        const std::size_t start = file.path.rfind('/') + 1;
        const std::string name = file.path.substr(start);
        auto& others = similar[file.path.substr(0, start) + NSString::uppercaseString(name)];
        for (const std::string& other : others) {
            const std::string place = folder + other.substr(start);
            applications.createTemporaryDirectoryAtPath(place);
            if (NSFileManager::defaultManager().fileExistsAtPath(folder + name))
                throw NSError(NSLocalizedString("Errors", "names are equal"),
                    { m_sourcePath + file.path, m_sourcePath + other });
            applications.removeItemAtPath(place);
        }
        others.push_back(file.path);
    }
}
