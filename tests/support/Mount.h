#pragma once

#include <string>

// A file system of the test's own in memory, mounted on a folder until the test is over.
class MemoryVolume {
public:
    // `options` are those of a tmpfs, such as "size=1m".
    MemoryVolume(const std::string& folder, const std::string& options);
    ~MemoryVolume();
    MemoryVolume(const MemoryVolume&) = delete;
    MemoryVolume& operator=(const MemoryVolume&) = delete;

    void makeReadOnly() const;

private:
    std::string m_folder;
};
