#pragma once

#include <Foundation/NSGeometry.h>

// Keeps a part of the window at a height, its constant. The window grows and shrinks with it. Main
// thread only.
class NSLayoutConstraint {
public:
    virtual ~NSLayoutConstraint() = default;

    // Points; at first what the interface file gives. While a change is animated, this is where it
    // leads. Unlike in AppKit, a constant above 0 is a wish: a person may make the window higher,
    // and where the screen is too small the part gets what is left.
    virtual CGFloat constant() const = 0;
    virtual void setConstant(CGFloat constant) = 0;

    // What is set through it changes over the duration of the current animation group.
    struct Animator {
        NSLayoutConstraint& constraint;
        void setConstant(CGFloat constant) const { constraint.animateConstant(constant); }
    };
    Animator animator() { return { *this }; }

private:
    virtual void animateConstant(CGFloat constant) = 0;
};
