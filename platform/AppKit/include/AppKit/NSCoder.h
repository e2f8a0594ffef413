#pragma once

#include <memory>

class NSWindow;

// An opened interface file.
struct NSCoder {
    // The window it describes; nullptr where the file holds none.
    std::shared_ptr<NSWindow> window;
};
