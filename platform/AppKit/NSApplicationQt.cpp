#include <AppKit/NSApplication.h>

#include "LanguageQt.h"
#include "MainQueue.h"

#include <AppKit/NSWindow.h>
#include <Foundation/NSString.h>

#include <QApplication>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <unistd.h>

namespace {

// What is written to a standard descriptor that was closed would end up in the next file opened.
void openStandardDescriptors()
{
    int lowest = 0;
    do
        lowest = open("/dev/null", O_RDWR);
    while (lowest >= 0 && lowest <= STDERR_FILENO);
    close(lowest);
}

// A log or a pipe that can't be written to is dealt with where that is tried.
void ignoreSignalsOfWriting()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

// Without an address the bus library would launch a bus.
void keepFromLaunchingABus()
{
    constexpr int keep = 0; // an address that is there
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:runtime=yes", keep);
}

std::string missingDisplay(bool hasWaylandPlugin)
{
    std::string wayland = NSLocalizedString("Displays",
        "The window can’t be opened on the Wayland display “%1”: install the package qt6-wayland.");
    if (hasWaylandPlugin)
        wayland = NSLocalizedString("Displays",
            "The window can’t be opened on the Wayland display “%1”: check that WAYLAND_DISPLAY "
            "names a running compositor.");
    const std::string plugin = NSLocalizedString("Displays",
        "The window can’t be opened by the plugin “%1”: install it, or unset QT_QPA_PLATFORM.");
    const std::string x = NSLocalizedString("Displays",
        "The window can’t be opened on the display “%1”: check that DISPLAY names a running X "
        "server.");
    for (const auto& [name, sentence] : std::initializer_list<std::pair<const char*, std::string>> {
             { "QT_QPA_PLATFORM", plugin }, { "WAYLAND_DISPLAY", wayland }, { "DISPLAY", x } })
        if (const char* const value = std::getenv(name); value && *value)
            return NSString::stringWithFormat(sentence, { value });
    return NSLocalizedString("Displays",
        "The window can’t be opened without a display: start it in a desktop session, or set "
        "DISPLAY.");
}

// Once, on whichever thread comes first.
[[noreturn]] void endWithoutDisplay()
{
    static std::mutex never;
    never.lock(); // and nobody unlocks it
    NSApplicationDelegate& delegate = *NSApplication::sharedApplication().delegate();
    delegate.applicationDidLoseDisplay();
    delegate.applicationWillTerminate();
    _exit(EXIT_FAILURE);
}

// Where the toolkit can't have a display it ends the program with advice on plugins, and names
// those there are. Better to say what is missing, and to drop the warnings that lead up to it.
// Later on it warns on any thread that it has lost a compositor, and calls _exit().
void hear(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (NSApplication::sharedApplication().delegate()) {
        std::fputs(qPrintable(qFormatLogMessage(type, context, message) + '\n'), stderr);
        if (message.startsWith("The Wayland connection")) endWithoutDisplay();
    } else if (type == QtFatalMsg) {
        speakChosenLanguage();
        std::fputs((missingDisplay(message.contains("wayland")) + "\n").c_str(), stderr);
        _exit(EXIT_FAILURE);
    }
}

[[noreturn]] void run(NSApplication& application)
{
    const std::shared_ptr<NSWindow> window = loadMainInterface(application);
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qApp, &QApplication::lastWindowClosed, [&application] {
        if (application.delegate()->applicationShouldTerminateAfterLastWindowClosed(application))
            application.terminate();
    });
    application.delegate()->applicationDidFinishLaunching();
    // Where the toolkit loses an X server it calls exit(), which nothing else in the program does.
    std::atexit(endWithoutDisplay);
    window->makeKeyAndOrderFront();
    if (application.isToBeActive()) window->orderFrontRegardless();
    activateDispatchQueues();
    QApplication::exec();
    application.terminate();
}

}

NSApplication& NSApplication::sharedApplication()
{
    static NSApplication application;
    return application;
}

void NSApplication::terminate()
{
    m_delegate->applicationWillTerminate();
    // Not exit(): a task may still be at work with what that would destroy.
    _exit(EXIT_SUCCESS);
}

int NSApplicationMain(int argc, const char* const argv[])
{
    openStandardDescriptors();
    ignoreSignalsOfWriting();
    keepFromLaunchingABus();
    chooseLanguage();

    // Qt gets only argv[0]; the program reads its arguments through NSProcessInfo.
    std::string name = argc > 0 ? argv[0] : "";
    std::array<char*, 2> qtArguments { name.data(), nullptr };
    int qtCount = 1;
    qInstallMessageHandler(hear);
    const QApplication qtApplication(qtCount, qtArguments.data());
    speakChosenLanguage();
    run(NSApplication::sharedApplication());
}
