#pragma once

#include "Foundation/NSGeometry.h"

#include <memory>

class QVariantAnimation;
class QWidget;

// Keeps a part of the window at a height, its constant. The window grows and shrinks with it.
class NSLayoutConstraint {
public:
    // The constant is the least height that the interface file gives the widget.
    explicit NSLayoutConstraint(QWidget* widget);
    ~NSLayoutConstraint();
    NSLayoutConstraint(const NSLayoutConstraint&) = delete;
    NSLayoutConstraint& operator=(const NSLayoutConstraint&) = delete;

    // Points. While a change is animated, this is where it leads. Unlike AppKit, a constant above
    // 0 is a least height: the person may make the window higher.
    CGFloat constant() const { return m_constant; }
    void setConstant(CGFloat constant);

    // Changes the constant over the duration of the current animation group.
    class Animator {
    public:
        void setConstant(CGFloat constant);

    private:
        friend class NSLayoutConstraint;
        explicit Animator(NSLayoutConstraint& constraint)
            : m_constraint(constraint)
        {
        }

        NSLayoutConstraint& m_constraint;
    };
    Animator animator() { return Animator(*this); }

private:
    void setHeight(int height);
    void release();

    QWidget* const m_widget;
    const std::unique_ptr<QVariantAnimation> m_animation;
    CGFloat m_constant;
};
