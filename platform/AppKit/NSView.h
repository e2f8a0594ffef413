#pragma once

#include "Foundation/NSGeometry.h"

class NSWindow;
class QWidget;

// A part of the window. Main thread only, like everything in this framework.
class NSView {
public:
    // `widget` is what shows the view on the screen; the window owns both.
    explicit NSView(QWidget* widget);
    virtual ~NSView();
    NSView(const NSView&) = delete;
    NSView& operator=(const NSView&) = delete;

    // The view's own area, its origin at (0, 0).
    NSRect bounds() const;

    // The window the view is in, or nullptr.
    NSWindow* window() const;

protected:
    // Has display() called with the next frame of the screen, once, however often it is asked for.
    void setNeedsDisplay();

private:
    friend class Frames;

    // Hands to the widget what has changed since the last time.
    virtual void display() { }

    QWidget* const m_widget;
    bool m_needsDisplay = false;
};
