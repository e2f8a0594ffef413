#include "MainQueue.h"

#include <QApplication>
#include <QTranslator>

#include <cstdlib>
#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 1); // logs a warning for each unsupported operation
    setenv("QT_LOGGING_RULES", "default.warning=false", 1);
    const QApplication application(argc, argv);
    QTranslator english;
    if (english.load(":/i18n/en")) QCoreApplication::installTranslator(&english);
    QApplication::setQuitOnLastWindowClosed(false);
    activateDispatchQueues();
    return RUN_ALL_TESTS();
}
