#include "BundleChecks.h"

#include <Foundation/NSFileManager.h>

#include <algorithm>
#include <filesystem>
#include <map>

namespace {

std::optional<NSFileIdentity> identityOfFolder(
    const NSFileManager& fileManager, const std::string& path, const BundleTree::File& file)
{
    if (!file.isDirectory)
        return std::nullopt;
    NSError error;
    const auto identity = fileManager.fileIdentityAtPath(path, &error);
    if (!identity)
        throw error;
    return identity;
}

bool liesInTopFolder(const BundleTree::File& file)
{
    return std::ranges::count(file.path, '/') == 1;
}

bool leadsOutOfTopFolder(const std::filesystem::path& link)
{
    return link.is_absolute() || link.lexically_normal().string().starts_with("..");
}

}

void BundleChecks::requireApart(const std::string& sourcePath, const Files& source,
    const std::string& applicationDir, const Files& installed)
{
    const NSFileManager fileManager;
    std::map<NSFileIdentity, std::string> folders;
    for (const BundleTree::File& file : installed) {
        const std::string path = applicationDir + file.path;
        if (const auto identity = identityOfFolder(fileManager, path, file))
            folders.emplace(*identity, path);
    }
    for (const BundleTree::File& file : source) {
        const std::string path = sourcePath + file.path;
        const auto identity = identityOfFolder(fileManager, path, file);
        const auto same = identity ? folders.find(*identity) : folders.end();
        if (same != folders.end())
            throw NSError("“" + path + "” couldn’t be installed because it is “" + same->second
                + "”, which would be emptied first.");
    }
}

void BundleChecks::requireFreeNames(
    const std::string& sourcePath, const Files& source, const std::string& applicationDir)
{
    const NSFileManager fileManager;
    for (const BundleTree::File& file : source) {
        const std::string path = applicationDir + file.path;
        if (!liesInTopFolder(file) || fileManager.fileExistsAtPath(path, nullptr) != false)
            continue;
        const auto link = fileManager.destinationOfSymbolicLinkAtPath(path);
        const auto copied = fileManager.destinationOfSymbolicLinkAtPath(sourcePath + file.path);
        if (link && (link != copied || leadsOutOfTopFolder(*link)))
            throw NSError("“" + path
                + "” couldn’t be installed because a link that leads nowhere "
                  "has its place. Uninstall first, which removes the link, too.");
    }
}
