#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

// Draws and reads trees of files. Paths are bytes. What can't be done throws.

// With the folders on the way to it.
void writeFile(const std::string& path, std::string_view content = "");

std::string readFile(const std::string& path);

// Everything below a folder, by its path from there: "folder", "-> target" for a link, and the
// content of a file.
std::map<std::string, std::string> readTree(const std::string& folder);
