#include <Foundation/NSProcessInfo.h>

#include <fstream>
#include <unistd.h>

const NSProcessInfo& NSProcessInfo::processInfo()
{
    static const NSProcessInfo info;
    return info;
}

int NSProcessInfo::processIdentifier() const { return getpid(); }

std::vector<std::string> NSProcessInfo::arguments() const
{
    std::ifstream file("/proc/self/cmdline", std::ios::binary);
    std::vector<std::string> arguments;
    for (std::string argument; std::getline(file, argument, '\0');)
        arguments.push_back(argument);
    return arguments;
}
