#pragma once

#include <AppKit/NSView.h>

#include <string_view>

// A text that can be selected, copied and read by a screen reader, in rows of the field's width.
// Bytes that are not UTF-8 show as U+FFFD.
class NSTextField : public NSView {
public:
    virtual void setStringValue(std::string_view text) = 0;

    // Unlike AppKit's, a field can be added to: what setting the value followed by `text` would do.
    // As long as the field can't be seen, in a time that does not grow with the value.
    virtual void appendString(std::string_view text) = 0;

    // The area of the whole text. Unlike AppKit's, its width is always the scroll view's, and as
    // long as the field can't be seen, it has no text to be fitted to.
    virtual NSRect frame() const = 0;
    virtual void setFrame(const NSRect& frame) = 0;

    // Gives the frame the height of the text.
    virtual void sizeToFit() = 0;

    // The part of the text that the scroll view shows.
    virtual NSRect visibleRect() const = 0;

    // Makes the row at this point the first of that part, or the next one from which the text fills
    // the view. At the end of the text the view stays at the end when its size changes; that is
    // also where it is when it comes in sight.
    virtual void scrollPoint(NSPoint point) = 0;
};
