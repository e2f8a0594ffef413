#pragma once

#include <Foundation/NSFileManager.h>

#include <functional>
#include <string>
#include <vector>

// The entries of a bundle as one list.
class BundleTree {
public:
    struct File {
        bool isDirectory; // or a link to one
        std::string path; // from the folder that holds the bundle, without a "/" at either end
    };

    // Told of each folder, first of the one from which the listing starts, by its path without a
    // "/" at the end. `fileManager` keeps the folders on the way to it open. Ends the listing by
    // what it throws.
    using Visitor = std::function<void(
        const NSFileManager& fileManager, const std::string& folder, FileIdentity identity)>;

    // All entries below a folder, each folder before what it holds, under `prefix`. Both arguments
    // end in "/". Links to folders are followed, links that lead nowhere left out. Throws an
    // NSError. Safe on any thread.
    static std::vector<File> getFiles(
        const std::string& folder, const std::string& prefix, const Visitor& visit = nullptr);
};
