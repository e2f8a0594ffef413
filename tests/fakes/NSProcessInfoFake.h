#pragma once

#include <string>
#include <vector>

// What NSProcessInfo tells from now on.
void setArguments(std::vector<std::string> arguments);
