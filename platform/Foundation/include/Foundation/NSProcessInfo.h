#pragma once

#include <string>
#include <vector>

// The running process. Safe on any thread after initialize().
class NSProcessInfo {
public:
    static const NSProcessInfo& processInfo();

    // Not in Foundation: NSApplicationMain passes the arguments of main() first.
    static void initialize(int argc, const char* const argv[]);

    int processIdentifier() const;

    // Returns the argument vector of the process, byte for byte, starting with the program's path.
    const std::vector<std::string>& arguments() const { return m_arguments; }

private:
    std::vector<std::string> m_arguments;
};
