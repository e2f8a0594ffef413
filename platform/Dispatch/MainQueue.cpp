#include "MainQueue.h"

#include <Foundation/NSThread.h>

#include <cassert>
#include <chrono>
#include <exception>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds frame { 8 };

}

// What one thread that submits synchronously waits for. Shared with the queue, which may still be
// at it when the thread has already seen it come.
struct MainQueue::Completion {
    std::atomic<bool> isDone = false;
    ShortWait wait;

    void await()
    {
        if (!wait.spinUntil(isDone)) isDone.wait(false, std::memory_order_acquire);
    }

    void signal()
    {
        isDone.store(true, std::memory_order_release);
        isDone.notify_one();
    }
};

MainQueue::MainQueue(std::function<void()> wakeMainThread)
    : m_wakeMainThread(std::move(wakeMainThread))
{
}

void MainQueue::async(std::function<void()> work) { add({ std::move(work), nullptr }); }

void MainQueue::sync(const std::function<void()>& work)
{
    assert(!NSThread::isMainThread());
    static thread_local const auto completion = std::make_shared<Completion>();
    completion->isDone = false;
    std::exception_ptr error;
    const auto workOrNoteError = [&] {
        try {
            work();
        } catch (...) {
            error = std::current_exception();
        }
    };
    add({ workOrNoteError, completion });
    completion->await();
    if (error) std::rethrow_exception(error);
}

void MainQueue::add(Item item)
{
    bool wasAwake = false;
    {
        const std::lock_guard lock(m_mutex);
        m_items.push_back(std::move(item));
        m_hasItems.store(true, std::memory_order_relaxed);
        wasAwake = std::exchange(m_isAwake, true);
    }
    if (!wasAwake) m_wakeMainThread();
}

void MainQueue::run()
{
    assert(NSThread::isMainThread());
    const auto end = Clock::now() + frame;
    do {
        while (runNext()) {
            if (Clock::now() < end) continue;
            m_wakeMainThread();
            return;
        }
    } while (m_idle.spinUntil(m_hasItems) || !fallAsleep());
}

bool MainQueue::runNext()
{
    Item item;
    {
        const std::lock_guard lock(m_mutex);
        if (m_items.empty()) return false;
        item = std::move(m_items.front());
        m_items.pop_front();
        m_hasItems.store(!m_items.empty(), std::memory_order_relaxed);
    }
    item.work();
    if (item.completion) item.completion->signal();
    return true;
}

// Unless something came in the last moment.
bool MainQueue::fallAsleep()
{
    const std::lock_guard lock(m_mutex);
    m_isAwake = !m_items.empty();
    return !m_isAwake;
}
