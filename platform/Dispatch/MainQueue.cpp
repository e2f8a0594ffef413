#include "MainQueue.h"

#include <Foundation/NSThread.h>

#include <cassert>
#include <chrono>
#include <exception>
#include <memory>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds timeSlice { 8 };

// What a thread that submits synchronously waits for. Shared with the queue, which may still access
// it after the thread has woken.
struct Completion {
    std::atomic<bool> isDone = false;
    ShortWait wait;
};

}

MainQueue::MainQueue(std::function<void()> wakeMainThread)
    : m_wakeMainThread(std::move(wakeMainThread))
{
}

void MainQueue::sync(const std::function<void()>& work)
{
    assert(!NSThread::isMainThread());
    static thread_local const auto completion = std::make_shared<Completion>();
    completion->isDone = false;
    std::exception_ptr error;
    async([&work, &error, completion = completion] {
        try {
            work();
        } catch (...) {
            error = std::current_exception();
        }
        completion->isDone.store(true, std::memory_order_release);
        completion->isDone.notify_one();
    });
    if (!completion->wait.spinUntil(completion->isDone))
        completion->isDone.wait(false, std::memory_order_acquire);
    if (error) std::rethrow_exception(error);
}

void MainQueue::async(std::function<void()> work)
{
    bool wasAwake = false;
    {
        const std::lock_guard lock(m_mutex);
        m_works.push_back(std::move(work));
        m_hasWork.store(true, std::memory_order_relaxed);
        wasAwake = std::exchange(m_isAwake, true);
    }
    if (!wasAwake) m_wakeMainThread();
}

void MainQueue::run()
{
    assert(NSThread::isMainThread());
    const auto end = Clock::now() + timeSlice;
    do {
        while (runNext()) {
            if (Clock::now() < end) continue;
            m_wakeMainThread();
            return;
        }
    } while (m_idle.spinUntil(m_hasWork) || !fallAsleep());
}

bool MainQueue::runNext()
{
    std::function<void()> work;
    {
        const std::lock_guard lock(m_mutex);
        if (m_works.empty()) return false;
        work = std::move(m_works.front());
        m_works.pop_front();
        m_hasWork.store(!m_works.empty(), std::memory_order_relaxed);
    }
    work();
    return true;
}

// Returns false if work was submitted in the meantime.
bool MainQueue::fallAsleep()
{
    const std::lock_guard lock(m_mutex);
    m_isAwake = !m_works.empty();
    return !m_isAwake;
}
