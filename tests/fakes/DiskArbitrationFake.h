#pragma once

#include <DiskArbitration/DADisk.h>

#include <atomic>
#include <functional>

// A disk service that does what the test says.
struct DiskArbitrationFake {
    bool hasSession = true;
    bool hasDisk = true;
    std::function<bool()> unmount = [] { return true; }; // whether it is granted
    std::function<bool()> eject = [] { return true; };

    bool isInCallback = false;
};

// The one that answers. A request is answered by the main thread's loop, if the session is
// scheduled there.
inline DiskArbitrationFake diskArbitration;

// How many sessions there are, and schedules of theirs. A disk holds its session.
inline std::atomic<int> heldSessions;
