#include "ViewController.h"
#include "fakes/ViewsFake.h"

#include <gtest/gtest.h>

using Lines = std::vector<std::string>;

namespace {

// The arithmetic, on views of any size.
class Scrolling : public testing::Test {
protected:
    Scrolling()
    {
        scrollView->setDocumentView(text);
        controller->resultText = text;
        controller->resultTextScrollView = scrollView;
    }

    // Whether a message makes a view at `position` follow, and where to.
    std::optional<NSPoint> show(CGFloat position, CGFloat height, CGFloat visibleHeight)
    {
        text->setFrame({ {}, { 0, height } });
        text->visible = { { 3, position }, {} };
        text->heightWhenFitted = height + 100;
        text->scrolledTo.reset();
        text->calls.clear();
        scrollView->content.height = visibleHeight;
        controller->showMessage("line");
        return text->scrolledTo;
    }

    const std::shared_ptr<TextFieldFake> text = std::make_shared<TextFieldFake>();
    const std::shared_ptr<ScrollViewFake> scrollView = std::make_shared<ScrollViewFake>();
    const std::shared_ptr<ViewController> controller
        = ViewController::initWithNibName("MainInterface", nullptr);
};

}

TEST_F(Scrolling, aMessageIsFollowedFromLessThanTwentyPointsFromTheEnd)
{
    struct Case {
        CGFloat position = 0;
        CGFloat height = 0;
        CGFloat visibleHeight = 0;
        std::optional<CGFloat> end;
    };
    for (const Case& c : { Case { 300, 500, 200, 400 }, Case { 280.5, 500, 200, 400 },
             Case { 280, 500, 200, {} }, Case { 319.5, 500, 200, 400 }, Case { 320, 500, 200, {} },
             Case { 0, 500, 200, {} }, Case { 0, 100, 300, -100 }, Case { 19.5, 100, 300, -100 },
             Case { 20, 100, 300, {} } }) {
        const auto point = show(c.position, c.height, c.visibleHeight);
        ASSERT_EQ(point.has_value(), c.end.has_value()) << c.position << ' ' << c.height;
        if (!point)
            continue;
        EXPECT_EQ(point->x, 3);
        EXPECT_EQ(point->y, *c.end) << c.position << ' ' << c.height;
        EXPECT_EQ(text->calls, (Lines { "append", "fit", "scroll" }));
    }
}
