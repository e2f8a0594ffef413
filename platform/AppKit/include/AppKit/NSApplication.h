#pragma once

#include <memory>

class NSApplication;
class NSWindow;

// Hears of the stages of the program, on the main thread, save of the end without a display.
class NSApplicationDelegate {
public:
    virtual ~NSApplicationDelegate() = default;

    virtual void applicationDidFinishLaunching() = 0;

    // Unlike with AppKit, the window's display may go away in the middle of a run, whose end that
    // is: applicationWillTerminate() follows, on the same thread, whichever notices it, and the
    // process ends with 1.
    virtual void applicationDidLoseDisplay() = 0;

    // The process ends right after this.
    virtual void applicationWillTerminate() = 0;

    virtual bool applicationShouldTerminateAfterLastWindowClosed(NSApplication& sender) = 0;
};

// Main thread only.
class NSApplication {
public:
    static NSApplication& sharedApplication();

    const std::shared_ptr<NSApplicationDelegate>& delegate() const { return m_delegate; }
    void setDelegate(std::shared_ptr<NSApplicationDelegate> delegate)
    {
        m_delegate = std::move(delegate);
    }

    // Brings the window to the front as soon as it is on the screen, and gives it the keyboard, if
    // the desktop lets it.
    void activateIgnoringOtherApps() { m_isToBeActive = true; }
    bool isToBeActive() const { return m_isToBeActive; }

    // Tells the delegate and ends the process with 0, whatever other threads are doing.
    [[noreturn]] void terminate();

private:
    std::shared_ptr<NSApplicationDelegate> m_delegate;
    bool m_isToBeActive = false;
};

// Loads the main interface, shows its window and runs the main thread's loop. Work for other
// threads begins when the first frame is on the screen. Doesn't return: the process ends with
// terminate() when the last window has closed. Where no display can be had it ends with 1, and with
// a line on standard error that says what to do.
int NSApplicationMain(int argc, const char* const argv[]);

// Opens the program's main interface, makes the objects outside its window, such as the delegate,
// and connects everything. Unlike with AppKit, where a property of the bundle names a file, the
// program defines this function.
std::shared_ptr<NSWindow> loadMainInterface(NSApplication& application);
