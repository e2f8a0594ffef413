#pragma once

#include <Foundation/CoreFoundation.h>

#include <memory>

// The requests of one client of the disk service. Safe on any thread.
class DASession;
using DASessionRef = std::shared_ptr<DASession>;

// Unlike DiskArbitration, does no I/O and is never nullptr: each request connects to the service.
DASessionRef DASessionCreate(CFAllocatorRef allocator);

// From now on, the callbacks of the session's requests run on the thread of that loop. Unlike
// DiskArbitration, callbacks of a session that is not scheduled are dropped.
void DASessionScheduleWithRunLoop(
    const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode mode);

// After this has returned on the loop's thread, no callback runs.
void DASessionUnscheduleFromRunLoop(
    const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode mode);
