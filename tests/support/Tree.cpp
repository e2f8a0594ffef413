#include "support/Tree.h"

#include <array>
#include <bit>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
    : m_path("/tmp/quillbarn-test-XXXXXX")
{
    if (!mkdtemp(m_path.data()))
        throw std::runtime_error("no temporary folder");
    m_path += '/';
}

TemporaryFolder::~TemporaryFolder()
{
    fs::remove_all(m_path);
}

void writeFile(const std::string& path, std::string_view content)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    if (!file.flush())
        throw std::runtime_error("can't write " + path);
}

void makeLink(const std::string& path, const std::string& target)
{
    fs::create_directories(fs::path(path).parent_path());
    fs::create_symlink(target, path);
}

std::string readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("can't read " + path);
    return { std::istreambuf_iterator(file), {} };
}

std::map<std::string, std::string> readTree(const std::string& folder)
{
    std::map<std::string, std::string> tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const fs::path& path = entry.path();
        std::string& content = tree[path.lexically_relative(folder)];
        if (entry.is_symlink())
            content = "-> " + fs::read_symlink(path).string();
        else
            content = entry.is_directory() ? "folder" : readFile(path);
    }
    return tree;
}

std::string accessControlList(std::uint32_t user)
{
    struct Entry {
        std::uint16_t tag;
        std::uint16_t permissions;
        std::uint32_t user;
    };
    constexpr std::uint32_t nobody = ~0U;
    const std::array entries { Entry { 1, 7, nobody }, Entry { 2, 6, user }, Entry { 4, 0, nobody },
        Entry { 16, 6, nobody }, Entry { 32, 0, nobody } };
    return std::string("\2\0\0\0", 4)
        + std::string(std::bit_cast<const char*>(entries.data()), sizeof entries);
}
