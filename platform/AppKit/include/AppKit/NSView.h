#pragma once

#include <Foundation/NSGeometry.h>

class NSWindow;

// A part of a window, which owns it. Main thread only, like everything in this framework.
class NSView {
public:
    virtual ~NSView() = default;

    // The view's own area, its origin at (0, 0).
    virtual NSRect bounds() const = 0;

    // The window that contains the view and owns it; nullptr if there is none.
    virtual NSWindow* window() const = 0;
};
