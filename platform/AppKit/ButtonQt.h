#pragma once

#include "ViewQt.h"

#include <AppKit/NSButton.h>

#include <QPushButton>

class ButtonQt : public ViewQt<NSButton, QPushButton> {
public:
    using ViewQt::ViewQt;

    void setAction(std::function<void(NSView* sender)> action) override;
    bool isEnabled() const override { return widget().isEnabled(); }
    void setEnabled(bool enabled) override { widget().setEnabled(enabled); }
    void performClick() override { widget().click(); }

    // Return presses it wherever the keyboard is in the window, and Space, as it is here.
    void takeKeyboard();
};
