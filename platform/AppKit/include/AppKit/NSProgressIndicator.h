#pragma once

#include <AppKit/NSView.h>

// A progress bar, initially with the range and value from the interface file.
class NSProgressIndicator : public NSView {
public:
    virtual void setMinValue(double value) = 0;
    virtual void setMaxValue(double value) = 0;

    // Clamps the value to the range.
    virtual void setDoubleValue(double value) = 0;
};
