#include "Painel/ScanSweepCanvas.hpp"

#include "Painel/PainelCanvas.hpp"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

ScanSweepCanvas::ScanSweepCanvas(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void ScanSweepCanvas::setPhase(qreal value) {
    value = std::clamp(value, 0.0, 1.0);
    if (PainelCanvas::store(this, position, value))
        emit changed();
}

void ScanSweepCanvas::setBandWidth(qreal value) {
    value = std::clamp(value, 0.01, 1.0);
    if (PainelCanvas::store(this, band, value))
        emit changed();
}

void ScanSweepCanvas::setColor(const QColor& value) {
    if (PainelCanvas::store(this, glow, value))
        emit changed();
}

void ScanSweepCanvas::setLineColor(const QColor& value) {
    if (PainelCanvas::store(this, lines, value))
        emit changed();
}

void ScanSweepCanvas::setMirrored(bool value) {
    if (PainelCanvas::store(this, mirror, value))
        emit changed();
}

qreal ScanSweepCanvas::bandCentre() const {
    const qreal bandPixels = band * width();
    // From fully before the leading edge to fully past the trailing one.
    const qreal centre = -bandPixels / 2 + position * (width() + bandPixels);
    return mirror ? width() - centre : centre;
}

void ScanSweepCanvas::paint(QPainter* painter) {
    const qreal w = width();
    const qreal h = height();
    painter->setPen(Qt::NoPen);
    painter->setBrush(lines);
    for (qreal y = 1; y < h; y += 4)
        painter->drawRect(QRectF(0, y, w, 1));

    const qreal bandPixels = band * w;
    const qreal centre = bandCentre();
    const qreal left = centre - bandPixels / 2;
    QLinearGradient gradient(left, 0, left + bandPixels, 0);
    QColor clear = glow;
    clear.setAlphaF(0);
    QColor soft = glow;
    soft.setAlphaF(0.35);
    // The bright edge leads: on the right going right, on the left when mirrored.
    gradient.setColorAt(0, clear);
    gradient.setColorAt(mirror ? 0.1 : 0.9, soft);
    gradient.setColorAt(1, clear);
    painter->fillRect(QRectF(left, 0, bandPixels, h), gradient);

    painter->setBrush(glow);
    const qreal edge = mirror ? left + bandPixels * 0.1 : left + bandPixels * 0.9;
    painter->drawRect(QRectF(edge - 1, 0, 2, h));
}
