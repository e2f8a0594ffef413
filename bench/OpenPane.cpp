// Tells for how long at most the window stands still while the pane opens on a long text, in
// milliseconds.
//
//     openpane LINES

#include "AppKit/NSLayoutConstraint.h"
#include "support/TestController.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

// Runs the loop until the pane has that height. The longest turn, in nanoseconds.
qint64 awaitHeight(const TestController& controller, CGFloat height)
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
    const TestWindow window;
    TestController& controller = *window.controller;
    const CGFloat openHeight = controller.m_resultPainViewHeight;
    awaitHeight(controller, openHeight);
    controller.resultPainViewHeightConstraint->setConstant(0);
    awaitHeight(controller, 0);

    const int lines = argc > 1 ? std::atoi(argv[1]) : 0;
    for (int i = 0; i < lines; ++i)
        controller.showMessage(
            " copy /Applications/quillbarn.app/Contents/file-" + std::to_string(i));
    QElapsedTimer turn;
    turn.start();
    controller.showResult();
    const qint64 first = turn.nsecsElapsed();
    const qint64 longest = std::max(first, awaitHeight(controller, openHeight));
    std::cout << double(longest) / 1e6 << '\n';
    return EXIT_SUCCESS;
}
