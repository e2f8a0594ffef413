#pragma once

#include <functional>

// Runs the loop of the main thread until the condition holds, for ten seconds at most. Whether it
// does.
bool runMainLoopUntil(const std::function<bool()>& condition);
