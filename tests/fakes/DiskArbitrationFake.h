#pragma once

#include <DiskArbitration/DADisk.h>

// A disk service with configured replies.
struct DiskArbitrationFake {
    bool hasSession = true;
    bool hasDisk = true;
    int refusals = 0; // to unmount
    bool holdsBundle = true; // unmounting removes the bundle in the applications folder
    bool isEjected = true;

    bool isInCallback = false;
    std::weak_ptr<DASession> session = {}; // the last; disks and the schedule own sessions
};

// The service that replies, on the main thread's loop, if the session is scheduled there.
inline DiskArbitrationFake diskArbitration;
