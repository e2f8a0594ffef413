#include "DispatchActivation.h"

#include <QApplication>

#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/stat.h>

namespace {

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
    mkdir("/run/user", 0700);
    setenv("XDG_RUNTIME_DIR", "/run/user", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(dropPluginWarnings);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    activateDispatchQueues();
    return RUN_ALL_TESTS();
}
