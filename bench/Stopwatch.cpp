// Tells how long a program takes from its start to its end, in milliseconds, and how much memory at
// most, in MiB.
//
//     stopwatch PLACE PROGRAM ARGUMENT...
//
// For the program, the folders Applications and tmp in PLACE are /Applications and /tmp. It is
// ended after ten minutes.

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr unsigned longestRun = 600; // seconds

int require(int result, const std::string& what)
{
    if (result < 0)
        throw std::system_error(errno, std::generic_category(), what);
    return result;
}

void bind(const std::string& from, const std::string& to)
{
    require(mount(from.c_str(), to.c_str(), nullptr, MS_BIND, nullptr), from);
}

[[noreturn]] void execute(char* command[])
{
    alarm(longestRun);
    dup2(require(open("/dev/null", O_WRONLY), "/dev/null"), STDOUT_FILENO);
    execvp(command[0], command);
    perror(command[0]);
    _exit(EXIT_FAILURE);
}

int measure(char* command[])
{
    const auto start = std::chrono::steady_clock::now();
    const pid_t program = require(fork(), "fork");
    if (program == 0)
        execute(command);
    int status = 0;
    rusage usage = {};
    require(wait4(program, &status, 0, &usage), "wait");
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::cout << time.count() << '|' << double(usage.ru_maxrss) / 1024 << '\n';
    return status == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}

int main(int argc, char* argv[])
{
    if (argc < 3)
        return EXIT_FAILURE;
    try {
        const std::string place = argv[1];
        require(unshare(CLONE_NEWNS), "no mount namespace");
        bind(place + "/Applications", "/Applications");
        bind(place + "/tmp", "/tmp");
        return measure(argv + 2);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
