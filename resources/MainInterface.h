#pragma once

#include <memory>

class ViewController;
class WindowQt;

// Opens the interface file into a window. The controller, connected, but neither the window's own
// nor started yet.
std::shared_ptr<ViewController> openMainInterface(WindowQt& window);
