#include "WindowQt.h"

#include <AppKit/NSViewController.h>

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>

// A Wayland client can neither read nor set the position of its window.
static bool canMove() { return !QGuiApplication::platformName().startsWith("wayland"); }

void WindowQt::setPane(QWidget& pane, QPushButton& defaultButton)
{
    m_pane = &pane;
    m_constant = pane.sizeHint().height();
    m_defaultButton = &defaultButton;
    setWindowFlags(Qt::Window);
    // Otherwise the animation could not set a negative margin.
    setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);
}

void WindowQt::setTitle(const std::string& title) { setWindowTitle(QString::fromStdString(title)); }

void WindowQt::setContentViewController(std::shared_ptr<NSViewController> controller)
{
    m_contentViewController = std::move(controller);
    m_contentViewController->viewDidLoad();
}

void WindowQt::enableKeyEquivalentForDefaultButton()
{
    m_defaultButton->setDefault(true);
    m_defaultButton->setFocus();
}

void WindowQt::makeKeyAndOrderFront()
{
    resize(QSize(width(), sizeHint().height()).boundedTo(screen()->availableGeometry().size()));
    show();
    for (const QScreen* screen : QGuiApplication::screens())
        connect(screen, &QScreen::availableGeometryChanged, this, &WindowQt::fitScreen);
    connect(qApp, &QApplication::screenRemoved, this, &WindowQt::fitScreen, Qt::QueuedConnection);
    // While KWin frames a window on X, Qt may read the position 0, 0 in the frame, which would be
    // requested with the next size.
    const QWindow& handle = *windowHandle();
    const auto isBeingFramed = [&] {
        return canMove() && handle.position().isNull() && !handle.frameMargins().isNull();
    };
    QTimer limit; // the desktop may keep the window hidden
    limit.setSingleShot(true);
    limit.start(1000); // milliseconds
    while ((!handle.isExposed() || isBeingFramed()) && limit.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void WindowQt::keyPressEvent(QKeyEvent* event)
{
    if (m_defaultButton->isDefault()) ViewQt::keyPressEvent(event);
}

// Escape and the close control press the button, which is disabled while a task runs.
void WindowQt::reject() { m_defaultButton->click(); }

// On Wayland the margins of a frame that the compositor draws are unknown, too: the window is
// assumed to be centred, below a title bar.
QSize WindowQt::makeRoom(QSize size)
{
    if (!isVisible() || isMaximized()) return size; // the window manager fits a maximised window
    QWindow& handle = *windowHandle();
    const QMargins titleBar(0, canMove() ? 0 : 2 * fontMetrics().height(), 0, 0);
    QRect room = screen()->availableGeometry().marginsRemoved(handle.frameMargins() | titleBar);
    if (!canMove()) room.setTop(room.center().y() - height() / 2);
    size = size.boundedTo(room.size());
    const QPoint place(std::clamp(handle.x(), room.left(), room.right() + 1 - size.width()),
        std::clamp(handle.y(), room.top(), room.bottom() + 1 - size.height()));
    if (canMove() && place != handle.position()) handle.setPosition(place);
    return size;
}
