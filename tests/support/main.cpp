// Runs a program's tests on a machine of their own, so that none touches the files of the real one.

#include "support/PrivateMachine.h"

#include <QApplication>

#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/stat.h>

namespace {

constexpr int skipped = 77;

// The platform that draws into memory says at every step what it can't do.
void dropPluginWarnings(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith("This plugin does not support"))
        std::cerr << message.toStdString() << '\n';
}

}

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    const std::string reason = enterPrivateMachine(BUILD_FOLDER);
    if (!reason.empty()) {
        std::cerr << "No test was run, as no private machine is permitted: " << reason << '\n';
        return std::getenv("CI") ? EXIT_FAILURE : skipped;
    }

    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    mkdir("/run/user", 0700);
    setenv("XDG_RUNTIME_DIR", "/run/user", 1);
    qInstallMessageHandler(dropPluginWarnings);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
