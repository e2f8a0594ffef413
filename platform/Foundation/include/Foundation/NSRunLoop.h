#pragma once

#include <Foundation/CFRunLoop.h>

// Safe on any thread.
class NSRunLoop {
public:
    static const NSRunLoop& mainRunLoop();

    CFRunLoopRef getCFRunLoop() const;
};
