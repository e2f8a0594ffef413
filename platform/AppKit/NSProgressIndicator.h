#pragma once

#include "AppKit/NSView.h"

class QProgressBar;

// A bar that shows how much of something is done.
class NSProgressIndicator : public NSView {
public:
    explicit NSProgressIndicator(QWidget* widget);

    void setMinValue(double value);
    void setMaxValue(double value);

    // Values outside the range show as the end they lie beyond.
    double doubleValue() const;
    void setDoubleValue(double value);

private:
    void display() override;

    QProgressBar* const m_bar;
    double m_minValue = 0;
    double m_maxValue = 100;
    double m_doubleValue = 0;
};
