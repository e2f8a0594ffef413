#pragma once

#include "CommandLine.h"

#include <string>

class ViewController;

struct ModeInfo {
    Mode mode;
    std::string argument; // on the command line
    std::string name; // in the log
    bool requiresPath;
    std::string runningTitle; // titles of the window, in the user's language
    std::string retryingTitle;
    std::string failedTitle;
    void (*runTask)(ViewController& controller, const std::string& path);
};

// Safe on any thread, once the user's language has been chosen.
const ModeInfo& infoOf(Mode mode);
const ModeInfo* modeOfArgument(const std::string& argument); // nullptr: no option
