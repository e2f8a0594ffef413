#pragma once

#include <Foundation/NSFileManager.h>

#include <functional>
#include <string>
#include <vector>

class BundleTree {
public:
    struct File {
        bool isDirectory; // or a symlink to a directory
        std::string path; // relative to the folder that holds the bundle; no "/" at either end
    };

    // An existing item, whose path has no "/" at its end, and a file manager that caches the open
    // folders on the path.
    struct Visit {
        const NSFileManager& fileManager;
        const std::string& path;
        const FileStatus& status;
    };
    using Visitor = std::function<void(const Visit& visit)>;

    // Returns all entries beneath `folder`, each folder before its contents, with `prefix` in front
    // of their paths. Both arguments end in "/". Follows symlinks to folders and omits dangling
    // symlinks. Calls `visitor`, if any, with the folder itself, then with each entry before it is
    // listed; an exception ends the listing. Throws an NSError, also for a symlink loop and if it
    // reaches the same folder through symlinks more than 1,000 times. Safe on any thread.
    static std::vector<File> getFiles(
        const std::string& folder, const std::string& prefix, const Visitor& visitor = nullptr);
};
