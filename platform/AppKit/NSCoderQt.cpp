#include "AppKit/NSCoder.h"

#include "AppKit/NSView.h"

#include <QWidget>

NSCoder::NSCoder(QWidget* widget)
    : m_widget(widget)
    , m_window(widget ? std::make_shared<NSWindow>(widget) : nullptr)
{
}

QWidget* NSCoder::widgetNamed(const char* name) const
{
    auto* const widget = m_widget->findChild<QWidget*>(QLatin1String(name));
    if (!widget)
        qFatal("The interface file has no “%s”", name);
    return widget;
}
