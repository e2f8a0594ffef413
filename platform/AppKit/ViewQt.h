#pragma once

#include <AppKit/NSView.h>
#include <AppKit/NSWindow.h>

#include <QWidget>

// A widget of the toolkit that implements one or more views of its window.
template <class Widget, class... Views> class ViewQt : public Widget, public Views... {
public:
    using Widget::Widget;

    NSRect bounds() const override
    {
        return { {}, { CGFloat(Widget::width()), CGFloat(Widget::height()) } };
    }
    NSWindow* window() const override { return dynamic_cast<NSWindow*>(Widget::window()); }
};

using PlainViewQt = ViewQt<QWidget, NSView>;
