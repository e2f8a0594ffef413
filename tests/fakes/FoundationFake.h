#pragma once

#include <functional>
#include <string>
#include <vector>

// Replaces the functions of Foundation that depend on the mounted volumes or the time.
struct FoundationFake {
    std::vector<std::string> mountPoints = {};

    // Called in place of a pause, on its thread.
    std::function<void(double seconds)> onPause = [](double) {};
};

inline FoundationFake foundation; // the one in use
