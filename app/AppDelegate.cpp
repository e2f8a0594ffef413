#include "AppDelegate.h"

#include "Logger.h"

void AppDelegate::applicationDidFinishLaunching()
{
    // The controller starts the task in viewDidLoad.
}

void AppDelegate::applicationDidLoseDisplay()
{
    sharedLogger().log("display connection lost", Logger::LogLevel::error);
}

void AppDelegate::applicationWillTerminate()
{
    sharedLogger().log("installer exit", Logger::LogLevel::normal);
    sharedLogger().close();
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed(NSApplication&) { return true; }
