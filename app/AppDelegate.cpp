#include "AppDelegate.h"

#include "Logger.h"

void AppDelegate::applicationDidFinishLaunching()
{
    // The work starts from the controller, when its view is loaded.
}

void AppDelegate::applicationDidLoseDisplay()
{
    sharedLogger().log("the display was lost, and the run ends here", Logger::LogLevel::error);
}

void AppDelegate::applicationWillTerminate()
{
    sharedLogger().log("installer exit", Logger::LogLevel::normal);
    sharedLogger().close();
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed(NSApplication&) { return true; }
