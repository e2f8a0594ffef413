#include "fakes/DiskArbitrationFake.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSRunLoop.h>

#include <filesystem>

class DASession {};

class DADisk {
public:
    DASessionRef session;
};

namespace {

DASessionRef scheduled; // with the main thread's loop

// Does not own the disk, so that the test sees its release. A callback without context must do
// nothing.
void reply(const DADiskRef& disk, bool isGranted, DADiskUnmountCallback callback, void* context)
{
    callback(disk, nullptr, nullptr);
    if (disk->session != scheduled) return;
    const DADiskRef borrowed(DADiskRef(), disk.get());
    DispatchQueue::main().async([borrowed, isGranted, callback, context] {
        const DADissenter dissenter;
        diskArbitration.isInCallback = true;
        callback(borrowed, isGranted ? nullptr : &dissenter, context);
        diskArbitration.isInCallback = false;
    });
}

}

DASessionRef DASessionCreate(CFAllocatorRef)
{
    auto session = diskArbitration.hasSession ? std::make_shared<DASession>() : nullptr;
    diskArbitration.session = session;
    return session;
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, const DASessionRef& session, const NSURL&)
{
    return DADiskRef(diskArbitration.hasDisk ? new DADisk { session } : nullptr);
}

void DASessionScheduleWithRunLoop(const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode)
{
    if (runLoop == NSRunLoop::mainRunLoop().getCFRunLoop()) scheduled = session;
}

void DASessionUnscheduleFromRunLoop(const DASessionRef&, CFRunLoopRef, CFRunLoopMode)
{
    scheduled = nullptr;
}

void DADiskUnmount(
    const DADiskRef& disk, DADiskUnmountOptions, DADiskUnmountCallback callback, void* context)
{
    const bool isGranted = diskArbitration.refusals-- <= 0;
    if (isGranted && diskArbitration.holdsBundle)
        std::filesystem::remove_all("/Applications/quillbarn.app");
    reply(disk, isGranted, callback, context);
}

void DADiskEject(
    const DADiskRef& disk, DADiskEjectOptions, DADiskEjectCallback callback, void* context)
{
    reply(disk, diskArbitration.isEjected, callback, context);
}
