#pragma once

#include "ViewQt.h"

#include <AppKit/NSButton.h>
#include <AppKit/NSProgressIndicator.h>

#include <QBasicTimer>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <cmath>

// Does not become the default button by receiving the focus.
class ButtonQt : public ViewQt<QPushButton, NSButton> {
public:
    explicit ButtonQt(QWidget* parent) : ViewQt(parent) { setAutoDefault(false); }

    void setEnabled(bool enabled) override { QPushButton::setEnabled(enabled); }
    void setAccessibilityHelp(const std::string& help) override
    {
        setAccessibleDescription(QString::fromStdString(help));
    }
};

// The toolkit's bar repaints at each step, and a task makes thousands of steps per second. This one
// repaints at most once per frame, and at once when it is full.
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
