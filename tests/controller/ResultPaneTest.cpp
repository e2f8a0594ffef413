#include "AppKit/NSButton.h"
#include "AppKit/NSLayoutConstraint.h"
#include "AppKit/NSProgressIndicator.h"
#include "AppKit/NSScrollView.h"
#include "AppKit/NSTextField.h"
#include "fakes/NSProcessInfoFake.h"
#include "support/LogFile.h"
#include "support/MainLoop.h"
#include "support/Screen.h"
#include "support/TestController.h"

#include <gtest/gtest.h>

namespace {

// Without an option the pane opens at once, and no task gets in the way.
class ResultPane : public testing::Test {
protected:
    ResultPane()
    {
        EXPECT_TRUE(runMainLoopUntil([&] { return paneHeight() == openHeight; }));
        clearLog();
    }

    CGFloat paneHeight() const { return controller.resultPainView->bounds().size.height; }
    CGFloat position() const { return controller.resultText->visibleRect().origin.y; }
    CGFloat endPosition() const
    {
        return controller.resultText->frame().size.height
            - controller.resultTextScrollView->contentSize().height;
    }

    TestWindow window;
    TestController& controller = *window.controller;
    const CGFloat openHeight = controller.m_resultPainViewHeight;
};

}

TEST(StartUp, withoutAnOptionThePaneOpensAndWaits)
{
    clearLog();
    setArguments({ "me" });
    const TestWindow window;
    TestController& controller = *window.controller;
    EXPECT_EQ(readLog(), (std::vector<std::string> { "n installer start", "d invalid options" }));
    EXPECT_EQ(controller.resultText->stringValue(), "invalid options\n");
    EXPECT_EQ(controller.progressIndicator->doubleValue(), 0);
    EXPECT_TRUE(controller.resultButton->isEnabled());
    EXPECT_GT(controller.m_resultPainViewHeight, 0);
    EXPECT_TRUE(runMainLoopUntil([&] {
        return controller.resultPainView->bounds().size.height == controller.m_resultPainViewHeight;
    }));
    EXPECT_TRUE(isWindowOnScreen());
    controller.resultButton->performClick();
    EXPECT_FALSE(isWindowOnScreen());
}

TEST(ViewController, isEmptyUntilItsOutletsAreConnectedAndAfterTheWindowHasGone)
{
    const auto controller = ViewController::initWithNibName("MainInterface", nullptr);
    EXPECT_EQ(controller->resultText.get(), nullptr);
    EXPECT_EQ(ViewController::initWithCoder(NSCoder(nullptr)), nullptr);

    auto window = std::make_unique<TestWindow>();
    const auto kept = window->controller;
    EXPECT_NE(kept->resultText.get(), nullptr);
    window.reset();
    EXPECT_EQ(kept->resultText.get(), nullptr);
    EXPECT_EQ(kept->view(), nullptr);
}

TEST_F(ResultPane, collectsMessagesAndLogsThem)
{
    controller.resultText->setStringValue("");
    for (const char* const message : { "first", "", "two\nlines", "not \xFF UTF-8" })
        controller.showMessage(message);
    EXPECT_EQ(controller.resultText->stringValue(), "first\n\ntwo\nlines\nnot \xFF UTF-8\n");
    EXPECT_EQ(readLog(),
        (std::vector<std::string> { "d first", "d ", "d two\\nlines", "d not \xFF UTF-8" }));

    EXPECT_TRUE(
        runMainLoopUntil([] { return copyAllText() == "first\n\ntwo\nlines\nnot \uFFFD UTF-8"; }));
}

TEST_F(ResultPane, followsTheEndFromWithinTwentyPointsOfIt)
{
    for (int i = 0; i < 100; ++i)
        controller.showMessage("line");
    EXPECT_EQ(position(), endPosition());

    controller.resultText->scrollPoint({ 0, endPosition() - 19 });
    controller.showMessage("followed");
    EXPECT_EQ(position(), endPosition());

    const CGFloat away = endPosition() - 20;
    controller.resultText->scrollPoint({ 0, away });
    controller.showMessage("not followed");
    EXPECT_EQ(position(), away);

    controller.showResult();
    EXPECT_EQ(position(), endPosition());
    EXPECT_EQ(paneHeight(), openHeight);
}

TEST_F(ResultPane, theWindowShrinksAndGrowsWithThePane)
{
    const auto windowHeight = [&] { return controller.view()->bounds().size.height; };
    const CGFloat whole = windowHeight();
    controller.resultPainViewHeightConstraint->setConstant(0);
    EXPECT_TRUE(runMainLoopUntil([&] { return windowHeight() == whole - openHeight; }));
    controller.showResult();
    EXPECT_TRUE(runMainLoopUntil([&] { return windowHeight() == whole; }));
}

TEST_F(ResultPane, stepsTheBar)
{
    controller.setProgress(0, 4);
    EXPECT_EQ(controller.progressIndicator->doubleValue(), 0.25);
    controller.setProgress(3, 4);
    EXPECT_EQ(controller.progressIndicator->doubleValue(), 1.0);
    controller.progressIndicator->setDoubleValue(7);
    EXPECT_EQ(controller.progressIndicator->doubleValue(), 1.0);
}

TEST_F(ResultPane, finishClosesTheWindowUnlessItIsATest)
{
    controller.m_test = true;
    controller.resultButton->setEnabled(false);
    controller.finish();
    EXPECT_TRUE(controller.resultButton->isEnabled());
    EXPECT_TRUE(isWindowOnScreen());
    controller.m_test = false;
    controller.finish();
    EXPECT_FALSE(isWindowOnScreen());
}
