#include "support/Program.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr int cannotStart = 127;
constexpr int signalled = 128;

int require(int result, const char* what)
{
    if (result < 0)
        throw std::system_error(errno, std::generic_category(), what);
    return result;
}

std::vector<char*> pointers(std::vector<std::string>& texts)
{
    std::vector<char*> list;
    for (std::string& text : texts)
        list.push_back(text.data());
    list.push_back(nullptr);
    return list;
}

// This process's own, those replaced that are given anew.
std::vector<std::string> environmentWith(const std::vector<std::string>& additions)
{
    std::vector<std::string> all = additions;
    for (char** variable = environ; *variable; ++variable) {
        const std::string text = *variable;
        const std::string name = text.substr(0, text.find('=') + 1);
        const auto isReplaced = [&](const std::string& other) { return other.starts_with(name); };
        if (std::ranges::none_of(additions, isReplaced))
            all.push_back(text);
    }
    return all;
}

}

Program::Program(const Command& command)
    : m_output(require(memfd_create("output", MFD_CLOEXEC), "memfd_create"))
{
    std::vector<std::string> arguments { command.executable };
    arguments.insert(arguments.end(), command.arguments.begin(), command.arguments.end());
    std::vector<std::string> environment = environmentWith(command.environment);
    const std::vector<char*> argumentList = pointers(arguments);
    const std::vector<char*> environmentList = pointers(environment);

    m_process = require(fork(), "fork");
    if (m_process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        dup2(m_output, STDOUT_FILENO);
        if (chdir(command.workingFolder.c_str()) == 0)
            execvpe(argumentList[0], argumentList.data(), environmentList.data());
        _exit(cannotStart);
    }
    m_handle = require(int(syscall(SYS_pidfd_open, m_process, 0)), "pidfd_open");
}

Program::~Program()
{
    sendSignal(SIGKILL);
    waitForExit(60);
    close(m_handle);
    close(m_output);
}

void Program::sendSignal(int number) const
{
    if (!m_hasEnded)
        kill(m_process, number);
}

bool Program::waitForExit(double seconds)
{
    pollfd end { m_handle, POLLIN, 0 };
    if (m_hasEnded || poll(&end, 1, int(seconds * 1000)) != 1)
        return m_hasEnded;
    int status = 0;
    require(waitpid(m_process, &status, 0), "waitpid");
    m_exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : signalled + WTERMSIG(status);
    m_hasEnded = true;
    return true;
}

std::string Program::standardOutput() const
{
    struct stat status = {};
    require(fstat(m_output, &status), "fstat");
    std::string output(std::size_t(status.st_size), '\0');
    const ssize_t size = pread(m_output, output.data(), output.size(), 0);
    output.resize(std::size_t(require(int(size), "pread")));
    return output;
}
