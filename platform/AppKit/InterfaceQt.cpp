#include "InterfaceQt.h"

#include "ButtonQt.h"

InterfaceQt::InterfaceQt()
    : NSCoder(std::make_shared<WindowQt>())
{
}

std::shared_ptr<NSView> InterfaceQt::viewOf(QWidget* widget) const
{
    return keep(std::make_shared<ViewQt<NSView, QWidget>>(widget));
}

std::shared_ptr<NSButton> InterfaceQt::viewOf(QPushButton* button) const
{
    return keep(std::make_shared<ButtonQt>(button));
}
