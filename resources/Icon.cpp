#include "Icon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

QIcon installerIcon()
{
    QSvgRenderer drawing(QStringLiteral(":/quillbarninstaller.svg"));
    QIcon icon;
    for (const int size : { 16, 32, 64, 128 }) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}
