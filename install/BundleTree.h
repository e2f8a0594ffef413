#pragma once

#include <string>
#include <vector>

// The entries of a bundle as one list.
class BundleTree {
public:
    struct File {
        bool isDirectory; // or a link to one
        std::string path; // from the folder that holds the bundle, without a "/" at either end
    };

    // All entries below a folder, each folder before what it holds, under `prefix`. Both arguments
    // end in "/". Links to folders are followed, links that lead nowhere left out. Throws an
    // NSError. Safe on any thread.
    static std::vector<File> getFiles(const std::string& folder, const std::string& prefix);

    enum class TopFolder { exclude, include };
    enum class LinksOut { follow, refuse };

    // All entries of the bundle of that name in `parent`, which ends in "/"; first the bundle's own
    // folder, if it is included. Throws an NSError, with `refuse` also where the bundle is a link,
    // or a link in it leads to a folder elsewhere.
    static std::vector<File> listBundle(
        const std::string& parent, const std::string& name, TopFolder topFolder, LinksOut linksOut);
};
