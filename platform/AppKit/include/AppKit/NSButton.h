#pragma once

#include <AppKit/NSView.h>

#include <functional>

class NSButton : public NSView {
public:
    // What a press does. `sender` is this button.
    virtual void setAction(std::function<void(NSView* sender)> action) = 0;

    virtual bool isEnabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;

    // Presses the button as a person would: nothing happens while it is disabled.
    virtual void performClick() = 0;
};
