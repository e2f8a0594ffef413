#pragma once

#include <functional>

// Runs the loop of the main thread until the condition holds, for so many milliseconds at most.
// Whether it does.
bool runMainLoopUntil(const std::function<bool()>& condition, int limit = 10'000);
