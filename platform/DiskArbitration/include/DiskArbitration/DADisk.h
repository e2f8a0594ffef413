#pragma once

#include <DiskArbitration/DASession.h>
#include <Foundation/NSURL.h>

#include <memory>

// A disk with a mounted volume. Safe on any thread; one request at a time.
class DADisk;
using DADiskRef = std::shared_ptr<DADisk>;

// Returns the disk whose volume is mounted at `path`. Unlike DiskArbitration, does no I/O and is
// never nullptr: DADiskUnmount is refused if no volume is mounted there.
DADiskRef DADiskCreateFromVolumePath(
    CFAllocatorRef allocator, const DASessionRef& session, const NSURL& path);

enum DADiskUnmountOptions { kDADiskUnmountOptionDefault };
enum DADiskEjectOptions { kDADiskEjectOptionDefault };

// States that a request was refused. Unlike DiskArbitration, contains no reason.
struct DADissenter {};

// Runs on the main thread, once after the end of a request, or never if the session is not
// scheduled by then. `dissenter` is nullptr if the request was granted; it is valid until the
// callback returns. `context` is the argument of the request and remains the caller's.
using DADiskUnmountCallback
    = void (*)(const DADiskRef& disk, const DADissenter* dissenter, void* context);
using DADiskEjectCallback = DADiskUnmountCallback;

// Requests return at once. They are refused if the connection to the bus takes longer than 20
// seconds, DADiskUnmount also if the service does not list its objects within 25 seconds. The
// unmount and eject calls have no timeout, because the service may flush data or ask the user.

// Unmounts the volume from all its mount points. Refused as soon as one of them is busy; those
// unmounted by then stay unmounted.
void DADiskUnmount(const DADiskRef& disk, DADiskUnmountOptions options,
    DADiskUnmountCallback callback, void* context);

// Ejects the whole disk. Unlike DiskArbitration, requires a granted DADiskUnmount. The detachment
// of a disk image from its loop device is always granted; if the device is in use, it happens after
// the last close.
void DADiskEject(
    const DADiskRef& disk, DADiskEjectOptions options, DADiskEjectCallback callback, void* context);
