#pragma once

#include <string>
#include <vector>

// The running process. Safe on any thread.
class NSProcessInfo {
public:
    static const NSProcessInfo& processInfo();

    int processIdentifier() const;

    // The argument vector as the process received it, byte for byte, the program's own path first.
    std::vector<std::string> arguments() const;
};
