#pragma once

// The loop of a thread. Unlike in CoreFoundation, there is the main thread's alone.
class CFRunLoop;
using CFRunLoopRef = CFRunLoop*;

enum CFRunLoopMode { kCFRunLoopDefaultMode };
