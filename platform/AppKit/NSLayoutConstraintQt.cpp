#include "HeightConstraintQt.h"

#include <AppKit/NSAnimationContext.h>

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cmath>

HeightConstraintQt::HeightConstraintQt(QWidget& part)
    : QVariantAnimation(&part), m_part(part), m_constant(part.minimumHeight())
{
    part.window()->layout()->setSizeConstraint(QLayout::SetMinAndMaxSize);
    setEasingCurve(QEasingCurve::InOutQuad);
    connect(this, &QVariantAnimation::valueChanged,
        [this](const QVariant& height) { m_part.window()->setFixedHeight(height.toInt()); });
    connect(this, &QVariantAnimation::finished, [this] {
        setConstant(m_constant); // the desktop may have put the window elsewhere meanwhile
        m_completionHandler();
    });
}

void HeightConstraintQt::setConstant(CGFloat constant)
{
    stop();
    QWidget& window = *m_part.window();
    window.layout()->setEnabled(true);
    const int height = prepare(constant);
    window.layout()->activate();
    window.resize(window.width(), height); // the layout makes it higher by itself, but never lower
}

void HeightConstraintQt::animateConstant(CGFloat constant)
{
    stop();
    const QWidget& window = *m_part.window();
    window.layout()->setEnabled(false); // or it would fit the part into the window as it grows
    const int height = prepare(constant);
    window.layout()->setGeometry({ 0, 0, window.width(), height });

    const NSAnimationContext& context = NSAnimationContext::currentContext();
    setDuration(int(std::lround(context.duration() * 1000)));
    m_completionHandler = context.completionHandler();
    setStartValue(window.height());
    setEndValue(height);
    start();
}

// Notes the constant, gives the part the height that there is room for on the screen, and moves the
// window to where it has that room. The height of the window with the part.
int HeightConstraintQt::prepare(CGFloat constant)
{
    m_constant = constant;
    QWidget& window = *m_part.window();
    const QLayout& layout = *window.layout();
    const int rest = layout.totalMinimumSize().height()
        + (m_part.isHidden() ? layout.spacing() : -m_part.minimumHeight());
    const QMargins frame = window.isVisible() ? window.windowHandle()->frameMargins() : QMargins();
    // Wayland neither tells where a window is nor moves it.
    const bool canMove = !QGuiApplication::platformName().startsWith("wayland");
    const RoomQt room = roomOn(window.screen()->availableGeometry(), frame, window.geometry().top(),
        rest, int(constant), canMove);
    if (window.isVisible() && room.top != window.y()) window.move(window.x(), room.top);
    m_part.setMinimumHeight(room.height);
    m_part.resize(layout.contentsRect().width(), room.height);
    m_part.setVisible(constant > 0);
    return layout.totalMinimumSize().height();
}

RoomQt roomOn(const QRect& screen, QMargins frame, int top, int rest, int wish, bool canMove)
{
    frame = frame | QMargins();
    rest += frame.top() + frame.bottom();
    const int room = std::max(0, screen.height() - rest) / (canMove ? 1 : 2);
    const int height = std::min(wish, room);
    const int lowest = screen.top() + screen.height() - rest - height;
    return { std::max(screen.top(), std::min(top - frame.top(), lowest)), height };
}
