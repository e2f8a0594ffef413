#pragma once

#include <functional>
#include <string>
#include <vector>

// What is told by the parts of Foundation that depend on the machine and the time.
struct FoundationFake {
    std::vector<std::string> arguments = {};
    std::vector<std::string> mountPoints = {};

    // Called on a thread that is to make a pause of so many seconds. No pause is made.
    std::function<void(double)> onPause = [](double) {};
};

inline FoundationFake foundation; // the one that answers
