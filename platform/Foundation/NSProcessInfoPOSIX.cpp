#include <Foundation/NSProcessInfo.h>

#include <unistd.h>

namespace {

NSProcessInfo& mutableInfo()
{
    static NSProcessInfo info;
    return info;
}

}

const NSProcessInfo& NSProcessInfo::processInfo() { return mutableInfo(); }

void NSProcessInfo::initialize(int argc, const char* const argv[])
{
    mutableInfo().m_arguments.assign(argv, argv + argc);
}

int NSProcessInfo::processIdentifier() const { return getpid(); }
