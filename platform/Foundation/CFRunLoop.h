#pragma once

#include <functional>

// The loop of a thread. Unlike in CoreFoundation, there is the main thread's alone.
class CFRunLoop;
using CFRunLoopRef = CFRunLoop*;

enum CFRunLoopMode { kCFRunLoopDefaultMode };

// Runs `block` on the thread of the loop, in a later turn. Safe on any thread.
void CFRunLoopPerformBlock(CFRunLoopRef runLoop, CFRunLoopMode mode, std::function<void()> block);
