#include "fakes/FoundationFake.h"

#include <Foundation/NSFileManager.h>
#include <Foundation/NSProcessInfo.h>
#include <Foundation/NSThread.h>

#include <algorithm>
#include <unistd.h>

const NSProcessInfo& NSProcessInfo::processInfo()
{
    static const NSProcessInfo info;
    return info;
}

int NSProcessInfo::processIdentifier() const { return 4711; }

std::vector<std::string> NSProcessInfo::arguments() const { return foundation.arguments; }

bool NSThread::isMainThread() { return gettid() == getpid(); }

void NSThread::sleepForTimeInterval(double seconds) { foundation.onPause(seconds); }

std::vector<NSURL> NSFileManager::mountedVolumeURLsIncludingResourceValuesForKeys(
    const std::vector<NSURLResourceKey>&, NSVolumeEnumerationOptions) const
{
    std::vector<NSURL> volumes;
    std::ranges::transform(
        foundation.mountPoints, std::back_inserter(volumes), &NSURL::fileURLWithPath);
    return volumes;
}
