// Prints the longest pause of the main thread, in milliseconds, while the pane opens with a long
// text.
//
//     openpane LINES

#include "MainInterface.h"
#include "ViewController.h"
#include "WindowQt.h"

#include <AppKit/NSLayoutConstraint.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QVariantAnimation>

#include <algorithm>
#include <iostream>
#include <string>

namespace {

// Runs the main loop while the pane opens. Returns the nanoseconds of the longest iteration.
qint64 awaitPane(const QWidget& window)
{
    qint64 longest = 0;
    while (window.findChild<QVariantAnimation*>()) {
        QElapsedTimer turn;
        turn.start();
        QApplication::processEvents();
        longest = std::max(longest, turn.nsecsElapsed());
    }
    return longest;
}

}

int main(int argc, char* argv[])
{
    int qtCount = 1; // without the number of lines
    const QApplication application(qtCount, argv);
    const auto window = std::make_shared<WindowQt>();
    const auto controller = openMainInterface(*window);
    window->setContentViewController(controller);
    window->makeKeyAndOrderFront();
    // Without options the controller opens the pane at once; close it before the measurement.
    awaitPane(*window);
    controller->resultPainViewHeightConstraint->setConstant(0);
    QApplication::processEvents();
    window->resize(window->width(), 0);
    QApplication::processEvents();

    const int lines = argc > 1 ? std::stoi(argv[1]) : 0;
    for (int i = 0; i < lines; ++i)
        controller->showMessage(
            " copy /Applications/quillbarn.app/Contents/file-" + std::to_string(i));
    QElapsedTimer turn;
    turn.start();
    controller->showResult();
    const qint64 first = turn.nsecsElapsed();
    const qint64 rest = awaitPane(*window);
    std::cout << double(std::max(first, rest)) / 1e6 << '\n';
}
