#include "Icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

const QColor box(0x2F, 0x5D, 0x8A);
const QColor rim(0x1F, 0x41, 0x63);
const QColor arrow(0xF2, 0xB1, 0x34);

// On a field of 64 by 64.
void draw(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    painter.setBrush(box);
    painter.drawRoundedRect(QRectF(8, 34, 48, 24), 5, 5);
    painter.setBrush(rim);
    painter.drawRoundedRect(QRectF(4, 30, 56, 9), 3, 3);

    const QPolygonF downwards { { 26, 5 }, { 38, 5 }, { 38, 26 }, { 49, 26 }, { 32, 46 },
        { 15, 26 }, { 26, 26 } };
    painter.setBrush(arrow);
    painter.drawPolygon(downwards);
}

}

QIcon installerIcon()
{
    QIcon icon;
    for (const int size : { 16, 32, 64, 128 }) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.scale(size / 64.0, size / 64.0);
        draw(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}
