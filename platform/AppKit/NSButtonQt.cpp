#include "AppKit/NSButton.h"

#include "AppKit/WidgetQt.h"

#include <QPushButton>

NSButton::NSButton(QWidget* widget)
    : NSView(widget)
    , m_button(widgetAs<QPushButton>(widget))
{
}

void NSButton::setAction(std::function<void(NSView*)> action)
{
    QObject::connect(
        m_button, &QPushButton::clicked, [this, action = std::move(action)] { action(this); });
}

bool NSButton::isEnabled() const
{
    return m_button->isEnabled();
}

void NSButton::setEnabled(bool enabled)
{
    m_button->setEnabled(enabled);
    if (enabled)
        m_button->setFocus();
}

void NSButton::performClick()
{
    m_button->click();
}
