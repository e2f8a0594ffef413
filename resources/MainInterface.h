#pragma once

#include "AppKit/NSCoder.h"

#include <memory>

class ViewController;

// The window that the interface file describes, not connected to anything yet.
NSCoder openMainInterface();

// All connections between the interface file and the program. The controller becomes the window's
// own and starts.
void connectMainInterface(const NSCoder& coder, const std::shared_ptr<ViewController>& controller);
