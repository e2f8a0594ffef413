#include <AppKit/NSApplication.h>

#include "DisplayQt.h"
#include "LanguageQt.h"
#include "MainQueue.h"

#include <AppKit/NSWindow.h>
#include <Foundation/NSError.h>
#include <Foundation/NSProcessInfo.h>

#include <QApplication>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

// If a standard descriptor is closed, the next opened file would receive the program's output.
void openStandardDescriptors()
{
    int lowest = 0;
    while ((lowest = open("/dev/null", O_RDWR)) >= 0 && lowest <= STDERR_FILENO) {}
    close(lowest);
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
    detectLostDisplay();
    window->makeKeyAndOrderFront();
    if (application.isToBeActive()) window->orderFrontRegardless();
    activateDispatchQueues();
    QApplication::exec();
    endWithoutDisplay(); // the loop may end if the toolkit loses an X server; see DisplayQt
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
    // Not exit(), which would destroy objects that a task may still use.
    _exit(EXIT_SUCCESS);
}

int NSApplicationMain(int argc, const char* const argv[])
try {
    openStandardDescriptors();
    std::signal(SIGPIPE, SIG_IGN); // the calls that write report these errors
    std::signal(SIGXFSZ, SIG_IGN);
    // Without an address the D-Bus library would start a session bus.
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:runtime=yes", 0);
    chooseLanguage();
    NSProcessInfo::initialize(argc, argv);

    // The toolkit gets only argv[0].
    std::string name = argc > 0 ? argv[0] : "";
    std::array<char*, 2> qtArguments { name.data(), nullptr };
    int qtCount = 1;
    handleToolkitMessages();
    const QApplication qtApplication(qtCount, qtArguments.data());
    installTranslations();
    prepareDispatchQueues();
    run(NSApplication::sharedApplication());
} catch (const NSError& error) {
    printError(error.localizedDescription());
    _exit(EXIT_FAILURE);
}
