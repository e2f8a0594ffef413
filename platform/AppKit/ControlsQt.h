#pragma once

#include "ViewQt.h"

#include <AppKit/NSButton.h>
#include <AppKit/NSProgressIndicator.h>

#include <QBasicTimer>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <cmath>

// The default button once it is told so, and no sooner.
class ButtonQt : public ViewQt<QPushButton, NSButton> {
public:
    explicit ButtonQt(QWidget* parent) : ViewQt(parent) { setAutoDefault(false); }

    void setEnabled(bool enabled) override { QPushButton::setEnabled(enabled); }
    void setAccessibilityHelp(const std::string& help) override
    {
        setAccessibleDescription(QString::fromStdString(help));
    }
};

// The toolkit's bar counts in whole steps and draws each at once. A task steps thousands of times a
// second, so that the bar may be as far behind as a screen is, until it is full.
class ProgressIndicatorQt : public ViewQt<QProgressBar, NSProgressIndicator> {
public:
    using ViewQt::ViewQt;

    void setMinValue(double value) override { setMinimum(stepsAt(value)); }
    void setMaxValue(double value) override { setMaximum(stepsAt(value)); }
    void setDoubleValue(double value) override
    {
        m_step = std::clamp(stepsAt(value), minimum(), maximum());
        if (!m_frame.isActive() || m_step == maximum()) showStep();
    }

private:
    static int stepsAt(double value) { return int(std::lround(value * 1000)); }

    void showStep()
    {
        setValue(m_step);
        m_frame.start(16, this); // milliseconds
    }
    void timerEvent(QTimerEvent*) override
    {
        m_frame.stop();
        if (value() != m_step) showStep();
    }

    int m_step = 0;
    QBasicTimer m_frame;
};
