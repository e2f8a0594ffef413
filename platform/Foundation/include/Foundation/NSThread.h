#pragma once

// The calling thread.
class NSThread {
public:
    // Whether the caller is the thread the process started with.
    static bool isMainThread();

    // Suspends the caller for that many seconds, or a little longer.
    static void sleepForTimeInterval(double seconds);
};
