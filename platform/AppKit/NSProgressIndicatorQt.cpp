#include <AppKit/NSProgressIndicator.h>

#include "InterfaceQt.h"
#include "ViewQt.h"

#include <QProgressBar>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

constexpr int steps = 10'000; // finer than any screen shows
constexpr int framePeriod = 16; // milliseconds

// A task steps the bar thousands of times a second; no screen shows more than some sixty of them.
class ProgressIndicatorQt : public ViewQt<NSProgressIndicator, QProgressBar> {
public:
    explicit ProgressIndicatorQt(QProgressBar* bar)
        : ViewQt(bar)
        , m_minValue(bar->minimum())
        , m_maxValue(bar->maximum())
        , m_doubleValue(bar->value())
    {
        bar->setRange(0, steps);
        m_frame.setInterval(framePeriod);
        m_frame.setSingleShot(true);
        QObject::connect(&m_frame, &QTimer::timeout, [this] {
            if (std::exchange(m_isBehind, false))
                show();
        });
        show();
    }

    void setMinValue(double value) override { change(m_minValue, value); }
    void setMaxValue(double value) override { change(m_maxValue, value); }
    void setDoubleValue(double value) override { change(m_doubleValue, value); }
    double doubleValue() const override
    {
        return std::clamp(m_doubleValue, m_minValue, m_maxValue);
    }

private:
    void change(double& member, double value)
    {
        member = value;
        if (m_frame.isActive())
            m_isBehind = true;
        else
            show();
    }

    void show()
    {
        const double done
            = (ProgressIndicatorQt::doubleValue() - m_minValue) / (m_maxValue - m_minValue);
        widget().setValue(int(std::lround(done * steps)));
        if (widget().isVisible())
            m_frame.start();
    }

    double m_minValue;
    double m_maxValue;
    double m_doubleValue;
    bool m_isBehind = false;
    QTimer m_frame;
};

}

std::shared_ptr<NSProgressIndicator> InterfaceQt::viewOf(QProgressBar* bar) const
{
    return keep(std::make_shared<ProgressIndicatorQt>(bar));
}
