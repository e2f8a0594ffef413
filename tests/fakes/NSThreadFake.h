#pragma once

#include <functional>

// What is called on a thread that is to make a pause, of so many seconds, from now on. No pause is
// made.
void onPause(std::function<void(double seconds)> call);
