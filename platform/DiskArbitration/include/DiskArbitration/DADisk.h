#pragma once

#include <DiskArbitration/DASession.h>
#include <Foundation/NSURL.h>

#include <memory>

// A disk as the disk service knows it. Safe on any thread.
class DADisk;
using DADiskRef = std::shared_ptr<DADisk>;

// The disk with the volume that is mounted at `path`; nullptr where the service, which is waited
// for, knows none.
DADiskRef DADiskCreateFromVolumePath(
    CFAllocatorRef allocator, const DASessionRef& session, const NSURL& path);

enum DADiskUnmountOptions { kDADiskUnmountOptionDefault };
enum DADiskEjectOptions { kDADiskEjectOptionDefault };

// That a request was refused. Unlike in DiskArbitration, it doesn't say why: nobody asks.
struct DADissenter {};

// Tells the end of a request, once. `dissenter` is nullptr if it was granted, and gone after the
// callback; `context` is what came with the request.
using DADiskUnmountCallback
    = void (*)(const DADiskRef& disk, const DADissenter* dissenter, void* context);
using DADiskEjectCallback = DADiskUnmountCallback;

// Return at once. A request takes as long as the service does, or a person whom it asks.

// Unmounts the volume, unless it is in use.
void DADiskUnmount(const DADiskRef& disk, DADiskUnmountOptions options,
    DADiskUnmountCallback callback, void* context);

// Ejects the whole disk of the volume; if that is a disk image, detaches it from its device as soon
// as nobody uses that, which is never refused.
void DADiskEject(
    const DADiskRef& disk, DADiskEjectOptions options, DADiskEjectCallback callback, void* context);
