#include "WindowQt.h"

#include <AppKit/NSViewController.h>

#include <QCoreApplication>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <chrono>

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

// A desktop that shows no window is not waited for long: a run needs nobody to look at it.
void WindowQt::makeKeyAndOrderFront()
{
    resize(std::min(width(), screen()->availableGeometry().width()), height());
    show();
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(std::chrono::seconds(1));
    while (!windowHandle()->isExposed() && patience.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void WindowQt::keyPressEvent(QKeyEvent* event)
{
    if (m_defaultButton->isDefault()) ViewQt::keyPressEvent(event);
}

// What a person does to the window itself goes to its button, which does nothing while a task runs.
void WindowQt::reject() { m_defaultButton->click(); }
