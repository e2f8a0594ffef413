#include "HeightConstraintQt.h"
#include "WindowReport.h"
#include "support/TestWindow.h"

#include <QScreen>
#include <QScrollBar>

#include <thread>

namespace {

// Without an option the pane opens, and no task gets in the way.
class Pane : public testing::Test {
protected:
    Pane() { EXPECT_TRUE(window.awaitPane()); }

    void showLines() const
    {
        for (int i = 1; i <= 100; ++i)
            controller.showMessage("line " + std::to_string(i) + std::string(70, '.'));
    }
    void scrollUp(int rows) const
    {
        QScrollBar& bar = *window.text.verticalScrollBar();
        bar.setValue(bar.value() - rows);
    }

    const TestWindow window;
    ViewController& controller = *window.controller;
};

}

TEST_F(Pane, aReportIsInTheWindowAndInTheLogWhenItReturns)
{
    WindowReport report(window.controller, ViewController::Mode::uninstall);
    std::thread task([&] {
        report.showMessage("two\nlines, not \xFF UTF-8");
        EXPECT_EQ(readLog().back(), "d two\\nlines, not \xFF UTF-8");
        report.setProgress(1, 4);
        EXPECT_EQ(window.progress(), 0.5);
        report.closeWindow();
    });
    EXPECT_TRUE(window.awaitEnd());
    task.join();
    EXPECT_EQ(window.text.toPlainText(), "invalid options\ntwo\nlines, not \uFFFD UTF-8");
    EXPECT_EQ(window.help(), "invalid options");
}

TEST_F(Pane, keepsItsPlaceAndTheWholeEndInEverySize)
{
    showLines();
    controller.showMessage("the end of “" + std::string(300, 'x') + "” failed");
    for (const int rowsFromEnd : { 5, 60 }) {
        scrollUp(rowsFromEnd);
        const std::string first = window.firstRow();
        for (const QSize size : { QSize(900, 700), { 400, 380 }, { 900, 500 } }) {
            window.window->resize(size);
            QCoreApplication::processEvents();
            EXPECT_TRUE(rowsFromEnd == 5 ? window.lastRow().ends_with("” failed")
                                         : first.starts_with(window.firstRow()))
                << size.width() << window.firstRow() << first << window.lastRow();
        }
    }
}

TEST_F(Pane, aMessageIsFollowedFromLessThanTwentyPointsFromTheEnd)
{
    showLines();
    scrollUp(1);
    controller.showMessage("followed from a row above");
    EXPECT_EQ(window.lastRow(), "followed from a row above");
    scrollUp(2);
    const std::string first = window.firstRow();
    controller.showMessage("not followed");
    EXPECT_EQ(window.firstRow(), first);
    controller.showResult();
    EXPECT_EQ(window.lastRow(), "not followed");
}

TEST_F(Pane, fitsTheScreenWhateverTheWindowWasBefore)
{
    const int screen = window.window->screen()->availableGeometry().height();
    for (const int wish : { 2000, 3000 }) {
        window.window->resize(520, 2 * screen);
        ASSERT_GT(window.window->height(), screen);
        controller.resultPainViewHeightConstraint->setConstant(wish);
        EXPECT_LE(window.window->height(), screen);
        EXPECT_GT(window.window->height(), screen / 2);
    }
}

TEST(Room, isWhatTheScreenHasAndTheFrameLeaves)
{
    const auto roomOf = [](QMargins frame, int top, int wish, bool canMove = true) {
        const RoomQt room = roomOn({ 0, 10, 320, 240 }, frame, top, 89, wish, canMove);
        return std::pair(room.top, room.height);
    };
    EXPECT_EQ(roomOf({ 1, 20, 1, 5 }, 50, 100), std::pair(30, 100));
    EXPECT_EQ(roomOf({ 1, 20, 1, 5 }, 100, 100), std::pair(36, 100));
    EXPECT_EQ(roomOf({ 1, 20, 1, 5 }, 100, 200), std::pair(10, 126));
    EXPECT_EQ(roomOf({ 1, 20, 1, 5 }, 100, 200, false), std::pair(73, 63));
    EXPECT_EQ(roomOf({ 0, 0, -520, -329 }, 36, 240), std::pair(10, 151));
    EXPECT_EQ(roomOf({ 1, 200, 1, 5 }, 300, 100), std::pair(10, 0));
}

TEST_F(Pane, isUncoveredByTheWindowsGrowthOverHalfASecond)
{
    const int whole = window.window->height();
    controller.resultPainViewHeightConstraint->setConstant(0);
    const int least = window.window->height();
    EXPECT_GE(whole, least + 240);
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
        EXPECT_TRUE(runMainLoopUntil([&] {
            QTest::keyClick(opening.window->windowHandle(), key);
            return opening.window->isHidden();
        }));
        EXPECT_NE(opening.animation.state(), QAbstractAnimation::Running);
    }
}
