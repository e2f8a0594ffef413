#pragma once

#include "ShortWait.h"

#include <Dispatch/DispatchQueue.h>

#include <atomic>
#include <deque>
#include <memory>
#include <mutex>

// The main thread's queue without the main thread's loop: when there is work and nobody is at it,
// `wakeMainThread` is called, from any thread; the loop then calls run() on the main thread.
class MainQueue : public DispatchMainQueue {
public:
    explicit MainQueue(std::function<void()> wakeMainThread);

    void async(std::function<void()> work) override;
    void sync(const std::function<void()>& work) override;

    // Runs what is there and what follows closely; but not for longer than a frame stays on
    // the screen, so that the loop gets to draw and to hear the person.
    void run();

private:
    struct Completion;
    struct Item {
        std::function<void()> work;
        std::shared_ptr<Completion> completion; // none: nobody waits
    };

    void add(Item item);
    bool runNext();
    bool fallAsleep();

    const std::function<void()> m_wakeMainThread;
    std::mutex m_mutex; // guards the two below
    std::deque<Item> m_items;
    bool m_isAwake = false; // run() is at work or about to be called
    std::atomic<bool> m_hasItems = false;
    ShortWait m_idle; // on the main thread
};

// The queues start inactive: what is submitted waits for this call, which is made once, on the main
// thread, when the application is on the screen. A task that had begun before could put the main
// thread to sleep with nothing shown yet.
void activateDispatchQueues();
