#include <Foundation/NSProcessInfo.h>

#include <unistd.h>

static NSProcessInfo currentProcess;

const NSProcessInfo& NSProcessInfo::processInfo() { return currentProcess; }

void NSProcessInfo::initialize(int argc, const char* const argv[])
{
    currentProcess.m_arguments.assign(argv, argv + argc);
}

int NSProcessInfo::processIdentifier() const { return getpid(); }
