#include "ButtonQt.h"
#include "WindowQt.h"

#include <AppKit/NSViewController.h>

#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <QVariant>

#include <algorithm>

namespace {

constexpr const char* windowProperty = "NSWindow";

}

// What a person does to the window itself goes to its button; not at once, as the toolkit takes no
// call to close a window while it asks whether it may close it.
class WindowQt::DefaultButton : public QObject {
public:
    DefaultButton(QObject* window, const std::shared_ptr<ButtonQt>& button)
        : QObject(window)
        , m_button(button)
    {
        window->installEventFilter(this);
    }

    void enableKeys()
    {
        m_hasKeys = true;
        if (const auto button = m_button.lock())
            button->takeKeyboard();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isEscape = event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        const bool isCloseControl = event->type() == QEvent::Close;
        if (!isEscape && !isCloseControl)
            return QObject::eventFilter(watched, event);
        event->ignore();
        if (m_hasKeys || isCloseControl)
            QTimer::singleShot(0, this, [this] { click(); });
        return true;
    }

private:
    void click()
    {
        if (const auto button = m_button.lock())
            button->performClick();
    }

    const std::weak_ptr<ButtonQt> m_button;
    bool m_hasKeys = false;
};

// A dialog to a screen reader, but with the controls of a window.
WindowQt::WindowQt()
    : m_dialog(std::make_unique<QDialog>(nullptr, Qt::Window))
    , m_contentView(std::make_shared<ViewQt<NSView, QWidget>>(m_dialog.get()))
{
    m_dialog->setProperty(windowProperty, QVariant::fromValue<void*>(static_cast<NSWindow*>(this)));
}

WindowQt::~WindowQt() = default;

NSWindow* WindowQt::ofWidget(const QWidget& widget)
{
    return static_cast<NSWindow*>(widget.window()->property(windowProperty).value<void*>());
}

void WindowQt::setTitle(const std::string& title)
{
    m_dialog->setWindowTitle(QString::fromStdString(title));
}

void WindowQt::setContentViewController(std::shared_ptr<NSViewController> controller)
{
    m_contentViewController = std::move(controller);
    m_contentViewController->viewDidLoad();
}

void WindowQt::setDefaultButton(const std::shared_ptr<NSButton>& button)
{
    m_defaultButton = new DefaultButton(m_dialog.get(), std::static_pointer_cast<ButtonQt>(button));
}

void WindowQt::enableKeyEquivalentForDefaultButton()
{
    m_defaultButton->enableKeys();
}

void WindowQt::makeKeyAndOrderFront()
{
    const int screen = m_dialog->screen()->availableGeometry().width();
    m_dialog->resize(std::min(m_dialog->width(), screen), m_dialog->height());
    m_dialog->show();
}

// On Wayland the close control's event looks like this call's.
void WindowQt::close()
{
    m_dialog->removeEventFilter(m_defaultButton);
    m_dialog->close();
}
