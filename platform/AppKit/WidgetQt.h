#pragma once

#include <QWidget>

// The widget of a view as what it must be. Another class in its place is a mistake in the interface
// file, and the program can't go on.
template <class Widget> Widget* widgetAs(QWidget* widget)
{
    auto* const result = qobject_cast<Widget*>(widget);
    if (!result)
        qFatal("“%s” in the interface file is not a %s", qPrintable(widget->objectName()),
            Widget::staticMetaObject.className());
    return result;
}
