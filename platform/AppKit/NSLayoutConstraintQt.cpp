#include "WindowQt.h"

#include <AppKit/NSAnimationContext.h>

#include <QLayout>
#include <QVariantAnimation>

#include <algorithm>

void WindowQt::setConstant(CGFloat constant)
{
    m_constant = constant;
    m_pane->setVisible(constant > 0);
}

// Lays the pane out once, below the lower edge of the window, and then moves the edge down. A
// window that is high enough keeps its size. A maximised window keeps its minimum size, too: xfwm4
// and KWin do not restore it properly if its previous size is below the minimum.
void WindowQt::animateConstant(CGFloat constant)
{
    const int before = std::max(height(), layout()->totalMinimumSize().height());
    layout()->setSizeConstraint(QLayout::SetNoConstraint); // otherwise it would grow at once
    m_pane->setMinimumHeight(int(constant));
    setConstant(constant);
    const int wantedHeight = layout()->minimumSize().height();
    const int excess = wantedHeight - makeRoom({ width(), wantedHeight }).height();
    m_pane->setMinimumHeight(std::max(m_pane->minimumSizeHint().height(), int(constant) - excess));

    const int covered = std::max(0, layout()->minimumSize().height() - before);
    auto* const opening = new QVariantAnimation(this);
    connect(opening, &QVariantAnimation::valueChanged, [this](const QVariant& rest) {
        setContentsMargins(0, 0, 0, -rest.toInt());
        if (!isMaximized()) resize(size().expandedTo({ 0, layout()->totalMinimumSize().height() }));
    });
    connect(opening, &QVariantAnimation::finished, [this, covered] {
        if (covered == 0 || isMaximized()) return;
        layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
        m_pane->setMinimumHeight(0);
    });
    // The window manager or the user may have moved the window meanwhile.
    connect(opening, &QVariantAnimation::finished, this, &WindowQt::fitScreen);
    const NSAnimationContext& context = NSAnimationContext::currentContext();
    connect(opening, &QVariantAnimation::finished, context.completionHandler());
    opening->setDuration(int(context.duration() * 1000)); // milliseconds
    opening->setEasingCurve(QEasingCurve::InOutQuad);
    opening->setStartValue(covered);
    opening->setEndValue(0);
    opening->start(QAbstractAnimation::DeleteWhenStopped);
}

// If the window was maximised while the pane opened, it is too low when it is restored.
void WindowQt::resizeEvent(QResizeEvent*)
{
    if (contentsMargins().bottom() == 0 && height() < layout()->totalMinimumSize().height())
        layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
}
