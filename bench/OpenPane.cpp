// Tells for how long at most the window stands still while the pane opens on a long text, in
// milliseconds.
//
//     openpane LINES

#include "MainInterface.h"
#include "ViewController.h"
#include "WindowQt.h"

#include <AppKit/NSLayoutConstraint.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLayout>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

// Runs the loop until the window has that height. The longest turn, in nanoseconds.
qint64 awaitHeight(const QWidget& window, int height)
{
    qint64 longest = 0;
    while (window.height() != height) {
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
    int qtCount = 1; // without the lines, which are no option of the controller's either
    const QApplication application(qtCount, argv);
    const auto window = std::make_shared<WindowQt>();
    const auto controller = openMainInterface(*window);
    window->setContentViewController(controller);
    window->makeKeyAndOrderFront();
    const int height = window->layout()->totalMinimumSize().height();
    awaitHeight(*window, height);
    controller->resultPainViewHeightConstraint->setConstant(0);
    QApplication::processEvents();

    const int lines = argc > 1 ? std::atoi(argv[1]) : 0;
    for (int i = 0; i < lines; ++i)
        controller->showMessage(
            " copy /Applications/quillbarn.app/Contents/file-" + std::to_string(i));
    QElapsedTimer turn;
    turn.start();
    controller->showResult();
    const qint64 first = turn.nsecsElapsed();
    const qint64 rest = awaitHeight(*window, height);
    std::cout << double(std::max(first, rest)) / 1e6 << '\n';
    return EXIT_SUCCESS;
}
