#pragma once

#include <memory>
#include <string>

class NSButton;
class NSView;
class NSViewController;

// The window. It owns its views with their constraints, and its controller. Main thread only.
class NSWindow {
public:
    virtual ~NSWindow() = default;

    // The view that fills the window.
    virtual std::shared_ptr<NSView> contentView() const = 0;

    virtual void setTitle(const std::string& title) = 0;

    // Makes the controller the window's own, and tells it that its view is loaded.
    virtual void setContentViewController(std::shared_ptr<NSViewController> controller) = 0;

    // The button that Return and Escape press once they are told to. Unlike in AppKit, the window's
    // own close control presses it, too: while the button is disabled, nothing a person does closes
    // the window.
    virtual void setDefaultButton(const std::shared_ptr<NSButton>& button) = 0;

    // From now on Return and Escape press the default button. Unlike in AppKit, they don't before,
    // and the button takes the keyboard with this.
    virtual void enableKeyEquivalentForDefaultButton() = 0;

    virtual void makeKeyAndOrderFront() = 0;

    // Takes the window off the screen, whatever its button says. The application may end with it.
    virtual void close() = 0;
};
