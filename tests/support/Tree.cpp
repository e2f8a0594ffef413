#include "support/Tree.h"

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
    removeTree(m_path);
}

void writeFile(const std::string& path, std::string_view content)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    if (!file.flush())
        throw std::runtime_error("can't write " + path);
}

void makeFolder(const std::string& path)
{
    fs::create_directories(path);
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

void removeTree(const std::string& path)
{
    std::error_code ignored;
    fs::remove_all(path, ignored);
}
