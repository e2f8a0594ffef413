#pragma once

// The part of CoreFoundation that DiskArbitration requires.

// Unlike in CoreFoundation, has no effect.
class CFAllocator;
using CFAllocatorRef = CFAllocator*;

inline CFAllocatorRef CFAllocatorGetDefault() { return nullptr; }

// The run loop of a thread. Unlike in CoreFoundation, only that of the main thread exists.
class CFRunLoop {};
using CFRunLoopRef = CFRunLoop*;

enum CFRunLoopMode { kCFRunLoopDefaultMode };
