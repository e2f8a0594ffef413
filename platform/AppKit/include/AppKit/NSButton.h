#pragma once

#include <AppKit/NSView.h>

#include <string>

class NSButton : public NSView {
public:
    virtual void setEnabled(bool enabled) = 0;

    // What a screen reader adds when the button receives the keyboard focus.
    virtual void setAccessibilityHelp(const std::string& help) = 0;
};
