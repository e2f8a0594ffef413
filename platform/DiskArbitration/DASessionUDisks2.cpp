#include "DASessionUDisks2.h"

#include <Dispatch/DispatchQueue.h>

void DASession::deliver(std::function<void()> callback)
{
    if (!m_runLoop)
        return;
    // The one loop there is runs the main queue.
    DispatchQueue::main().async([session = shared_from_this(), callback = std::move(callback)] {
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
