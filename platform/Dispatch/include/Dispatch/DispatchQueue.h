#pragma once

#include <functional>

class DispatchMainQueue;

// Runs work on other threads.
class DispatchQueue {
public:
    virtual ~DispatchQueue() = default;

    // The queue of the main thread: serial, first in, first out.
    static DispatchMainQueue& main();

    // The concurrent background queue: each submission runs on a thread of its own, after the
    // window has been shown. The process ends without waiting for it. Unlike in Grand
    // Central Dispatch, async() throws an NSError if no thread can be created.
    static DispatchQueue& global();

    // Returns at once. Safe on any thread. `work` must not throw.
    virtual void async(std::function<void()> work) = 0;
};

class DispatchMainQueue : public DispatchQueue {
public:
    // Returns when `work` has run. Unlike in Grand Central Dispatch, rethrows its exception. Any
    // thread except the main thread, where it would deadlock.
    virtual void sync(const std::function<void()>& work) = 0;
};
