#pragma once

// The calling thread.
class NSThread {
public:
    // Returns whether the caller is the first thread of the process.
    static bool isMainThread();

    // Blocks the caller for that many seconds (on the main thread, whole milliseconds). Unlike in
    // Foundation, the main thread keeps repainting and answers screen readers. User input is
    // deferred; so is the work of the main queue, if the caller is such work.
    static void sleepForTimeInterval(double seconds);
};
