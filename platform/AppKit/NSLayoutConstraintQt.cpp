#include "AppKit/NSLayoutConstraint.h"

#include "AppKit/NSAnimationContext.h"

#include <QVariantAnimation>
#include <QWidget>

#include <cmath>

NSLayoutConstraint::NSLayoutConstraint(QWidget* widget)
    : m_widget(widget)
    , m_animation(std::make_unique<QVariantAnimation>())
    , m_constant(widget->minimumHeight())
{
    m_animation->setEasingCurve(QEasingCurve::InOutQuad);
    QObject::connect(m_animation.get(), &QVariantAnimation::valueChanged,
        [this](const QVariant& height) { setHeight(int(std::lround(height.toDouble()))); });
    QObject::connect(m_animation.get(), &QVariantAnimation::finished, [this] { release(); });
}

NSLayoutConstraint::~NSLayoutConstraint() = default;

void NSLayoutConstraint::setConstant(CGFloat constant)
{
    m_animation->stop();
    m_constant = constant;
    setHeight(int(std::lround(constant)));
    release();
}

void NSLayoutConstraint::Animator::setConstant(CGFloat constant)
{
    const double seconds = NSAnimationContext::currentContext().duration();
    QVariantAnimation& animation = *m_constraint.m_animation;
    animation.stop();
    animation.setStartValue(std::exchange(m_constraint.m_constant, constant));
    animation.setEndValue(constant);
    animation.setDuration(int(std::lround(seconds * 1000)));
    animation.start();
}

void NSLayoutConstraint::setHeight(int height)
{
    m_widget->setFixedHeight(height);
    m_widget->setVisible(height > 0);
}

// Lets the person make an open part higher.
void NSLayoutConstraint::release()
{
    if (m_constant > 0)
        m_widget->setMaximumHeight(QWIDGETSIZE_MAX);
}
