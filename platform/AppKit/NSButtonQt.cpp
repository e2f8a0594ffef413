#include "ButtonQt.h"

void ButtonQt::setAction(std::function<void(NSView*)> action)
{
    QObject::connect(
        &widget(), &QPushButton::clicked, [this, action = std::move(action)] { action(this); });
}

void ButtonQt::takeKeyboard()
{
    widget().setDefault(true);
    widget().setFocus();
}
