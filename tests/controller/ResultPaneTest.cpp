#include "WindowReport.h"
#include "fakes/NSProcessInfoFake.h"
#include "fakes/NSThreadFake.h"
#include "support/LogFile.h"
#include "support/MainLoop.h"
#include "support/Screen.h"
#include "support/TestWindow.h"

#include <AppKit/NSButton.h>
#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSProgressIndicator.h>
#include <AppKit/NSTextField.h>

#include <QSize>

#include <gtest/gtest.h>
#include <thread>

using Lines = std::vector<std::string>;

namespace {

// Without an option the pane opens, and no task gets in the way.
class Pane : public testing::Test {
protected:
    Pane()
    {
        EXPECT_TRUE(runMainLoopUntil([this] { return isPaneOpen(controller); }));
        clearLog();
    }

    CGFloat position() const { return controller.resultText->visibleRect().origin.y; }

    void showLines(int count) const
    {
        for (int i = 1; i <= count; ++i)
            controller.showMessage(
                "line " + std::to_string(i) + ", which is cut where the window is narrow");
    }

    struct Options {
        Options() { setArguments({ "me" }); }
    } options;
    TestWindow window;
    ViewController& controller = *window.controller;
};

}

TEST_F(Pane, collectsMessagesAndLogsThem)
{
    controller.resultText->setStringValue("");
    for (const char* const message : { "first", "", "two\nlines", "not \xFF UTF-8" })
        controller.showMessage(message);
    EXPECT_EQ(controller.resultText->stringValue(), "first\n\ntwo\nlines\nnot \xFF UTF-8\n");
    EXPECT_EQ(shownText(), "first\n\ntwo\nlines\nnot \uFFFD UTF-8");
    EXPECT_EQ(readLog(), (Lines { "d first", "d ", "d two\\nlines", "d not \xFF UTF-8" }));
}

TEST_F(Pane, showsTheWholeEndInEverySize)
{
    showLines(100);
    controller.showMessage("the end of “" + std::string(300, 'x') + "” failed");
    for (const QSize size : { QSize(520, 400), { 1600, 1100 }, { 400, 380 }, { 700, 500 } }) {
        resizeWindow(size.width(), size.height());
        runMainLoopUntil([] { return lastShownRow().ends_with("” failed"); });
        EXPECT_TRUE(lastShownRow().ends_with("” failed")) << size.width() << ": " << lastShownRow();
    }
}

TEST_F(Pane, aViewThatWasScrolledAwayStaysThere)
{
    resizeWindow(900, 500);
    showLines(100);
    for (const bool byKey : { false, true }) {
        if (byKey)
            pressInText(Qt::Key_PageUp);
        else
            controller.resultText->scrollPoint({ 0, position() / 2 });
        const std::string first = firstShownRow();
        ASSERT_TRUE(first.starts_with("line "));
        ASSERT_FALSE(first.starts_with("line 1,"));
        for (const QSize size : { QSize(900, 700), { 400, 380 }, { 900, 500 } }) {
            resizeWindow(size.width(), size.height());
            runMainLoopUntil([] { return false; }, 100);
            EXPECT_TRUE(first.starts_with(firstShownRow())) << firstShownRow() << " of " << first;
        }
        controller.showMessage("not followed");
        EXPECT_EQ(firstShownRow(), first);
    }
    controller.showResult();
    EXPECT_EQ(lastShownRow(), "not followed");
}

TEST_F(Pane, theWindowShrinksAndGrowsWithIt)
{
    runMainLoopUntil([] { return false; }, 100); // for the window to follow the pane's last step
    const auto windowHeight = [&] { return controller.view()->bounds().size.height; };
    const CGFloat whole = windowHeight();
    controller.resultPainViewHeightConstraint->setConstant(0);
    EXPECT_TRUE(runMainLoopUntil(
        [&] { return windowHeight() == whole - controller.m_resultPainViewHeight; }));
    controller.showResult();
    EXPECT_TRUE(runMainLoopUntil([&] { return windowHeight() == whole; }));
}

TEST(PaneAlone, keysCountOnlyOnceItIsOpen)
{
    setArguments({ "me" });
    for (const int key : { Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space }) {
        const TestWindow opening;
        const auto closes = [key] {
            press(key);
            return !isWindowOnScreen();
        };
        EXPECT_FALSE(runMainLoopUntil(closes, 250)); // it takes twice as long
        EXPECT_TRUE(runMainLoopUntil(closes));
        EXPECT_EQ(opening.controller->resultPainView->bounds().size.height, 240);
    }
}

TEST_F(Pane, stepsTheBar)
{
    controller.setProgress(0, 4);
    EXPECT_EQ(controller.progressIndicator->doubleValue(), 0.25);
    controller.setProgress(3, 4);
    EXPECT_EQ(controller.progressIndicator->doubleValue(), 1.0);
    controller.progressIndicator->setDoubleValue(7);
    EXPECT_EQ(controller.progressIndicator->doubleValue(), 1.0);
}

TEST_F(Pane, aReportIsInTheWindowWhenItReturns)
{
    const auto report
        = std::make_shared<WindowReport>(window.controller, ViewController::Mode::uninstall);
    std::thread task([&] {
        report->showMessage("from a task");
        EXPECT_EQ(readLog(), Lines { "d from a task" });
        report->setProgress(1, 4);
        EXPECT_EQ(controller.progressIndicator->doubleValue(), 0.5);
        report->showFailure(NSError("why"));
    });
    EXPECT_TRUE(runMainLoopUntil([] { return windowTitle() == "quillbarn could not be removed"; }));
    task.join();
    EXPECT_EQ(buttonDescription(), "why");
}

TEST(PaneAlone, aReportOfTheEndClosesTheWindow)
{
    setArguments({ "me" });
    for (const auto end : { &TaskReport::finish, &TaskReport::closeWindow }) {
        const TestWindow window;
        WindowReport report(window.controller, ViewController::Mode::install);
        (report.*end)();
        EXPECT_TRUE(runMainLoopUntil([] { return !isWindowOnScreen(); }));
    }
}

TEST(PaneAlone, isOpenFromTheStartInATestWhichWaitsAtTheEnd)
{
    onPause([](double) {});
    const TestWindow test(Start::test); // a run of its own
    const ViewController& tested = *test.controller;
    EXPECT_TRUE(isPaneShown());
    EXPECT_TRUE(runMainLoopUntil([&] { return tested.resultButton->isEnabled(); }));
    EXPECT_TRUE(isWindowOnScreen());
    press(Qt::Key_Return);
    EXPECT_FALSE(isWindowOnScreen());
}
