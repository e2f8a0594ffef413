#pragma once

#include "WindowQt.h"

#include <AppKit/NSView.h>

#include <QWidget>

// What all views have in common that a widget of the window shows.
template <class View, class Widget> class ViewQt : public View {
public:
    explicit ViewQt(Widget* widget)
        : m_widget(widget)
    {
    }

    NSRect bounds() const override
    {
        return { {}, { CGFloat(m_widget->width()), CGFloat(m_widget->height()) } };
    }
    NSWindow* window() const override { return WindowQt::ofWidget(*m_widget); }
    void setAccessibilityHelp(const std::string& help) override
    {
        m_widget->setAccessibleDescription(QString::fromStdString(help));
    }

protected:
    Widget& widget() const { return *m_widget; }

private:
    Widget* const m_widget;
};
