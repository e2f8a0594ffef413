#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

// Writes and reads trees of files. Paths are bytes.

// Creates missing folders on the path.
void writeFile(const std::string& path, std::string_view content = "");

std::string readFile(const std::string& path);

// Returns everything beneath a folder by relative path: "folder", "-> target" for a symlink, or the
// content of a file.
std::map<std::string, std::string> readTree(const std::string& folder);
