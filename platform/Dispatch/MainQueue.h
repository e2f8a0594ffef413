#pragma once

#include "ShortWait.h"

#include <Dispatch/DispatchQueue.h>

#include <atomic>
#include <deque>
#include <mutex>

// The main queue without the main loop. If run() is not active when work is submitted, or if work
// is left when it returns, calls `wakeMainThread` on any thread; the main loop then calls run() on
// the main thread.
class MainQueue : public DispatchMainQueue {
public:
    explicit MainQueue(std::function<void()> wakeMainThread);

    void async(std::function<void()> work) override;
    void sync(const std::function<void()>& work) override;

    // Runs the queued work and what follows within a short wait. After 8 ms, returns when the
    // current work has run, so that the main loop can repaint and process input.
    void run();

private:
    bool runNext();
    bool fallAsleep();

    const std::function<void()> m_wakeMainThread;
    std::mutex m_mutex; // guards the next two members
    std::deque<std::function<void()>> m_works;
    bool m_isAwake = false; // run() is active or about to be called
    std::atomic<bool> m_hasWork = false;
    ShortWait m_idle; // on the main thread
};

// Creates the main queue, on the main thread. Throws an NSError if the process cannot open the
// files that it needs.
void prepareDispatchQueues();

// The queues start inactive: submitted work waits for this call, which is made once, on the main
// thread, when the first frame is on the screen or after one second. A task that started earlier
// could block the main thread behind an empty window.
void activateDispatchQueues();
