#include "Foundation/NSRunLoop.h"

#include "Dispatch/DispatchQueue.h"

class CFRunLoop { };

const NSRunLoop& NSRunLoop::mainRunLoop()
{
    static const NSRunLoop loop;
    return loop;
}

CFRunLoopRef NSRunLoop::getCFRunLoop() const
{
    static CFRunLoop loop;
    return &loop;
}

void CFRunLoopPerformBlock(CFRunLoopRef, CFRunLoopMode, std::function<void()> block)
{
    // The main queue is all that the main thread's loop runs for others.
    DispatchQueue::main().async(std::move(block));
}
