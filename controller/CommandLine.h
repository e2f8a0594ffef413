#pragma once

#include <optional>
#include <string>
#include <vector>

enum class Mode { install, uninstall, unmount };

struct CommandLineOption {
    Mode mode;
    std::string path; // empty for uninstall
};

// Returns the first option in the arguments with its path, or nothing. An argument may be enclosed
// in one pair of single quotes. The path is not checked.
std::optional<CommandLineOption> parseCommandLine(const std::vector<std::string>& arguments);
