#include "UninstallTask.h"

#include "Logger.h"

#include <Foundation/NSFileManager.h>
#include <Foundation/NSString.h>

namespace {

// Keeps a removal inside its bundle. A listing follows links to folders, and what it lists behind
// one may lie anywhere.
class BundleBounds {
public:
    BundleBounds(const std::string& applicationDir, const std::string& bundleDir)
        : m_top(applicationDir + bundleDir)
        , m_realTop(NSString::stringByResolvingSymlinksInPath(applicationDir) + "/" + bundleDir)
    {
    }

    // Throws unless `path` is the top folder, or lies in it when all links are followed.
    void requireInside(const std::string& path);

private:
    bool isKnown(const std::string& folder) const
    {
        return folder.starts_with(m_top) && m_known.starts_with(folder + "/");
    }

    const std::string m_top;
    const std::string m_realTop;
    // The last folder found to have no link on its path. It and its ancestors in the bundle need no
    // second look.
    std::string m_known;
};

void BundleBounds::requireInside(const std::string& path)
{
    const std::string folder = path.substr(0, path.rfind('/'));
    if (path == m_top || isKnown(folder))
        return;
    const std::string realFolder = NSString::stringByResolvingSymlinksInPath(folder);
    if (!(realFolder + "/").starts_with(m_realTop + "/"))
        throw NSError("“" + path + "” couldn’t be removed because it is not in the bundle: “"
            + folder + "” leads to “" + realFolder + "”.");
    if (realFolder == m_realTop + folder.substr(m_top.size()))
        m_known = folder + "/";
}

}

void UninstallTask::removeBundle(BundleTree::TopFolder topFolder, const Progress& progress) const
{
    const NSFileManager& fileManager = NSFileManager::defaultManager();
    if (!fileManager.fileExistsAtPath(applicationDir + bundleDir))
        return;

    const auto files = BundleTree::listBundle(applicationDir, bundleDir, topFolder);
    BundleBounds bounds(applicationDir, bundleDir);
    for (std::size_t k = 0; k < files.size(); ++k) {
        const BundleTree::File& file = files[files.size() - 1 - k];
        const std::string path = applicationDir + file.path;
        report().showMessage("remove " + path + (file.isDirectory ? "/" : ""));
        if (!isDryRun()) {
            bounds.requireInside(path);
            NSError error;
            if (!fileManager.removeItemAtPath(path, &error))
                throw error;
        }
        if (progress)
            progress(std::int64_t(k), std::int64_t(files.size()));
    }
}

void UninstallTask::run() const
{
    sharedLogger().log("uninstall bundle", Logger::LogLevel::normal);
    const auto progress
        = [this](std::int64_t index, std::int64_t count) { report().setProgress(index, count); };
    runToEnd([&] { removeBundle(BundleTree::TopFolder::include, progress); }, &TaskReport::finish);
}
