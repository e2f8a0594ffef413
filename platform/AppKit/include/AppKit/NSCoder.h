#pragma once

#include <memory>

class NSWindow;

// An opened interface file.
struct NSCoder {
    // The window it describes; nullptr if the file contains none.
    std::shared_ptr<NSWindow> window;
};
