#pragma once

#include "AppKit/NSView.h"

#include <functional>

class QPushButton;

class NSButton : public NSView {
public:
    explicit NSButton(QWidget* widget);

    // What a press does. `sender` is this button.
    void setAction(std::function<void(NSView* sender)> action);

    // Unlike AppKit, a button that becomes enabled takes the keyboard.
    bool isEnabled() const;
    void setEnabled(bool enabled);

    // Presses the button as a person would: nothing happens while it is disabled.
    void performClick();

private:
    QPushButton* const m_button;
};
