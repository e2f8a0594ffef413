#include "UDisks2.h"

#include <DiskArbitration/DADisk.h>
#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSError.h>

#include <algorithm>
#include <atomic>
#include <future>

class DASession {
public:
    std::atomic<CFRunLoopRef> runLoop = nullptr; // nullptr: not scheduled
};

class DADisk {
public:
    // Each returns whether the request was granted.
    bool unmount(const UDisks2& service);
    bool eject(const UDisks2& service);

    const DASessionRef session;
    const std::string mountPoint;

    // Set by unmount(): afterwards the service no longer reports the mount points, and sometimes
    // not the device.
    QDBusObjectPath image = {}; // the loop device of the whole disk image, or none
    bool hasAutoclear = false; // the kernel detaches it after the unmount
    QDBusObjectPath drive = {}; // if it is ejectable
};

bool DADisk::unmount(const UDisks2& service)
{
    const auto objects = service.objects().value_or(UDisks2::Objects());
    const auto volume = std::ranges::find_if(objects, [&](const UDisks2::Object& object) {
        return std::ranges::count(object.mountPoints, mountPoint, &QByteArray::constData) > 0;
    });
    if (volume == objects.end()) return false;
    const auto wholeDisk = volume->table.path().isEmpty() ? volume.key() : volume->table;
    const UDisks2::Object device = objects.value(wholeDisk);
    image = *device.backingFile.constData() ? wholeDisk : QDBusObjectPath();
    hasAutoclear = device.hasAutoclear;
    drive = objects.value(volume->drive).isEjectable ? volume->drive : QDBusObjectPath();

    // Each call removes one mount point. The limit is for a service that removes none.
    constexpr int callLimit = 100;
    for (int i = 0; i < callLimit && service.call(volume.key(), "Filesystem", "Unmount"); ++i)
        if (const auto left = service.objects();
            left && left->value(volume.key()).mountPoints.isEmpty())
            return true;
    return false;
}

bool DADisk::eject(const UDisks2& service)
{
    if (image.path().isEmpty())
        return !drive.path().isEmpty() && service.call(drive, "Drive", "Eject");
    // The reply is ignored: if the device is in use, it is success too, and the kernel detaches the
    // image after the last close. With autoclear, the image may be gone already, and UDisks
    // 2.10.1 may crash when it refuses the call for that reason.
    if (!hasAutoclear) service.call(image, "Loop", "Delete");
    return true;
}

DASessionRef DASessionCreate(CFAllocatorRef) { return std::make_shared<DASession>(); }

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
    return std::make_shared<DADisk>(DADisk { session, path.path() });
}

namespace {

// Runs the callback on the main thread, which has the only run loop, if the session is scheduled by
// then.
void reply(const DADiskRef& disk, bool isGranted, DADiskUnmountCallback callback, void* context)
{
    DispatchQueue::main().async([=] {
        const DADissenter dissenter;
        if (disk->session->runLoop) callback(disk, isGranted ? nullptr : &dissenter, context);
    });
}

// Connects on one thread and works on another, because connecting may block for ever. The request
// is refused if no thread or no connection is available.
void request(const DADiskRef& disk, bool (DADisk::*work)(const UDisks2&),
    DADiskUnmountCallback callback, void* context)
{
    constexpr std::chrono::seconds timeout(20);
    try {
        const auto connection = std::make_shared<std::promise<std::unique_ptr<UDisks2>>>();
        DispatchQueue::global().async(
            [connection] { connection->set_value(std::make_unique<UDisks2>()); });
        DispatchQueue::global().async([=] {
            auto service = connection->get_future();
            const bool isConnected = service.wait_for(timeout) == std::future_status::ready;
            reply(disk, isConnected && (disk.get()->*work)(*service.get()), callback, context);
        });
    } catch (const NSError&) {
        reply(disk, false, callback, context);
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
