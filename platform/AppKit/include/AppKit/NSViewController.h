#pragma once

#include <AppKit/NSCoder.h>
#include <AppKit/NSView.h>
#include <AppKit/NSWindow.h>

#include <memory>
#include <string>

class NSBundle;

// Controls the content of a window, which owns it. Main thread only.
class NSViewController : public std::enable_shared_from_this<NSViewController> {
public:
    virtual ~NSViewController() = default;
    NSViewController(const NSViewController&) = delete;
    NSViewController& operator=(const NSViewController&) = delete;

    // Sent once, when the view exists and the outlets are connected.
    virtual void viewDidLoad() {}

    // The view of the controller; nullptr before it is loaded and after it is destroyed.
    std::shared_ptr<NSView> view() const { return m_view.lock(); }

protected:
    NSViewController() = default;

    // Sets the view to that of an opened interface file. Returns false if it contains none.
    bool initWithCoder(const NSCoder& coder)
    {
        if (coder.window) m_view = coder.window->contentView();
        return coder.window != nullptr;
    }

    // Unlike AppKit, loads no view.
    static bool initWithNibName(const std::string&, const NSBundle*) { return true; }

private:
    std::weak_ptr<NSView> m_view;
};
