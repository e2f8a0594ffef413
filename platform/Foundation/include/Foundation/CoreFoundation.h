#pragma once

// What DiskArbitration takes of CoreFoundation.

// Unlike in CoreFoundation, where objects are made is up to the language.
class CFAllocator;
using CFAllocatorRef = CFAllocator*;

inline CFAllocatorRef CFAllocatorGetDefault() { return nullptr; }

// The loop of a thread. Unlike in CoreFoundation, there is the main thread's alone.
class CFRunLoop {};
using CFRunLoopRef = CFRunLoop*;

enum CFRunLoopMode { kCFRunLoopDefaultMode };
