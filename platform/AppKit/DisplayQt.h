#pragma once

#include <string>

// Handling of a missing or lost display.

// Prints a line that begins with the program's name to standard error.
void printError(const std::string& message);

// Installs the handler of the toolkit's messages. A fatal one at the start means that there is no
// display: the process ends with 1 and a line on standard error that states what to do.
void handleToolkitMessages();

// After this call, the loss of the display ends the process; see applicationDidLoseDisplay().
void detectLostDisplay();

// Ends the process because the display is lost. Any thread; the first caller does it.
[[noreturn]] void endWithoutDisplay();
