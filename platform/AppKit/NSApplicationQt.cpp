#include "AppKit/NSApplication.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

// Without a display Qt ends the program with advice about plugins. Better to say what is missing.
void requireDisplay()
{
    for (const char* const variable : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
        if (std::getenv(variable))
            return;
    std::fputs("There is no display to open a window on: DISPLAY is not set.\n", stderr);
    std::exit(EXIT_FAILURE);
}

// Where no session bus is said to be, the bus library would start one. What is left is to look
// where the session's own would be.
void keepFromStartingABus()
{
    constexpr int keep = 0; // what is said
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:runtime=yes", keep);
}

}

NSApplication& NSApplication::sharedApplication()
{
    static NSApplication application;
    return application;
}

void NSApplication::setDelegate(std::shared_ptr<NSApplicationDelegate> delegate)
{
    m_delegate = std::move(delegate);
}

void NSApplication::activateIgnoringOtherApps()
{
    QTimer::singleShot(0, qApp, [] {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            window->raise();
            window->activateWindow();
        }
    });
}

void NSApplication::lastWindowClosed()
{
    if (!m_delegate->applicationShouldTerminateAfterLastWindowClosed(*this))
        return;
    m_delegate->applicationWillTerminate();
    // Not exit(): a task may still be at work with what that would destroy.
    _exit(0);
}

int NSApplication::run(const std::shared_ptr<NSWindow>& mainWindow)
{
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qApp, &QApplication::lastWindowClosed, [this] { lastWindowClosed(); });
    m_delegate->applicationDidFinishLaunching();
    mainWindow->makeKeyAndOrderFront();
    return QApplication::exec();
}

int NSApplicationMain(int argc, const char* const argv[])
{
    requireDisplay();
    keepFromStartingABus();

    // The arguments are the program's own: from more than its name Qt would take what it knows.
    std::string name = argc > 0 ? argv[0] : "";
    std::array<char*, 2> qtArguments { name.data(), nullptr };
    int qtCount = 1;
    const QApplication qtApplication(qtCount, qtArguments.data());

    NSApplication& application = NSApplication::sharedApplication();
    return application.run(loadMainInterface(application));
}
