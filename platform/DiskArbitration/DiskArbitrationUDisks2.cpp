#include "UDisks2.h"

#include <DiskArbitration/DADisk.h>
#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSError.h>

#include <algorithm>
#include <atomic>

class DASession : public UDisks2 {
public:
    std::atomic<CFRunLoopRef> runLoop = nullptr; // nullptr: unscheduled
};

class DADisk {
public:
    // Whether it was granted.
    bool unmount() const { return session->call(volume, "Filesystem", "Unmount"); }
    bool eject() const;

    const DASessionRef session;
    const QDBusObjectPath volume;
    const QDBusObjectPath image = {}; // the device of the whole image, or none
    const bool isSelfDetaching = false; // with the unmount
    const QDBusObjectPath drive = {}; // that ejects, or none
};

bool DADisk::eject() const
{
    if (image.path().isEmpty())
        return session->call(drive, "Drive", "Eject"); // an error, where there is none
    // The answer tells nothing: it is yes also for a device that is in use, and lets go of its
    // image when it no longer is. Not asked for what is done already: UDisks 2.10.1 may crash as it
    // refuses.
    if (!isSelfDetaching)
        session->call(image, "Loop", "Delete");
    return true;
}

DASessionRef DASessionCreate(CFAllocatorRef)
{
    const auto session = std::make_shared<DASession>();
    return session->isConnected() ? session : nullptr;
}

void DASessionScheduleWithRunLoop(const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode)
{
    session->runLoop = runLoop;
}

void DASessionUnscheduleFromRunLoop(const DASessionRef& session, CFRunLoopRef, CFRunLoopMode)
{
    session->runLoop = nullptr;
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, const DASessionRef& session, const NSURL& path)
{
    const auto objects = session->objects();
    const auto volume = std::ranges::find_if(objects, [&](const UDisks2::Object& object) {
        return std::ranges::any_of(object.mountPoints,
            [&](const QByteArray& place) { return path.path() == place.constData(); });
    });
    if (volume == objects.end())
        return nullptr;
    const auto wholeDisk = volume->table.path().isEmpty() ? volume.key() : volume->table;
    const UDisks2::Object device = objects.value(wholeDisk);
    const bool isImage = *device.backingFile.constData() != '\0';
    const bool isEjectable = objects.value(volume->drive).isEjectable;
    return std::make_shared<DADisk>(
        DADisk { session, volume.key(), isImage ? wholeDisk : QDBusObjectPath(),
            device.isSelfDetaching, isEjectable ? volume->drive : QDBusObjectPath() });
}

namespace {

// Calls back on the main thread, whose loop is the one there is, if the session is scheduled by
// then.
void answer(const DADiskRef& disk, bool isGranted, DADiskUnmountCallback callback, void* context)
{
    DispatchQueue::main().async([=] {
        const DADissenter dissenter;
        if (disk->session->runLoop)
            callback(disk, isGranted ? nullptr : &dissenter, context);
    });
}

// On a thread of its own, as the calls to the service wait for their answers. Where there is none,
// that is a refusal.
void request(const DADiskRef& disk, bool (DADisk::*work)() const, DADiskUnmountCallback callback,
    void* context)
{
    try {
        DispatchQueue::global().async(
            [=] { answer(disk, (disk.get()->*work)(), callback, context); });
    } catch (const NSError&) {
        answer(disk, false, callback, context);
    }
}

}

void DADiskUnmount(
    const DADiskRef& disk, DADiskUnmountOptions, DADiskUnmountCallback callback, void* context)
{
    request(disk, &DADisk::unmount, callback, context);
}

void DADiskEject(
    const DADiskRef& disk, DADiskEjectOptions, DADiskEjectCallback callback, void* context)
{
    request(disk, &DADisk::eject, callback, context);
}
