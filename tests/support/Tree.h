#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>

// Draws and reads trees of files. Paths are bytes. What can't be done throws.

// A new empty folder under /tmp, removed with all it holds when the test is over. Its path ends in
// "/".
class TemporaryFolder {
public:
    TemporaryFolder() { std::filesystem::create_directories(m_path); }
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return m_path; }
    std::string operator/(std::string_view name) const { return m_path + std::string(name); }

private:
    static inline int s_count = 0;
    const std::string m_path = "/tmp/folder" + std::to_string(++s_count) + "/";
};

// With the folders on the way to it.
void writeFile(const std::string& path, std::string_view content = "");
void makeLink(const std::string& path, const std::string& target);

std::string readFile(const std::string& path);

// Everything below a folder, by its path from there: "folder", "-> target" for a link, and the
// content of a file.
std::map<std::string, std::string> readTree(const std::string& folder);

// The value of an attribute that says who may what, as the system keeps it: the owner all, and that
// user reads and writes.
std::string accessControlList(std::uint32_t user);
