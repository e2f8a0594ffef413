#pragma once

// The calling thread.
class NSThread {
public:
    // Whether the caller is the thread the process started with.
    static bool isMainThread();

    // Suspends the caller for that many seconds, or a little longer. Unlike in Foundation, the main
    // thread still answers the desktop meanwhile: it draws, and tells a screen reader what it asks.
    // But no key counts; and work of the main queue that makes a pause holds up what comes after
    // it.
    static void sleepForTimeInterval(double seconds);
};
