#include "fakes/FoundationFake.h"

#include <Foundation/NSFileManager.h>
#include <Foundation/NSThread.h>

#include <unistd.h>

bool NSThread::isMainThread() { return gettid() == getpid(); }

void NSThread::sleepForTimeInterval(double seconds) { foundation.onPause(seconds); }

std::vector<NSURL> NSFileManager::mountedVolumeURLsIncludingResourceValuesForKeys(
    const std::vector<NSURLResourceKey>&, NSVolumeEnumerationOptions) const
{
    std::vector<NSURL> volumes;
    for (const std::string& mountPoint : foundation.mountPoints)
        volumes.push_back(NSURL::fileURLWithPath(mountPoint));
    return volumes;
}
