#pragma once

#include <string>
#include <vector>

// What to run. Arguments and paths are bytes.
struct Command {
    std::string executable = PROGRAM; // the installer; a name without "/" is looked for in PATH
    std::vector<std::string> arguments = {};
    std::string workingFolder = "/";
    std::vector<std::string> environment = {}; // "NAME=value", beside what the test itself has
};

// A process of its own, killed when the test is over or dies.
class Program {
public:
    // What can't be started ends with the status 127.
    explicit Program(const Command& command);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    int processIdentifier() const { return m_process; }
    void sendSignal(int number) const;

    // Whether it has ended, if need be after waiting for so long.
    bool waitForExit(double seconds);

    // Of a program that has ended: its status, or 128 and the number of the signal it died of.
    int exitStatus() const { return m_exitStatus; }

    // All that it has written so far.
    std::string standardOutput() const;

private:
    int m_output; // a file without a name
    int m_process;
    int m_handle; // readable when the process has ended
    bool m_hasEnded = false;
    int m_exitStatus = -1;
};
