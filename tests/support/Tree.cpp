#include "support/Tree.h"

#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

void writeFile(const std::string& path, std::string_view content)
{
    fs::create_directories(fs::path(path).parent_path());
    if (!(std::ofstream(path) << content << std::flush))
        throw std::runtime_error("can't write " + path);
}

std::string readFile(const std::string& path)
{
    std::ifstream file(path);
    if (!file) throw std::runtime_error("can't read " + path);
    return { std::istreambuf_iterator(file), {} };
}

std::map<std::string, std::string> readTree(const std::string& folder)
{
    std::map<std::string, std::string> tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        tree[entry.path().lexically_relative(folder)] = entry.is_symlink()
            ? "-> " + fs::read_symlink(entry).string()
            : entry.is_directory() ? "folder"
                                   : readFile(entry.path());
    return tree;
}
