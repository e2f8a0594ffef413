#include <Foundation/NSRunLoop.h>

class CFRunLoop {};

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
