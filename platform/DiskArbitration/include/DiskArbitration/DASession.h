#pragma once

#include <Foundation/CoreFoundation.h>

#include <memory>

// A connection to the disk service. Safe on any thread.
class DASession;
using DASessionRef = std::shared_ptr<DASession>;

// nullptr where no service can be reached.
DASessionRef DASessionCreate(CFAllocatorRef allocator);

// From now on the callbacks of the session's requests run on the thread of that loop. Unlike in
// DiskArbitration, those of a session that is not scheduled are dropped.
void DASessionScheduleWithRunLoop(
    const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode mode);

// After this returns on the loop's thread, no callback runs.
void DASessionUnscheduleFromRunLoop(
    const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode mode);
