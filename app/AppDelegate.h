#pragma once

#include <AppKit/NSApplication.h>

class AppDelegate : public NSApplicationDelegate {
public:
    void applicationDidFinishLaunching() override;

    void applicationDidLoseDisplay() override;

    // Writes the last line of the log and closes it.
    void applicationWillTerminate() override;

    bool applicationShouldTerminateAfterLastWindowClosed(NSApplication& sender) override;
};
