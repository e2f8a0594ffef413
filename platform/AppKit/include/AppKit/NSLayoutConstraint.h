#pragma once

#include <Foundation/NSGeometry.h>

// The height of a part of the window (its constant). 0 hides the part. Main thread only.
class NSLayoutConstraint {
public:
    virtual ~NSLayoutConstraint() = default;

    // In points. Initially the height from the interface file; during an animation the final value.
    // Unlike in AppKit, the part can have another height, if the screen is too small or the user
    // resizes the window, and without the animator the part is only shown or hidden.
    virtual CGFloat constant() const = 0;
    virtual void setConstant(CGFloat constant) = 0;

    // A constant set through the animator changes over the duration of the current animation group.
    struct Animator {
        NSLayoutConstraint& constraint;
        void setConstant(CGFloat constant) const { constraint.animateConstant(constant); }
    };
    Animator animator() { return { *this }; }

private:
    virtual void animateConstant(CGFloat constant) = 0;
};
