#pragma once

#include <AppKit/NSView.h>

// A bar that shows how much of something is done. It starts with the range and value that the
// interface file gives it.
class NSProgressIndicator : public NSView {
public:
    virtual void setMinValue(double value) = 0;
    virtual void setMaxValue(double value) = 0;

    // Values outside the range show as the end they lie beyond.
    virtual void setDoubleValue(double value) = 0;
};
