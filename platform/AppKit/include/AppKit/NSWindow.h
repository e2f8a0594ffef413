#pragma once

#include <memory>
#include <string>

class NSView;
class NSViewController;

// The window. Owns its views, their constraints and its controller. While its default button is
// disabled, the user cannot close it. Main thread only.
class NSWindow {
public:
    virtual ~NSWindow() = default;

    virtual std::shared_ptr<NSView> contentView() = 0;

    virtual void setTitle(const std::string& title) = 0;

    // Takes ownership of the controller and sends it viewDidLoad().
    virtual void setContentViewController(std::shared_ptr<NSViewController> controller) = 0;

    // From now on Return and Escape press the default button, which receives the keyboard focus.
    // Not in AppKit: before this call the keys have no effect. The window's close control always
    // presses the button.
    virtual void enableKeyEquivalentForDefaultButton() = 0;

    // Shows the window. Returns when the first frame is drawn and the position of the window is
    // known, or after one second.
    virtual void makeKeyAndOrderFront() = 0;

    // Brings the window to the front and requests the keyboard focus, which the desktop may refuse.
    // Call after the window is shown.
    virtual void orderFrontRegardless() = 0;

    // Closes the window, even if its button is disabled. The application may terminate.
    virtual void close() = 0;
};
