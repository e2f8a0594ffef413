#pragma once

#include <algorithm>
#include <chrono>

// Waking a thread that sleeps on another core costs several times what a hand-over itself does. So
// a thread that waits for another polls first, for as long as a file or the log usually needs.
//
// Polls for 1 ms before it sleeps. After a poll in vain the next 1, 3, 7 … 255 waits poll for 50
// µs, the cost of one wake-up, so that a busy machine keeps its cores. With one core it sleeps at
// once. One thread at a time.
class ShortWait {
public:
    // Whether `isOver` came true while it was polled. If not, the caller sleeps.
    template <class Condition> bool spinUntil(const Condition& isOver)
    {
        if (!hasOtherCore())
            return isOver();
        const bool rests = m_rests > 0;
        const bool wasWorthIt = spin(rests ? wakingUp : usualWork, isOver);
        if (wasWorthIt)
            m_failures /= 2;
        else if (rests)
            --m_rests;
        else
            m_rests = m_failures = std::min(2 * m_failures + 1, mostRests);
        return wasWorthIt;
    }

private:
    using Clock = std::chrono::steady_clock;

    static constexpr std::chrono::microseconds wakingUp { 50 };
    static constexpr std::chrono::microseconds usualWork { 1000 };
    static constexpr int pollsPerClockReading = 32;
    static constexpr int mostRests = 255;

    static bool hasOtherCore();
    static void relax();

    template <class Condition> static bool spin(Clock::duration limit, const Condition& isOver)
    {
        const auto end = Clock::now() + limit;
        do {
            for (int i = 0; i < pollsPerClockReading; ++i) {
                if (isOver())
                    return true;
                relax();
            }
        } while (Clock::now() < end);
        return false;
    }

    int m_rests = 0; // how many waits from now on poll for the shorter time
    int m_failures = 0;
};
