#pragma once

#include <memory>

class ViewController;
class WindowQt;

// Creates the parts of the interface file in a window. Returns the controller with its outlets
// connected; the caller passes it to NSWindow::setContentViewController().
std::shared_ptr<ViewController> openMainInterface(WindowQt& window);
