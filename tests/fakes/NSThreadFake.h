#pragma once

#include <vector>

// The pauses, in seconds, that threads were to make since the last call. None is made.
std::vector<double> takePauses();
