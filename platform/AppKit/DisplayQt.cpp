#include "DisplayQt.h"

#include "LanguageQt.h"
#include "MainQueue.h"

#include <AppKit/NSApplication.h>
#include <Foundation/NSError.h>

#include <QString>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <unistd.h>

namespace {

// `plugins` is the toolkit's message, which lists the installed platform plugins.
std::string missingDisplay(const QString& plugins)
{
    const auto variable = [](const char* name) { return qgetenv(name).toStdString(); };
    const std::string plugin = variable("QT_QPA_PLATFORM");
    const bool mayBeX = plugin.empty() || plugin.starts_with("xcb");
    const bool mayBeWayland = plugin.empty() || plugin.starts_with("wayland");
    std::string display = plugin;
    std::string sentence = NSLocalizedString("Displays", "plugin not found");
    if (mayBeWayland && !(display = variable("WAYLAND_DISPLAY")).empty())
        sentence = plugins.contains("wayland")
            ? NSLocalizedString("Displays", "Wayland display not found")
            : NSLocalizedString("Displays", "Wayland plugin not found");
    else if (mayBeX && !(display = variable("DISPLAY")).empty())
        sentence = NSLocalizedString("Displays", "X display not found");
    else if (mayBeX || mayBeWayland)
        sentence = NSLocalizedString("Displays", "no display");
    return NSString::stringWithFormat(sentence, { display });
}

// Without a display the toolkit aborts with advice on plugins. When it loses a Wayland compositor,
// it warns on any thread and calls _exit().
void handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (NSApplication::sharedApplication().delegate()) {
        printError(qFormatLogMessage(type, context, message).toStdString());
        if (message.startsWith("The Wayland connection")) endWithoutDisplay();
    } else if (type == QtFatalMsg) {
        installTranslations();
        try {
            prepareDispatchQueues(); // too few descriptors also prevent the connection
            printError(missingDisplay(message));
        } catch (const NSError& error) {
            printError(error.localizedDescription());
        }
        _exit(EXIT_FAILURE);
    }
}

}

void printError(const std::string& message)
{
    std::fprintf(stderr, "%s: %s\n", program_invocation_short_name, message.c_str());
}

void handleToolkitMessages() { qInstallMessageHandler(handle); }

void detectLostDisplay()
{
    // If it loses an X server, the toolkit calls exit() or ends the main loop, depending on its
    // version. Both are handled and neither is assumed. Nothing else calls exit().
    std::atexit(endWithoutDisplay);
}

void endWithoutDisplay()
{
    static std::mutex first;
    first.lock(); // never unlocked
    NSApplicationDelegate& delegate = *NSApplication::sharedApplication().delegate();
    delegate.applicationDidLoseDisplay();
    delegate.applicationWillTerminate();
    _exit(EXIT_FAILURE);
}
