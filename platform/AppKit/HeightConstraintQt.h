#pragma once

#include <AppKit/NSLayoutConstraint.h>

#include <QMargins>
#include <QRect>
#include <QVariantAnimation>

#include <functional>

class QWidget;

// Keeps the lowest part of a window at the least height that the interface file gives it. The part
// is laid out once for each constant; an animation uncovers it, as the window grows.
class HeightConstraintQt : public QVariantAnimation, public NSLayoutConstraint {
public:
    explicit HeightConstraintQt(QWidget& part); // which owns it from now on

    CGFloat constant() const override { return m_constant; }
    void setConstant(CGFloat constant) override;

private:
    void animateConstant(CGFloat constant) override;
    int prepare(CGFloat constant);

    QWidget& m_part;
    CGFloat m_constant;
    std::function<void()> m_completionHandler;
};

// The place for a window on the screen, and the height of a part of it.
struct RoomQt {
    int top = 0; // of the window's frame
    int height = 0; // of the part
};

// The room for a part that is to be `wish` points high, in a window whose other parts take up
// `rest` inside the frame, and which begins at `top` there. The window goes up as far as it must.
// Where it can't move it grows downwards from where it is likely to be, the middle. While the
// desktop draws the frame its margins may be less than nothing, and count as nothing.
RoomQt roomOn(const QRect& screen, QMargins frame, int top, int rest, int wish, bool canMove);
