#include "fakes/NSProcessInfoFake.h"

#include <Foundation/NSProcessInfo.h>

namespace {

std::vector<std::string>& fakeArguments()
{
    static std::vector<std::string> arguments;
    return arguments;
}

}

void setArguments(std::vector<std::string> arguments)
{
    fakeArguments() = std::move(arguments);
}

const NSProcessInfo& NSProcessInfo::processInfo()
{
    static const NSProcessInfo info;
    return info;
}

int NSProcessInfo::processIdentifier() const
{
    return 4711;
}

std::vector<std::string> NSProcessInfo::arguments() const
{
    return fakeArguments();
}
