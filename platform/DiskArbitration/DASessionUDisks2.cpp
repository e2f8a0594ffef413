#include "DiskArbitration/DASessionUDisks2.h"

void DASession::deliver(std::function<void()> callback)
{
    auto* const runLoop = m_runLoop.load();
    if (!runLoop)
        return;
    CFRunLoopPerformBlock(runLoop, kCFRunLoopDefaultMode,
        [session = shared_from_this(), callback = std::move(callback)] {
            if (session->m_runLoop)
                callback();
        });
}

DASessionRef DASessionCreate(CFAllocatorRef)
{
    const auto session = std::make_shared<DASession>();
    return session->service().isConnected() ? session : nullptr;
}

void DASessionScheduleWithRunLoop(const DASessionRef& session, CFRunLoopRef runLoop, CFRunLoopMode)
{
    session->schedule(runLoop);
}

void DASessionUnscheduleFromRunLoop(const DASessionRef& session, CFRunLoopRef, CFRunLoopMode)
{
    session->schedule(nullptr);
}
