#include "fakes/DiskArbitrationFake.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSRunLoop.h>

class DASession {
public:
    DASession() { ++heldSessions; }
    ~DASession() { --heldSessions; }

    CFRunLoopRef runLoop = nullptr;
};

class DADisk {
public:
    explicit DADisk(DASessionRef owner)
        : session(std::move(owner))
    {
    }

    const DASessionRef session;
};

DASessionRef DASessionCreate(CFAllocatorRef)
{
    return diskArbitration.hasSession ? std::make_shared<DASession>() : nullptr;
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, const DASessionRef& session, const NSURL&)
{
    return diskArbitration.hasDisk ? std::make_shared<DADisk>(session) : nullptr;
}

void DASessionScheduleWithRunLoop(const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode)
{
    ++heldSessions;
    session->runLoop = runLoop;
}

void DASessionUnscheduleFromRunLoop(const DASessionRef& session, CFRunLoopRef, CFRunLoopMode)
{
    --heldSessions;
    session->runLoop = nullptr;
}

namespace {

// Passes the disk on without keeping it, so that its release shows. A callback without context has
// no request.
void answer(const DADiskRef& disk, const std::function<bool()>& isGranted,
    DADiskUnmountCallback callback, void* context)
{
    callback(disk, nullptr, nullptr);
    if (disk->session->runLoop != NSRunLoop::mainRunLoop().getCFRunLoop())
        return;
    DispatchQueue::main().async(
        [borrowed = DADiskRef(DADiskRef(), disk.get()), isGranted, callback, context] {
            const DADissenter dissenter;
            const bool isRefused = !isGranted();
            diskArbitration.isInCallback = true;
            callback(borrowed, isRefused ? &dissenter : nullptr, context);
            diskArbitration.isInCallback = false;
        });
}

}

void DADiskUnmount(
    const DADiskRef& disk, DADiskUnmountOptions, DADiskUnmountCallback callback, void* context)
{
    answer(disk, diskArbitration.unmount, callback, context);
}

void DADiskEject(
    const DADiskRef& disk, DADiskEjectOptions, DADiskEjectCallback callback, void* context)
{
    answer(disk, diskArbitration.eject, callback, context);
}
