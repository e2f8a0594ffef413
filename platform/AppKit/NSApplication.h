#pragma once

#include "AppKit/NSWindow.h"

#include <memory>

class NSApplication;

// Hears of the stages of the program, on the main thread.
class NSApplicationDelegate {
public:
    virtual ~NSApplicationDelegate() = default;

    virtual void applicationDidFinishLaunching() = 0;

    // The process ends right after this.
    virtual void applicationWillTerminate() = 0;

    virtual bool applicationShouldTerminateAfterLastWindowClosed(NSApplication& sender) = 0;
};

class NSApplication {
public:
    static NSApplication& sharedApplication();

    void setDelegate(std::shared_ptr<NSApplicationDelegate> delegate);

    // Brings the window to the front as soon as it is on the screen, and gives it the keyboard, if
    // the desktop lets it.
    void activateIgnoringOtherApps();

private:
    friend int NSApplicationMain(int argc, const char* const argv[]);

    int run(const std::shared_ptr<NSWindow>& mainWindow);
    void lastWindowClosed();

    std::shared_ptr<NSApplicationDelegate> m_delegate;
};

// Loads the main interface, shows its window and runs the main thread's loop. Doesn't return: when
// the delegate has heard that the application will terminate, the process exits with 0, whatever
// other threads are doing.
int NSApplicationMain(int argc, const char* const argv[]);

// Unlike in AppKit, where the name of the main interface file is a property of the bundle, the
// program has this function: it opens its interface file, makes the objects outside the window and
// connects everything. Called once.
std::shared_ptr<NSWindow> loadMainInterface(NSApplication& application);
