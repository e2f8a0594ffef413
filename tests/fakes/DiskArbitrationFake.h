#pragma once

#include <DiskArbitration/DADisk.h>

// A disk service that does what the test says.
struct DiskArbitrationFake {
    bool hasSession = true;
    bool hasDisk = true;
    int refusals = 0; // to unmount
    bool holdsBundle = true; // the volume: with it the one in the applications folder goes
    bool isEjected = true;

    bool isInCallback = false;
    std::weak_ptr<DASession> session = {}; // the last; a disk holds its own, and so does a schedule
};

// The one that answers. A request is answered by the main thread's loop, if the session is
// scheduled there.
inline DiskArbitrationFake diskArbitration;
