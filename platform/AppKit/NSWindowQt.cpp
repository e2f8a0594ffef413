#include "AppKit/NSWindow.h"

#include "AppKit/NSButton.h"
#include "AppKit/NSViewController.h"

#include <QEvent>
#include <QShortcut>
#include <QVariant>
#include <QWidget>

#include <functional>

namespace {

constexpr const char* windowProperty = "NSWindow";

// What the person does to the window itself, as opposed to the program, goes to the button.
class CloseControl : public QObject {
public:
    CloseControl(QWidget* window, std::function<void()> press)
        : QObject(window)
        , m_press(std::move(press))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Close || !event->spontaneous())
            return QObject::eventFilter(watched, event);
        event->ignore();
        m_press();
        return true;
    }

private:
    const std::function<void()> m_press;
};

}

NSWindow::NSWindow(QWidget* widget)
    : m_widget(widget)
    , m_contentView(std::make_shared<NSView>(widget))
{
    m_widget->setProperty(windowProperty, QVariant::fromValue<void*>(this));
}

NSWindow::~NSWindow() = default;

NSWindow* NSWindow::ofWidget(const QWidget* widget)
{
    return static_cast<NSWindow*>(widget->window()->property(windowProperty).value<void*>());
}

void NSWindow::own(std::shared_ptr<void> part)
{
    m_parts.push_back(std::move(part));
}

void NSWindow::setContentViewController(std::shared_ptr<NSViewController> controller)
{
    m_contentViewController = std::move(controller);
    m_contentViewController->viewDidLoad();
}

void NSWindow::setDefaultButton(const std::shared_ptr<NSButton>& button)
{
    const auto press = [weak = std::weak_ptr(button)] {
        if (const auto pressed = weak.lock())
            pressed->performClick();
    };
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space })
        QObject::connect(new QShortcut(key, m_widget.get()), &QShortcut::activated, press);
    new CloseControl(m_widget.get(), press);
}

void NSWindow::makeKeyAndOrderFront()
{
    m_widget->show();
}

void NSWindow::close()
{
    m_widget->close();
}
