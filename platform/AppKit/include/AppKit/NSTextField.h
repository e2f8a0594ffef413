#pragma once

#include <AppKit/NSView.h>

#include <string_view>

// A text that can be selected, copied and read by a screen reader, wrapped to rows. Bytes that are
// not UTF-8 show as U+FFFD. Shown as \uXXXX: control characters (except line feed), line separators
// and most characters that change the text direction.
class NSTextField : public NSView {
public:
    virtual void setStringValue(std::string_view text) = 0;

    // Not in AppKit: appends to the value. While the field is hidden, the time does not depend on
    // the length of the value.
    virtual void appendString(std::string_view text) = 0;

    // The area of the whole text. Unlike in AppKit, its width is always that of the scroll view,
    // and while the field is hidden its height is that of an empty text.
    virtual NSRect frame() const = 0;
    virtual void setFrame(const NSRect& frame) = 0;

    // Sets the height of the frame to that of the text. Unlike in AppKit, has no effect, because
    // the height always fits.
    virtual void sizeToFit() = 0;

    // The visible part of the text.
    virtual NSRect visibleRect() const = 0;

    // Scrolls so that the row at `point` is the first visible one, or as far as the text reaches. A
    // view at the end of the text stays there when its size changes. Initially it is at the end.
    virtual void scrollPoint(NSPoint point) = 0;
};
