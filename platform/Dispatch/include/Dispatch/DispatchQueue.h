#pragma once

#include <functional>

class DispatchMainQueue;

// Runs work on other threads.
class DispatchQueue {
public:
    virtual ~DispatchQueue() = default;

    // The main thread's queue: serial, first in first out.
    static DispatchMainQueue& main();

    // The background queue: everything submitted runs at once, each on a thread of its own, which
    // nobody waits for when the process ends. Unlike on the platform, async() throws an NSError
    // where no thread can be had.
    static DispatchQueue& global();

    // Returns at once. Safe on any thread.
    virtual void async(std::function<void()> work) = 0;
};

class DispatchMainQueue : public DispatchQueue {
public:
    // Returns when `work` has run. Unlike on the platform, throws what that threw. From any thread
    // but the main thread, where it never returns.
    virtual void sync(const std::function<void()>& work) = 0;
};
