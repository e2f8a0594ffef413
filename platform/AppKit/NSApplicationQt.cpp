#include <AppKit/NSApplication.h>

#include "DispatchActivation.h"

#include <AppKit/NSWindow.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <array>
#include <cassert>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <unistd.h>

namespace {

NSMainInterface::Load& mainInterface()
{
    static NSMainInterface::Load load = nullptr;
    return load;
}

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
    const auto valueOf = [](const char* name) {
        const char* const value = std::getenv(name);
        return std::string(value ? value : "");
    };
    const std::string plugin = valueOf("QT_QPA_PLATFORM");
    const std::string wayland = valueOf("WAYLAND_DISPLAY");
    const std::string display = valueOf("DISPLAY");
    if (!plugin.empty())
        return "by the plugin “" + plugin + "”: install it, or unset QT_QPA_PLATFORM.";
    if (!wayland.empty())
        return "on the Wayland display “" + wayland + "”: "
            + (hasWaylandPlugin ? "check that WAYLAND_DISPLAY names a running compositor."
                                : "install the package qt6-wayland.");
    if (!display.empty())
        return "on the display “" + display + "”: check that DISPLAY names a running X server.";
    return "without a display: start it in a desktop session, or set DISPLAY.";
}

// Where Qt can't have a display it ends the program with advice on plugins, and names those there
// are. Better to say what is missing, and to drop the warnings that lead up to it.
void explainMissingDisplay(QtMsgType type, const QMessageLogContext&, const QString& advice)
{
    if (type != QtFatalMsg)
        return;
    const std::string missing = missingDisplay(advice.contains("wayland"));
    std::fputs(("The window can’t be opened " + missing + "\n").c_str(), stderr);
    _exit(EXIT_FAILURE);
}

// Until the window is on the screen, which it is drawn with. A desktop that shows no window is not
// waited for long: a run needs nobody to look at it.
void awaitFirstFrame(const QWidget& window)
{
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(std::chrono::seconds(1));
    while (!window.windowHandle()->isExposed() && patience.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}

NSMainInterface::NSMainInterface(Load load)
{
    mainInterface() = load;
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
    m_isToBeActive = true;
}

// The toolkit has no other way to say it. Where it loses an X server it calls exit(), which nothing
// else in the program does; where it loses a compositor it warns, on any thread, and calls _exit().
void NSApplication::watchDisplay()
{
    std::atexit(endWithoutDisplay);
    static QtMessageHandler usual = nullptr;
    usual = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            usual(type, context, message);
            if (message.startsWith("The Wayland connection"))
                endWithoutDisplay();
        });
}

void NSApplication::endWithoutDisplay()
{
    static std::mutex once;
    once.lock(); // for good
    NSApplicationDelegate& delegate = *sharedApplication().m_delegate;
    delegate.applicationDidLoseDisplay();
    delegate.applicationWillTerminate();
    _exit(EXIT_FAILURE);
}

void NSApplication::terminate()
{
    m_delegate->applicationWillTerminate();
    // Not exit(): a task may still be at work with what that would destroy.
    _exit(EXIT_SUCCESS);
}

int NSApplication::run()
{
    assert(mainInterface());
    const std::shared_ptr<NSWindow> window = mainInterface()(*this);
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qApp, &QApplication::lastWindowClosed, [this] {
        if (m_delegate->applicationShouldTerminateAfterLastWindowClosed(*this))
            terminate();
    });
    m_delegate->applicationDidFinishLaunching();
    watchDisplay();
    window->makeKeyAndOrderFront();
    QWidget& widget = *QApplication::topLevelWidgets().first();
    awaitFirstFrame(widget);
    if (m_isToBeActive) { // which a desktop ignores before it knows the window
        widget.raise();
        widget.activateWindow();
    }
    activateDispatchQueues();
    return QApplication::exec();
}

int NSApplicationMain(int argc, const char* const argv[])
{
    openStandardDescriptors();
    ignoreSignalsOfWriting();
    keepFromLaunchingABus();

    // Qt gets only argv[0]; the program reads its arguments through NSProcessInfo.
    std::string name = argc > 0 ? argv[0] : "";
    std::array<char*, 2> qtArguments { name.data(), nullptr };
    int qtCount = 1;
    const QtMessageHandler usual = qInstallMessageHandler(explainMissingDisplay);
    const QApplication qtApplication(qtCount, qtArguments.data());
    qInstallMessageHandler(usual);
    return NSApplication::sharedApplication().run();
}
