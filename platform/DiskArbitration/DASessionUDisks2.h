#pragma once

#include "UDisks2.h"

#include <DiskArbitration/DASession.h>

#include <atomic>
#include <functional>

class DASession : public std::enable_shared_from_this<DASession> {
public:
    const UDisks2& service() const { return m_service; }

    // nullptr: unschedules.
    void schedule(CFRunLoopRef runLoop) { m_runLoop = runLoop; }

    // Runs the callback where the session is scheduled, if it still is by then.
    void deliver(std::function<void()> callback);

private:
    const UDisks2 m_service;
    std::atomic<CFRunLoopRef> m_runLoop = nullptr;
};
