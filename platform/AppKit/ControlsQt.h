#pragma once

#include "ViewQt.h"

#include <AppKit/NSButton.h>
#include <AppKit/NSProgressIndicator.h>

#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <cmath>

// The default button once it is told so, and no sooner.
class ButtonQt : public ViewQt<QPushButton, NSButton> {
public:
    explicit ButtonQt(QWidget* parent)
        : ViewQt(parent)
    {
        setAutoDefault(false);
    }

    void setEnabled(bool enabled) override { QPushButton::setEnabled(enabled); }
    void setAccessibilityHelp(const std::string& help) override
    {
        setAccessibleDescription(QString::fromStdString(help));
    }
};

// The toolkit's bar counts in whole steps, and draws only those that can be told apart.
class ProgressIndicatorQt : public ViewQt<QProgressBar, NSProgressIndicator> {
public:
    using ViewQt::ViewQt;

    void setMinValue(double value) override { setMinimum(stepsAt(value)); }
    void setMaxValue(double value) override { setMaximum(stepsAt(value)); }
    void setDoubleValue(double value) override
    {
        setValue(std::clamp(stepsAt(value), minimum(), maximum()));
    }

private:
    static int stepsAt(double value) { return int(std::lround(value * 1000)); }
};
