#pragma once

#include <QLabel>
#include <QStyle>

// Loads the icon of the style when the sign becomes visible. Loading it at the start would take
// a seventh of the start-up time.
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
