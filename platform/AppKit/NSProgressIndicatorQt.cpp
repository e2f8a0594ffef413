#include "AppKit/NSProgressIndicator.h"

#include "AppKit/WidgetQt.h"

#include <QProgressBar>

#include <algorithm>
#include <cmath>

namespace {

// Finer than any screen shows.
constexpr int steps = 10'000;

}

NSProgressIndicator::NSProgressIndicator(QWidget* widget)
    : NSView(widget)
    , m_bar(widgetAs<QProgressBar>(widget))
{
    m_bar->setRange(0, steps);
}

void NSProgressIndicator::setMinValue(double value)
{
    m_minValue = value;
    setNeedsDisplay();
}

void NSProgressIndicator::setMaxValue(double value)
{
    m_maxValue = value;
    setNeedsDisplay();
}

double NSProgressIndicator::doubleValue() const
{
    return std::clamp(m_doubleValue, m_minValue, m_maxValue);
}

void NSProgressIndicator::setDoubleValue(double value)
{
    m_doubleValue = value;
    setNeedsDisplay();
}

void NSProgressIndicator::display()
{
    const double done = (doubleValue() - m_minValue) / (m_maxValue - m_minValue);
    m_bar->setValue(int(std::lround(done * steps)));
}
