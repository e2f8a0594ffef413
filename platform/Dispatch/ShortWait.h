#pragma once

#include <atomic>
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
    bool spinUntil(const std::atomic<bool>& isOver);

private:
    static bool hasOtherCore();
    static bool spin(std::chrono::microseconds limit, const std::atomic<bool>& isOver);

    int m_rests = 0; // how many waits from now on poll for the shorter time
    int m_failures = 0;
};
