#pragma once

#include <Foundation/CoreFoundation.h>

// Safe on any thread.
class NSRunLoop {
public:
    static NSRunLoop mainRunLoop() { return {}; }

    CFRunLoopRef getCFRunLoop() const
    {
        static CFRunLoop loop;
        return &loop;
    }
};
