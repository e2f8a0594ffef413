#pragma once

#include <memory>
#include <string>

class NSView;
class NSViewController;

// The window. It owns its views with their constraints, and its controller. While its default
// button is disabled, nothing a person does closes it. Main thread only.
class NSWindow {
public:
    virtual ~NSWindow() = default;

    // The view that fills the window.
    virtual std::shared_ptr<NSView> contentView() = 0;

    virtual void setTitle(const std::string& title) = 0;

    // Makes the controller the window's own, and tells it that its view is loaded.
    virtual void setContentViewController(std::shared_ptr<NSViewController> controller) = 0;

    // From now on Return and Escape press the default button. Unlike in AppKit, they don't before,
    // the button takes the keyboard with this, and the window's own close control always presses
    // it.
    virtual void enableKeyEquivalentForDefaultButton() = 0;

    // Shows the window. Returns when it is drawn, or after a second on a desktop that shows none.
    virtual void makeKeyAndOrderFront() = 0;

    // Brings the window before those of other programs and asks for the keyboard, which a desktop
    // ignores of a window that isn't shown.
    virtual void orderFrontRegardless() = 0;

    // Takes the window off the screen, whatever its button says. The application may end with it.
    virtual void close() = 0;
};
