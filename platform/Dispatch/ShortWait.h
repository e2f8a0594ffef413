#pragma once

#include <chrono>

// Waking a thread that sleeps on another core costs several times what a hand-over itself does. So
// a thread that waits for another first looks on for a moment, as long as that has lately been
// enough. With one core it goes to sleep at once: the other could not run meanwhile.
// One thread at a time.
class ShortWait {
public:
    // Whether `isOver` came true within that moment. If not, the caller sleeps, and says so with
    // slept() when it is awake again.
    template <class Condition> bool spinUntil(Condition isOver)
    {
        m_start = Clock::now();
        if (!m_lastWasShort || !hasOtherCore())
            return isOver();
        do {
            for (int i = 0; i < looksPerClockReading; ++i) {
                if (isOver())
                    return true;
                relax();
            }
        } while (Clock::now() - m_start < limit);
        return false;
    }

    void slept() { m_lastWasShort = Clock::now() - m_start < limit; }

private:
    using Clock = std::chrono::steady_clock;

    static constexpr std::chrono::microseconds limit { 200 };
    static constexpr int looksPerClockReading = 32;

    static bool hasOtherCore();
    static void relax();

    Clock::time_point m_start;
    bool m_lastWasShort = true;
};
