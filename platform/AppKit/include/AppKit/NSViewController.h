#pragma once

#include <AppKit/NSCoder.h>
#include <AppKit/NSView.h>
#include <AppKit/NSWindow.h>

#include <memory>
#include <string>

class NSBundle;

// Stands between a view and what the program is about. Kept by the window it is the content of.
class NSViewController : public std::enable_shared_from_this<NSViewController> {
public:
    virtual ~NSViewController() = default;
    NSViewController(const NSViewController&) = delete;
    NSViewController& operator=(const NSViewController&) = delete;

    // Sent once, when the view is there and the outlets are connected.
    virtual void viewDidLoad() {}

    // The view that the window shows; nullptr when it has gone, or hasn't come.
    std::shared_ptr<NSView> view() const { return m_view.lock(); }

protected:
    NSViewController() = default;

    // Takes the view from an opened interface file. False where there is none.
    bool initWithCoder(const NSCoder& coder)
    {
        if (coder.window) m_view = coder.window->contentView();
        return coder.window != nullptr;
    }

    // Unlike AppKit, no view is loaded for a controller that is made outside its interface file.
    static bool initWithNibName(const std::string&, const NSBundle*) { return true; }

private:
    std::weak_ptr<NSView> m_view;
};
