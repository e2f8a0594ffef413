#include "fakes/DiskArbitrationFake.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSRunLoop.h>

#include <mutex>

namespace {

// A disk that was handed to the main thread may be released by either.
void note(const std::string& call)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    diskArbitration().calls.push_back(call);
}

}

class DASession {
public:
    ~DASession() { note("release session"); }

    CFRunLoopRef runLoop = nullptr;
};

class DADisk {
public:
    explicit DADisk(DASessionRef owner)
        : session(std::move(owner))
    {
    }
    ~DADisk() { note("release disk"); }

    const DASessionRef session;
};

namespace {

// Passes the disk on without keeping it, so that its release shows.
void answer(const DADiskRef& disk, const std::function<bool()>& isGranted,
    DADiskUnmountCallback callback, void* context)
{
    diskArbitration().lastCallback = callback;
    if (disk->session->runLoop != NSRunLoop::mainRunLoop().getCFRunLoop())
        return;
    DispatchQueue::main().async(
        [borrowed = DADiskRef(DADiskRef(), disk.get()), isGranted, callback, context] {
            const DADissenter dissenter;
            callback(borrowed, isGranted() ? nullptr : &dissenter, context);
        });
}

}

DiskArbitrationFake& diskArbitration()
{
    static DiskArbitrationFake fake;
    return fake;
}

DASessionRef DASessionCreate(CFAllocatorRef)
{
    note("session");
    return diskArbitration().hasSession ? std::make_shared<DASession>() : nullptr;
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, const DASessionRef& session, const NSURL& path)
{
    note("disk " + path.path());
    return diskArbitration().hasDisk ? std::make_shared<DADisk>(session) : nullptr;
}

void DASessionScheduleWithRunLoop(const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode)
{
    note("schedule");
    session->runLoop = runLoop;
}

void DASessionUnscheduleFromRunLoop(const DASessionRef& session, CFRunLoopRef, CFRunLoopMode)
{
    note("unschedule");
    session->runLoop = nullptr;
}

void DADiskUnmount(
    const DADiskRef& disk, DADiskUnmountOptions, DADiskUnmountCallback callback, void* context)
{
    note("unmount");
    answer(disk, diskArbitration().unmount, callback, context);
}

void DADiskEject(
    const DADiskRef& disk, DADiskEjectOptions, DADiskEjectCallback callback, void* context)
{
    note("eject");
    answer(disk, diskArbitration().eject, callback, context);
}
