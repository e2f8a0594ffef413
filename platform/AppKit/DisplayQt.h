#pragma once

#include <string>

// What happens if there is no display, or no longer one.

// Prints a line that begins with the program's name to standard error.
void printError(const std::string& message);

// Installs the handler of the toolkit's messages. A fatal one at the start means that there is no
// display: the process ends with 1 and a line on standard error that states what to do.
void handleToolkitMessages();

// From now on the loss of the display ends the process; see applicationDidLoseDisplay().
void detectLostDisplay();

// Ends the process because the display is lost. Any thread; the first caller does it.
[[noreturn]] void endWithoutDisplay();
