#pragma once

#include <DiskArbitration/DADisk.h>

#include <functional>
#include <string>
#include <vector>

// A disk service that does what the test says, and writes down what is asked of it.
struct DiskArbitrationFake {
    bool hasSession = true;
    bool hasDisk = true;
    std::function<bool()> unmount = [] { return true; }; // whether it is granted
    std::function<bool()> eject = [] { return true; };

    std::vector<std::string> calls = {};
    DADiskUnmountCallback lastCallback = nullptr;
};

// The one that answers. A request is answered by the main thread's loop, if the session is
// scheduled there.
DiskArbitrationFake& diskArbitration();
