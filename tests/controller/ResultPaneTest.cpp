#include "HeightConstraintQt.h"
#include "WindowReport.h"
#include "support/TestWindow.h"

#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSTextField.h>

#include <QScreen>

#include <thread>

namespace {

// Without an option the pane opens, and no task gets in the way.
class Pane : public testing::Test {
protected:
    Pane()
        : controller(*window.controller)
    {
        EXPECT_TRUE(window.awaitPane());
        clearLog();
    }

    void showLines() const
    {
        for (int i = 1; i <= 100; ++i)
            controller.showMessage(
                "line " + std::to_string(i) + ", which is cut where the window is narrow");
    }
    void scrollUp(int rows) const
    {
        const CGFloat row = window.text.fontMetrics().lineSpacing();
        const CGFloat position = controller.resultText->visibleRect().origin.y;
        controller.resultText->scrollPoint({ 0, position - rows * row });
    }

    const TestWindow window;
    ViewController& controller;
};

}

TEST_F(Pane, collectsMessagesAndLogsThem)
{
    controller.resultText->setStringValue("");
    for (const char* const message : { "first", "", "two\nlines", "not \xFF UTF-8" })
        controller.showMessage(message);
    EXPECT_EQ(window.text.toPlainText(), "first\n\ntwo\nlines\nnot \uFFFD UTF-8");
    EXPECT_EQ(readLog(), (Lines { "d first", "d ", "d two\\nlines", "d not \xFF UTF-8" }));
}

TEST_F(Pane, showsTheWholeEndInEverySize)
{
    showLines();
    controller.showMessage("the end of “" + std::string(300, 'x') + "” failed");
    scrollUp(5);
    ASSERT_FALSE(window.lastRow().ends_with("” failed"));
    for (const QSize size :
        { QSize(520, 600), { 520, 400 }, { 1600, 1100 }, { 400, 380 }, { 700, 500 } }) {
        window.resize(size.width(), size.height());
        EXPECT_TRUE(window.lastRow().ends_with("” failed")) << size.width() << window.lastRow();
    }
}

TEST_F(Pane, aMessageIsFollowedFromLessThanTwentyPointsFromTheEnd)
{
    showLines();
    controller.showMessage("followed");
    EXPECT_EQ(window.lastRow(), "followed");
    scrollUp(1);
    std::string first = window.firstRow();
    controller.showMessage("followed from a row above");
    EXPECT_NE(window.firstRow(), first);
    scrollUp(2);
    first = window.firstRow();
    controller.showMessage("not followed");
    EXPECT_EQ(window.firstRow(), first);
    controller.showResult();
    EXPECT_EQ(window.lastRow(), "not followed");
}

TEST_F(Pane, aViewThatWasScrolledAwayStaysThere)
{
    window.resize(900, 500);
    showLines();
    for (const bool byKey : { false, true }) {
        if (byKey)
            QTest::keyClick(&window.text, Qt::Key_PageUp);
        else
            scrollUp(60);
        const std::string first = window.firstRow();
        ASSERT_TRUE(first.starts_with("line "));
        ASSERT_FALSE(first.starts_with("line 1,"));
        for (const QSize size : { QSize(900, 700), { 400, 380 }, { 900, 500 } }) {
            window.resize(size.width(), size.height());
            EXPECT_TRUE(first.starts_with(window.firstRow())) << window.firstRow() << first;
        }
    }
}

TEST_F(Pane, fitsTheScreenWhateverTheWindowWasBefore)
{
    const int screen = window.window->screen()->availableGeometry().height();
    for (const bool isAnimated : { false, true }) {
        window.resize(520, 2 * screen);
        ASSERT_GT(window.window->height(), screen);
        const auto constraint = controller.resultPainViewHeightConstraint.lock();
        isAnimated ? constraint->animator().setConstant(3000) : constraint->setConstant(3000);
        EXPECT_TRUE(runMainLoopUntil([&] { return !window.isOpening(); }));
        EXPECT_LE(window.window->height(), screen);
        EXPECT_GT(window.window->height(), screen / 2);
    }
}

TEST(Room, isWhatTheScreenHasAndTheFrameLeaves)
{
    const QRect screen(0, 10, 320, 240);
    struct Case {
        QMargins frame;
        int top = 0;
        int wish = 0;
        bool canMove = true;
        RoomQt room;
    };
    for (const Case& c : {
             Case { { 1, 20, 1, 5 }, 50, 100, true, { 30, 100 } },
             Case { { 1, 20, 1, 5 }, 100, 100, true, { 36, 100 } },
             Case { { 1, 20, 1, 5 }, 100, 200, true, { 10, 126 } },
             Case { { 1, 20, 1, 5 }, 100, 200, false, { 73, 63 } },
             Case { {}, 100, 200, true, { 10, 151 } },
             Case { { 0, 0, -520, -329 }, 36, 240, true, { 10, 151 } },
             Case { { 1, 200, 1, 5 }, 300, 100, true, { 10, 0 } },
         }) {
        const RoomQt room = roomOn(screen, c.frame, c.top, 89, c.wish, c.canMove);
        EXPECT_EQ(room.top, c.room.top) << c.wish;
        EXPECT_EQ(room.height, c.room.height) << c.wish;
    }
}

TEST_F(Pane, isUncoveredByTheWindowsGrowthOverHalfASecond)
{
    const int whole = window.window->height();
    controller.resultPainViewHeightConstraint->setConstant(0);
    const int least = window.window->height();
    EXPECT_GE(whole, least + controller.m_resultPainViewHeight);
    controller.showResult();
    EXPECT_EQ(window.animation.duration(), 500);
    EXPECT_GT(window.text.mapTo(window.window.get(), window.text.rect().bottomRight()).y(), least);
    EXPECT_TRUE(runMainLoopUntil([&] { return window.window->height() > least + 20; }));
    EXPECT_LT(window.window->height(), whole);
    EXPECT_TRUE(runMainLoopUntil([&] { return window.window->height() == whole; }));
}

TEST(PaneAlone, keysCountOnlyOnceItIsOpen)
{
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space }) {
        const TestWindow opening;
        EXPECT_TRUE(opening.isOpening());
        EXPECT_TRUE(runMainLoopUntil([&] {
            const bool isEarly = opening.isOpening();
            opening.press(key);
            return opening.window->isHidden() == isEarly || !isEarly;
        }));
        EXPECT_FALSE(opening.isOpening());
        EXPECT_TRUE(opening.window->isHidden());
    }
}

TEST_F(Pane, aReportIsInTheWindowWhenItReturns)
{
    WindowReport report(window.controller, ViewController::Mode::uninstall);
    std::thread task([&] {
        report.showMessage("from a task");
        EXPECT_EQ(readLog(), Lines { "d from a task" });
        report.setProgress(1, 4);
        EXPECT_EQ(window.progress(), 0.5);
        report.showFailure(NSError("why"));
    });
    EXPECT_TRUE(
        runMainLoopUntil([&] { return window.title() == "quillbarn could not be removed"; }));
    task.join();
    EXPECT_EQ(window.help(), "why");
}

TEST(PaneAlone, isOpenFromTheStartInATestWhichWaitsAtTheEnd)
{
    const TestWindow test({ "me" }, true); // a run of its own
    EXPECT_TRUE(test.text.isVisible());
    EXPECT_TRUE(test.awaitPane());
    EXPECT_TRUE(test.window->isVisible());
    test.press(Qt::Key_Return);
    EXPECT_TRUE(test.window->isHidden());
}
