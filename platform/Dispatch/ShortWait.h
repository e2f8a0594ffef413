#pragma once

#include <atomic>

// A short spin before a thread sleeps. Waking a thread on another core costs several times what a
// dispatch itself does, so a waiting thread spins for as long as a file operation or a log entry
// usually lasts.
//
// Spins for 1 ms. After an unsuccessful spin, the next 1, 3, 7 … 255 unsuccessful spins last only
// 50 µs, the cost of one wake-up, so that a busy machine can use its cores. Each success halves the
// number that the next unsuccessful long spin starts from. Does not spin on a single core. One
// thread at a time.
class ShortWait {
public:
    // Returns whether `isOver` became true during the spin. Otherwise the caller sleeps.
    bool spinUntil(const std::atomic<bool>& isOver);

private:
    int m_shortSpinsLeft = 0;
    int m_shortSpins = 0; // after the last unsuccessful long spin
};
