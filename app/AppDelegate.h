#pragma once

#include <AppKit/NSApplication.h>

class AppDelegate : public NSApplicationDelegate {
public:
    void applicationDidFinishLaunching() override;

    void applicationDidLoseDisplay() override;

    // Writes the last log entry and closes the log.
    void applicationWillTerminate() override;

    bool applicationShouldTerminateAfterLastWindowClosed(NSApplication& sender) override;
};
