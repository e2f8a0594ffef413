// Tells for how long at most the window stands still while the pane opens on a long text, in
// milliseconds.
//
//     openpane LINES

#include "MainInterface.h"
#include "ViewController.h"

#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSWindow.h>

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

// Runs the loop until the pane has that height. The longest turn, in nanoseconds.
qint64 awaitHeight(const ViewController& controller, CGFloat height)
{
    qint64 longest = 0;
    while (controller.resultPainView->bounds().size.height != height) {
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
    const MainInterface interface;
    const auto controller = ViewController::initWithCoder(interface);
    interface.connect(controller);
    interface.window()->makeKeyAndOrderFront();
    awaitHeight(*controller, controller->m_resultPainViewHeight);
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
    const qint64 rest = awaitHeight(*controller, controller->m_resultPainViewHeight);
    std::cout << double(std::max(first, rest)) / 1e6 << '\n';
    return EXIT_SUCCESS;
}
