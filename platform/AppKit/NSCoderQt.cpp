#include "AppKit/NSCoder.h"

#include "AppKit/NSView.h"

#include <QLayout>
#include <QWidget>

NSCoder::NSCoder(QWidget* widget)
    : m_widget(widget)
    , m_window(widget ? std::make_shared<NSWindow>(widget) : nullptr)
{
    if (!widget)
        return;
    // Gives every part the place and the size it has in the file. Qt would wait until a part can be
    // seen, but what is in a pane that starts collapsed needs its width before.
    widget->adjustSize();
    for (QLayout* const layout : widget->findChildren<QLayout*>()) {
        layout->invalidate();
        layout->activate();
    }
}

QWidget* NSCoder::widgetNamed(const char* name) const
{
    auto* const widget = m_widget->findChild<QWidget*>(QLatin1String(name));
    if (!widget)
        qFatal("The interface file has no “%s”", name);
    return widget;
}
