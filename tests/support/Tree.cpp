#include "support/Tree.h"

#include <fstream>

namespace fs = std::filesystem;

void writeFile(const std::string& path, std::string_view content)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path) << content;
}

std::string readFile(const std::string& path)
{
    std::string content(fs::file_size(path), '\0'); // throws if there is no file
    std::ifstream(path).read(content.data(), std::streamsize(content.size()));
    return content;
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
