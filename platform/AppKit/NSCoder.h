#pragma once

#include "AppKit/NSWindow.h"

#include <memory>

// An opened interface file: the window it describes, and the parts of the window by their names.
class NSCoder {
public:
    // Takes over the widget that was built from the file; nullptr: the file is empty.
    explicit NSCoder(QWidget* widget);

    const std::shared_ptr<NSWindow>& window() const { return m_window; }

    // The part of that name, as a view or constraint, kept by the window. A name that the file does
    // not hold is a mistake in the program, which can't go on then.
    template <class Part> std::shared_ptr<Part> decode(const char* name) const
    {
        auto part = std::make_shared<Part>(widgetNamed(name));
        m_window->own(part);
        return part;
    }

private:
    QWidget* widgetNamed(const char* name) const;

    QWidget* const m_widget;
    const std::shared_ptr<NSWindow> m_window;
};
