#include "Painel/LEDNumberCanvas.hpp"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>

#include <algorithm>

LEDNumberCanvas::LEDNumberCanvas(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    relayout();
}

void LEDNumberCanvas::setBytes(qint64 value) {
    if (fromBytes && value == byteCount)
        return;
    byteCount = value;
    fromBytes = true;
    content = ByteParts::make(byteCount, localeName);
    partsChanged();
}

void LEDNumberCanvas::setLocale(const QString& value) {
    if (value == localeName)
        return;
    localeName = value;
    if (fromBytes)
        content = ByteParts::make(byteCount, localeName);
    partsChanged();
}

void LEDNumberCanvas::setParts(const ByteParts& value) {
    fromBytes = false;
    if (value == content)
        return;
    content = value;
    partsChanged();
}

// Setting one part by hand means the content is parts from now on.
void LEDNumberCanvas::setInteger(const QString& value) {
    fromBytes = false;
    if (value == content.integer)
        return;
    content.integer = value;
    partsChanged();
}

void LEDNumberCanvas::setFraction(const QString& value) {
    fromBytes = false;
    if (value == content.fraction)
        return;
    content.fraction = value;
    partsChanged();
}

void LEDNumberCanvas::setUnit(const QString& value) {
    fromBytes = false;
    if (value == content.unit)
        return;
    content.unit = value;
    partsChanged();
}

QString LEDNumberCanvas::spoken() const {
    if (!content.spoken.isEmpty())
        return content.spoken;
    // Parts without words are read as they are drawn.
    QString text = content.integer;
    if (!content.fraction.isEmpty())
        text += (localeName.isEmpty() ? QLocale() : QLocale(localeName)).decimalPoint() + content.fraction;
    if (!content.unit.isEmpty())
        text += QLatin1Char(' ') + content.unit;
    return text;
}

void LEDNumberCanvas::setSpoken(const QString& value) {
    fromBytes = false;
    if (value == content.spoken)
        return;
    content.spoken = value;
    emit contentChanged();
}

void LEDNumberCanvas::partsChanged() {
    emit contentChanged();
    relayout();
}

void LEDNumberCanvas::setSize(qreal value) {
    if (value == digitSize || value <= 0)
        return;
    digitSize = value;
    relayout();
}

void LEDNumberCanvas::setUnitSize(qreal value) {
    if (value == unitPixels || value < 0)
        return;
    unitPixels = value;
    relayout();
}

void LEDNumberCanvas::setColor(const QColor& value) {
    if (value == digitColor)
        return;
    digitColor = value;
    emit lookChanged();
    update();
}

void LEDNumberCanvas::setUnitColor(const QColor& value) {
    if (value == unitTextColor)
        return;
    unitTextColor = value;
    emit lookChanged();
    update();
}

void LEDNumberCanvas::setGhostColor(const QColor& value) {
    if (value == ghost)
        return;
    ghost = value;
    emit lookChanged();
    update();
}

void LEDNumberCanvas::setFamily(const QString& value) {
    if (value == digitFamily)
        return;
    digitFamily = value;
    relayout();
}

void LEDNumberCanvas::setUnitFamily(const QString& value) {
    if (value == unitTextFamily)
        return;
    unitTextFamily = value;
    relayout();
}

void LEDNumberCanvas::setHorizontalAlignment(int value) {
    if (value == alignment)
        return;
    alignment = value;
    emit lookChanged();
    update();
}

qreal LEDNumberCanvas::effectiveUnitSize() const {
    return unitPixels > 0 ? unitPixels : std::max(9.0, digitSize * 0.36);
}

QFont LEDNumberCanvas::digitFont() const {
    QFont font(digitFamily);
    font.setPixelSize(std::max(1, qRound(digitSize)));
    font.setWeight(QFont::Bold);
    return font;
}

QFont LEDNumberCanvas::unitFont() const {
    QFont font(unitTextFamily);
    font.setPixelSize(std::max(1, qRound(effectiveUnitSize())));
    font.setWeight(QFont::Medium);
    font.setCapitalization(QFont::AllUppercase);
    font.setLetterSpacing(QFont::AbsoluteSpacing, effectiveUnitSize() * 0.08);
    return font;
}

qreal LEDNumberCanvas::Layout::width() const {
    return integerWidth + (dotSize > 0 ? 2 * dotGap + dotSize + fractionWidth : 0) +
           (unitWidth > 0 ? unitGap + unitWidth : 0);
}

LEDNumberCanvas::Layout LEDNumberCanvas::measure() const {
    const QFontMetricsF digits(digitFont());
    const QFontMetricsF units(unitFont());
    Layout layout;
    layout.integerWidth = digits.horizontalAdvance(content.integer);
    if (!content.fraction.isEmpty()) {
        layout.dotSize = std::max(2.0, digitSize * 0.13);
        layout.dotGap = std::max(1.0, digitSize * 0.07);
        layout.fractionWidth = digits.horizontalAdvance(content.fraction);
    }
    if (!content.unit.isEmpty()) {
        layout.unitGap = std::max(3.0, digitSize * 0.14);
        layout.unitWidth = units.horizontalAdvance(content.unit);
    }
    // Digits have no descenders: the box ends a little below the baseline.
    layout.ascent = digits.capHeight();
    layout.descent = std::max(digits.descent() * 0.35, 1.0);
    return layout;
}

void LEDNumberCanvas::relayout() {
    const Layout layout = measure();
    setImplicitWidth(std::ceil(layout.width()));
    setImplicitHeight(std::ceil(layout.ascent + layout.descent + digitSize * 0.1));
    emit lookChanged();
    update();
}

void LEDNumberCanvas::paint(QPainter* painter) {
    const Layout layout = measure();
    const QFont digits = digitFont();
    const QFont units = unitFont();
    qreal x = 0;
    if (alignment & Qt::AlignRight)
        x = width() - layout.width();
    else if (alignment & Qt::AlignHCenter)
        x = (width() - layout.width()) / 2;
    const qreal baseline = (height() + layout.ascent - layout.descent) / 2;

    painter->setRenderHint(QPainter::Antialiasing);
    const auto drawDigits = [&](const QString& text, qreal left) {
        painter->setFont(digits);
        if (ghost.alpha() > 0) {
            painter->setPen(ghost);
            QString eights = text;
            for (QChar& c : eights)
                if (c.isDigit())
                    c = QLatin1Char('8');
            painter->drawText(QPointF(left, baseline), eights);
        }
        painter->setPen(digitColor);
        painter->drawText(QPointF(left, baseline), text);
    };

    drawDigits(content.integer, x);
    x += layout.integerWidth;
    if (layout.dotSize > 0) {
        x += layout.dotGap;
        painter->setPen(Qt::NoPen);
        painter->setBrush(digitColor);
        // The separator is a square dot on the baseline, like one lamp of the display.
        painter->drawRoundedRect(QRectF(x, baseline - layout.dotSize, layout.dotSize, layout.dotSize),
                                 layout.dotSize * 0.2, layout.dotSize * 0.2);
        x += layout.dotSize + layout.dotGap;
        drawDigits(content.fraction, x);
        x += layout.fractionWidth;
    }
    if (layout.unitWidth > 0) {
        x += layout.unitGap;
        painter->setFont(units);
        painter->setPen(unitTextColor);
        painter->drawText(QPointF(x, baseline), content.unit);
    }
}
