#pragma once

#include <string>

// What a person sees of the one window, and does to it.

bool isWindowOnScreen();

// Selects all text in the result pane, copies it, and tells what was copied.
std::string copyAllText();
