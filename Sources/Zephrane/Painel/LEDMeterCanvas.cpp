#include "Painel/LEDMeterCanvas.hpp"

#include "Painel/PainelCanvas.hpp"

#include <QPainter>

#include <algorithm>
#include <cmath>

LEDMeterCanvas::LEDMeterCanvas(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

int LEDMeterCanvas::litCells(double fraction, int cells) {
    if (cells <= 0 || !(fraction > 0))
        return 0;
    if (fraction >= 1)
        return cells;
    const int rounded = int(std::lround(fraction * cells));
    return std::clamp(rounded, 1, std::max(cells - 1, 1));
}

template <typename T> void LEDMeterCanvas::assign(T& field, const T& value) {
    if (PainelCanvas::store(this, field, value))
        emit changed();
}

void LEDMeterCanvas::setFraction(double value) {
    assign(share, std::isfinite(value) ? value : 0.0);
}
void LEDMeterCanvas::setCells(int value) {
    assign(count, std::max(value, 1));
}
void LEDMeterCanvas::setAccentTail(int value) {
    assign(tail, std::max(value, 0));
}
void LEDMeterCanvas::setAxis(int value) {
    assign(orientation, value == Qt::Vertical ? int(Qt::Vertical) : int(Qt::Horizontal));
}
void LEDMeterCanvas::setSpacing(qreal value) {
    assign(gap, std::max(value, 0.0));
}
void LEDMeterCanvas::setCornerRadius(qreal value) {
    assign(radius, std::max(value, 0.0));
}
void LEDMeterCanvas::setFillsCrossAxis(bool value) {
    assign(crossFill, value);
}
void LEDMeterCanvas::setMirrored(bool value) {
    assign(mirror, value);
}
void LEDMeterCanvas::setOnColor(const QColor& value) {
    assign(lit, value);
}
void LEDMeterCanvas::setAccentColor(const QColor& value) {
    assign(accent, value);
}
void LEDMeterCanvas::setOffColor(const QColor& value) {
    assign(unlit, value);
}

QRectF LEDMeterCanvas::cellRect(int index) const {
    const bool horizontal = orientation == Qt::Horizontal;
    const qreal along = horizontal ? width() : height();
    const qreal across = horizontal ? height() : width();
    const qreal length = std::max((along - gap * (count - 1)) / count, 0.0);
    const qreal thickness = crossFill ? across : std::min(across, length);
    const qreal crossOffset = (across - thickness) / 2;
    qreal offset = index * (length + gap);
    // Horizontal meters fill from the leading edge, vertical ones from the bottom.
    if (horizontal ? mirror : true)
        offset = along - offset - length;
    return horizontal ? QRectF(offset, crossOffset, length, thickness)
                      : QRectF(crossOffset, offset, thickness, length);
}

void LEDMeterCanvas::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    const int on = litCells();
    for (int index = 0; index < count; ++index) {
        const bool inTail = index >= count - tail;
        painter->setBrush(index >= on ? unlit : (inTail ? accent : lit));
        painter->drawRoundedRect(cellRect(index), radius, radius);
    }
}
