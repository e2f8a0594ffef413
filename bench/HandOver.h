#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

// The two ways in which a thread can wait for another. A signal is raised by one thread and awaited
// by one other, which thereby lowers it.

// Waits in a condition variable.
class SleepingSignal {
public:
    void raise()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isRaised = true;
        }
        m_changed.notify_one();
    }

    void await()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isRaised; });
        m_isRaised = false;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isRaised = false;
};

// First looks on for a moment, which spares the other thread the waking. Each time that was in vain
// it looks on less often, or on a machine with other work to do the two would wait for a core that
// the one is only looking from.
class SpinningSignal {
public:
    void raise()
    {
        m_isRaised.store(true, std::memory_order_release);
        m_sleep.raise();
    }

    void await()
    {
        if (m_rests > 0)
            --m_rests;
        else if (!spin())
            m_rests = m_failures = std::min(2 * m_failures + 1, 255);
        else
            m_failures /= 2;
        m_sleep.await();
        m_isRaised.store(false, std::memory_order_relaxed);
    }

private:
    using Clock = std::chrono::steady_clock;

    static void relax()
    {
#if defined(__x86_64__)
        __builtin_ia32_pause();
#endif
    }

    bool spin() const
    {
        const auto end = Clock::now() + std::chrono::microseconds(200);
        do {
            for (int look = 0; look < 32; ++look, relax())
                if (m_isRaised.load(std::memory_order_acquire)) return true;
        } while (Clock::now() < end);
        return false;
    }

    std::atomic<bool> m_isRaised = false;
    SleepingSignal m_sleep;
    int m_rests = 0;
    int m_failures = 0;
};
