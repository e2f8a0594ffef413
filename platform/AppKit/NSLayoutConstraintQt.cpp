#include <AppKit/NSLayoutConstraint.h>

#include "InterfaceQt.h"

#include <AppKit/NSAnimationContext.h>

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QVariantAnimation>

#include <algorithm>
#include <cmath>

namespace {

class HeightConstraintQt : public NSLayoutConstraint {
public:
    explicit HeightConstraintQt(QWidget* widget);

    CGFloat constant() const override { return m_constant; }
    void setConstant(CGFloat constant) override;

private:
    void animateConstant(CGFloat constant) override;
    CGFloat prepare(CGFloat constant);
    void setHeight(int height);
    void release();

    QWidget& m_widget;
    QVariantAnimation m_animation;
    CGFloat m_constant;
};

HeightConstraintQt::HeightConstraintQt(QWidget* widget)
    : m_widget(*widget)
    , m_constant(widget->minimumHeight())
{
    m_animation.setEasingCurve(QEasingCurve::InOutQuad);
    QObject::connect(&m_animation, &QVariantAnimation::valueChanged,
        [this](const QVariant& height) { setHeight(int(std::lround(height.toDouble()))); });
}

void HeightConstraintQt::setConstant(CGFloat constant)
{
    m_animation.stop();
    setHeight(int(std::lround(prepare(constant))));
    release();
}

void HeightConstraintQt::animateConstant(CGFloat constant)
{
    const NSAnimationContext& context = NSAnimationContext::currentContext();
    m_animation.stop();
    m_animation.setStartValue(m_widget.isHidden() ? 0.0 : double(m_widget.height()));
    m_animation.setEndValue(prepare(constant));
    m_animation.setDuration(int(std::lround(context.duration() * 1000)));
    QObject::connect(
        &m_animation, &QVariantAnimation::finished, &m_animation,
        [this, handler = context.completionHandler()] {
            setConstant(m_constant); // the desktop may have put the window elsewhere meanwhile
            handler();
        },
        Qt::SingleShotConnection);
    m_animation.start();
}

// The height into which a window can grow, whose other parts take up so much. Wayland neither tells
// where it is nor moves it; it grows downwards from where it is likely to be, the middle.
int room(const QRect& screen, int rest)
{
    const bool canMove = !QGuiApplication::platformName().startsWith("wayland");
    return std::max(0, (screen.height() - rest) / (canMove ? 1 : 2));
}

// Notes the constant, and makes room for it on the screen: the height there is, and a place for the
// window from which it doesn't grow over the screen's lower edge.
CGFloat HeightConstraintQt::prepare(CGFloat constant)
{
    m_constant = constant;
    QWidget& window = *m_widget.window();
    window.layout()->activate(); // or the window has yet to follow the part's last height
    const QRect screen = window.screen()->availableGeometry();
    const QRect frame = window.frameGeometry();
    const int old = m_widget.isHidden() ? 0 : m_widget.height();
    const int rest = frame.height() - old;
    const double height = std::min(constant, double(room(screen, rest)));
    const int overlap = frame.top() + rest + int(height) - 1 - screen.bottom();
    if (window.isVisible() && overlap > 0)
        window.move(frame.left(), std::max(screen.top(), frame.top() - overlap));
    return height;
}

void HeightConstraintQt::setHeight(int height)
{
    m_widget.setFixedHeight(height);
    m_widget.setVisible(height > 0);
}

// Lets the person make an open part higher, and a screen that is smaller than the part lower.
void HeightConstraintQt::release()
{
    if (m_constant > 0)
        m_widget.setMaximumHeight(QWIDGETSIZE_MAX);
}

}

std::shared_ptr<NSLayoutConstraint> InterfaceQt::heightConstraintOf(QWidget* widget) const
{
    return keep(std::make_shared<HeightConstraintQt>(widget));
}
