#include "Painel/LEDNumberCanvas.hpp"

#include "Painel/PainelCanvas.hpp"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cstdint>

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

// Setting one part by hand means the content is parts from now on, starting from none.
bool LEDNumberCanvas::leaveBytes() {
    if (!fromBytes)
        return false;
    fromBytes = false;
    content = {};
    return true;
}

void LEDNumberCanvas::setInteger(const QString& value) {
    if (!leaveBytes() && value == content.integer)
        return;
    content.integer = value;
    partsChanged();
}

void LEDNumberCanvas::setFraction(const QString& value) {
    if (!leaveBytes() && value == content.fraction)
        return;
    content.fraction = value;
    partsChanged();
}

void LEDNumberCanvas::setUnit(const QString& value) {
    if (!leaveBytes() && value == content.unit)
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
    if (!leaveBytes() && value == content.spoken)
        return;
    content.spoken = value;
    partsChanged();
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
    if (PainelCanvas::store(this, digitColor, value))
        emit lookChanged();
}

void LEDNumberCanvas::setUnitColor(const QColor& value) {
    if (PainelCanvas::store(this, unitTextColor, value))
        emit lookChanged();
}

void LEDNumberCanvas::setGhostColor(const QColor& value) {
    if (PainelCanvas::store(this, ghost, value))
        emit lookChanged();
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
    if (PainelCanvas::store(this, alignment, value))
        emit lookChanged();
}

qreal LEDNumberCanvas::effectiveUnitSize() const {
    return unitPixels > 0 ? unitPixels : std::max(9.0, digitSize * 0.34);
}

QFont LEDNumberCanvas::digitFont() const {
    QFont font(digitFamily);
    font.setPixelSize(std::max(1, qRound(digitSize * 0.9)));
    font.setWeight(QFont::Medium);
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

namespace {

// Seven segments a (top), b, c (right, top to bottom), d (bottom), e, f (left, bottom to top), g.
constexpr std::array<std::uint8_t, 10> segmentsOf{0b0111111, 0b0000110, 0b1011011, 0b1001111, 0b1100110,
                                                  0b1101101, 0b1111101, 0b0000111, 0b1111111, 0b1101111};
// Digits lean forward a little, like a display's.
constexpr qreal slant = 0.08;

} // namespace

LEDNumberCanvas::Metrics LEDNumberCanvas::metrics() const {
    Metrics m;
    m.height = digitSize * 0.74;
    m.width = m.height * 0.52;
    m.thickness = std::max(2.0, m.height * 0.12);
    m.spacing = std::max(2.0, m.height * 0.17);
    return m;
}

qreal LEDNumberCanvas::advance(QChar c) const {
    const Metrics m = metrics();
    if (c.isDigit())
        return m.width + m.spacing;
    if (c == QLatin1Char('.') || c == QLatin1Char(','))
        return m.thickness + m.spacing;
    if (c.isSpace() || c == QChar(0x00A0) || c == QChar(0x202F))
        return m.width * 0.4;
    return QFontMetricsF(digitFont()).horizontalAdvance(c) + m.spacing;
}

qreal LEDNumberCanvas::runWidth(const QString& text) const {
    qreal width = 0;
    for (QChar c : text)
        width += advance(c);
    // The last glyph needs no spacing after it.
    return text.isEmpty() ? 0 : width - metrics().spacing;
}

void LEDNumberCanvas::drawSegments(QPainter* painter, std::uint8_t lit, qreal left) const {
    const Metrics m = metrics();
    const qreal t = m.thickness;
    const qreal gap = t * 0.14;
    const qreal top = -m.height;
    const qreal mid = -m.height / 2;
    const qreal xl = left + t / 2;
    const qreal xr = left + m.width - t / 2;
    const auto horizontal = [&](qreal y) {
        const qreal a = xl + gap, b = xr - gap;
        return QPolygonF({{a, y},
                          {a + t / 2, y - t / 2},
                          {b - t / 2, y - t / 2},
                          {b, y},
                          {b - t / 2, y + t / 2},
                          {a + t / 2, y + t / 2}});
    };
    const auto vertical = [&](qreal x, qreal from, qreal to) {
        const qreal a = from + gap, b = to - gap;
        return QPolygonF({{x, a},
                          {x + t / 2, a + t / 2},
                          {x + t / 2, b - t / 2},
                          {x, b},
                          {x - t / 2, b - t / 2},
                          {x - t / 2, a + t / 2}});
    };
    const std::array<QPolygonF, 7> shapes{
        horizontal(top + t / 2), vertical(xr, top + t / 2, mid), vertical(xr, mid, -t / 2),
        horizontal(-t / 2),      vertical(xl, mid, -t / 2),      vertical(xl, top + t / 2, mid),
        horizontal(mid)};
    for (int segment = 0; segment < 7; ++segment) {
        const bool on = (lit >> segment) & 1;
        if (!on && ghost.alpha() == 0)
            continue;
        painter->setBrush(on ? digitColor : ghost);
        painter->drawPolygon(shapes[segment]);
    }
}

qreal LEDNumberCanvas::drawRun(QPainter* painter, const QString& text, qreal x) const {
    const Metrics m = metrics();
    for (QChar c : text) {
        if (c.isDigit() && c.digitValue() >= 0 && c.digitValue() <= 9) {
            drawSegments(painter, segmentsOf[c.digitValue()], x);
        } else if (c == QLatin1Char('.') || c == QLatin1Char(',')) {
            // A group separator: a dot, with a tail when it is a comma, so 1,234 and 1.234 stay apart.
            painter->setBrush(digitColor);
            painter->drawRect(QRectF(x, -m.thickness, m.thickness, m.thickness));
            if (c == QLatin1Char(','))
                painter->drawPolygon(QPolygonF({{x + m.thickness * 0.45, 0},
                                                {x + m.thickness, 0},
                                                {x + m.thickness * 0.35, m.thickness * 0.9},
                                                {x, m.thickness * 0.9}}));
        } else if (!c.isSpace() && c != QChar(0x00A0) && c != QChar(0x202F)) {
            painter->setFont(digitFont());
            painter->setPen(digitColor);
            painter->drawText(QPointF(x, 0), QString(c));
            painter->setPen(Qt::NoPen);
        }
        x += advance(c);
    }
    return x - (text.isEmpty() ? 0 : m.spacing);
}

qreal LEDNumberCanvas::Layout::width() const {
    return integerWidth + (dotSize > 0 ? 2 * dotGap + dotSize + fractionWidth : 0) + lean +
           (unitWidth > 0 ? unitGap + unitWidth : 0);
}

LEDNumberCanvas::Layout LEDNumberCanvas::measure() const {
    const Metrics m = metrics();
    Layout layout;
    layout.integerWidth = runWidth(content.integer);
    if (!content.fraction.isEmpty()) {
        layout.dotSize = m.thickness * 1.15;
        layout.dotGap = m.spacing * 0.7;
        layout.fractionWidth = runWidth(content.fraction);
    }
    if (!content.unit.isEmpty()) {
        layout.unitGap = std::max(6.0, m.spacing * 1.4);
        layout.unitWidth = QFontMetricsF(unitFont()).horizontalAdvance(content.unit);
    }
    layout.lean = m.height * slant;
    layout.ascent = m.height;
    // Room below the baseline for the tail of a comma.
    layout.descent = m.thickness;
    return layout;
}

void LEDNumberCanvas::relayout() {
    const Layout layout = measure();
    setImplicitWidth(std::ceil(layout.width()));
    setImplicitHeight(std::ceil(layout.ascent + layout.descent + 2));
    emit lookChanged();
    update();
}

void LEDNumberCanvas::paint(QPainter* painter) {
    const Layout layout = measure();
    qreal x = 0;
    if (alignment & Qt::AlignRight)
        x = width() - layout.width();
    else if (alignment & Qt::AlignHCenter)
        x = (width() - layout.width()) / 2;
    const qreal baseline = (height() + layout.ascent - layout.descent) / 2;

    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->save();
    painter->translate(0, baseline);
    // Shear about the baseline: the tops of the digits move forward.
    painter->shear(-slant, 0);
    x = drawRun(painter, content.integer, x);
    if (layout.dotSize > 0) {
        x += layout.dotGap;
        // The decimal separator is a lamp of its own on the baseline, never a character.
        painter->setBrush(digitColor);
        painter->drawRect(QRectF(x, -layout.dotSize, layout.dotSize, layout.dotSize));
        x += layout.dotSize + layout.dotGap;
        x = drawRun(painter, content.fraction, x);
    }
    painter->restore();
    x += layout.lean;
    if (layout.unitWidth > 0) {
        x += layout.unitGap;
        painter->setFont(unitFont());
        painter->setPen(unitTextColor);
        painter->drawText(QPointF(x, baseline), content.unit);
    }
}
