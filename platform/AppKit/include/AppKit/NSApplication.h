#pragma once

#include <memory>

class NSApplication;
class NSWindow;

// Receives the stages of the program, on the main thread unless stated otherwise.
class NSApplicationDelegate {
public:
    virtual ~NSApplicationDelegate() = default;

    virtual void applicationDidFinishLaunching() = 0;

    // Not in AppKit: the connection to the display is lost, for example because the X server has
    // died. Sent on the thread that detects it; applicationWillTerminate() follows on the same
    // thread, and the process ends with 1.
    virtual void applicationDidLoseDisplay() = 0;

    // The process ends right after this. On the main thread, or see applicationDidLoseDisplay().
    virtual void applicationWillTerminate() = 0;

    virtual bool applicationShouldTerminateAfterLastWindowClosed(NSApplication& sender) = 0;
};

// Main thread only, except delegate() after it has been set.
class NSApplication {
public:
    static NSApplication& sharedApplication();

    const std::shared_ptr<NSApplicationDelegate>& delegate() const { return m_delegate; }
    void setDelegate(std::shared_ptr<NSApplicationDelegate> delegate)
    {
        m_delegate = std::move(delegate);
    }

    // Brings the window to the front with the keyboard focus when it is shown, if the desktop
    // permits it.
    void activateIgnoringOtherApps() { m_isToBeActive = true; }
    bool isToBeActive() const { return m_isToBeActive; }

    // Sends applicationWillTerminate() and ends the process with 0. Does not wait for other
    // threads.
    [[noreturn]] void terminate();

private:
    std::shared_ptr<NSApplicationDelegate> m_delegate;
    bool m_isToBeActive = false;
};

// Loads the main interface, shows its window and runs the main loop. Background work starts when
// the first frame is on the screen, after one second at the latest. Does not return: when the last
// window has closed and the delegate agrees, the process ends with terminate(). If the display
// cannot be opened, the process ends with 1 and a line on standard error that states what to do.
int NSApplicationMain(int argc, const char* const argv[]);

// Opens the main interface, creates the delegate, and connects everything. Unlike in AppKit, where
// a property of the bundle names the interface file, the program defines this function.
std::shared_ptr<NSWindow> loadMainInterface(NSApplication& application);
