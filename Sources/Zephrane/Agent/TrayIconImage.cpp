#include "Agent/TrayIconImage.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace TrayIconImage {

namespace {

QPixmap drawn(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = size / 16.0;
    const QColor ink(0xEC, 0xEC, 0xEC);
    // Outline of a panel with three LED bars of rising height.
    painter.setPen(QPen(ink, 1.2 * unit));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(1.2 * unit, 1.2 * unit, 13.6 * unit, 13.6 * unit), 3 * unit, 3 * unit);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    const double heights[] = {4, 6.5, 9};
    for (int i = 0; i < 3; ++i)
        painter.drawRoundedRect(QRectF((4 + i * 3) * unit, (12.5 - heights[i]) * unit, 2 * unit, heights[i] * unit),
                                0.6 * unit, 0.6 * unit);
    return pixmap;
}

} // namespace

QIcon icon() {
    static const QIcon made = [] {
        QIcon icon;
        for (int size : {16, 22, 24, 32, 48, 64})
            icon.addPixmap(drawn(size));
        return icon;
    }();
    return made;
}

} // namespace TrayIconImage
