#pragma once

#include "Painel/ByteParts.hpp"

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

#include <cmath>
#include <cstdint>

// The panel's big digits, drawn as seven-segment lamps: the integer, the decimal separator as a dot
// of its own, the fraction, then the unit in a smaller face on the same baseline. The content is either a
// byte count (split for a locale) or parts given directly. LEDNumber.qml dresses it with the palette and the
// spoken value.
class LEDNumberCanvas : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    // A QML number: byte counts are exact up to 2^53, far beyond any disk.
    Q_PROPERTY(double bytes READ bytesNumber WRITE setBytesNumber NOTIFY contentChanged)
    Q_PROPERTY(QString locale READ locale WRITE setLocale NOTIFY contentChanged)
    Q_PROPERTY(ByteParts parts READ parts WRITE setParts NOTIFY contentChanged)
    Q_PROPERTY(QString integer READ integer WRITE setInteger NOTIFY contentChanged)
    Q_PROPERTY(QString fraction READ fraction WRITE setFraction NOTIFY contentChanged)
    Q_PROPERTY(QString unit READ unit WRITE setUnit NOTIFY contentChanged)
    Q_PROPERTY(QString spoken READ spoken WRITE setSpoken NOTIFY contentChanged)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY lookChanged)
    Q_PROPERTY(qreal unitSize READ unitSize WRITE setUnitSize NOTIFY lookChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY lookChanged)
    Q_PROPERTY(QColor unitColor READ unitColor WRITE setUnitColor NOTIFY lookChanged)
    Q_PROPERTY(QColor ghostColor READ ghostColor WRITE setGhostColor NOTIFY lookChanged)
    Q_PROPERTY(QString family READ family WRITE setFamily NOTIFY lookChanged)
    Q_PROPERTY(QString unitFamily READ unitFamily WRITE setUnitFamily NOTIFY lookChanged)
    Q_PROPERTY(
        int horizontalAlignment READ horizontalAlignment WRITE setHorizontalAlignment NOTIFY lookChanged)

public:
    explicit LEDNumberCanvas(QQuickItem* parent = nullptr);

    qint64 bytes() const { return byteCount; }
    void setBytes(qint64 value);
    double bytesNumber() const { return double(byteCount); }
    void setBytesNumber(double value) { setBytes(qint64(std::llround(value))); }
    QString locale() const { return localeName; }
    void setLocale(const QString& value);
    ByteParts parts() const { return content; }
    void setParts(const ByteParts& value);
    QString integer() const { return content.integer; }
    void setInteger(const QString& value);
    QString fraction() const { return content.fraction; }
    void setFraction(const QString& value);
    QString unit() const { return content.unit; }
    void setUnit(const QString& value);
    QString spoken() const;
    void setSpoken(const QString& value);

    qreal size() const { return digitSize; }
    void setSize(qreal value);
    // 0 picks a size in proportion to the digits.
    qreal unitSize() const { return unitPixels; }
    void setUnitSize(qreal value);
    QColor color() const { return digitColor; }
    void setColor(const QColor& value);
    QColor unitColor() const { return unitTextColor; }
    void setUnitColor(const QColor& value);
    // The unlit segments behind the digits, as on a real display; transparent draws none.
    QColor ghostColor() const { return ghost; }
    void setGhostColor(const QColor& value);
    QString family() const { return digitFamily; }
    void setFamily(const QString& value);
    QString unitFamily() const { return unitTextFamily; }
    void setUnitFamily(const QString& value);
    int horizontalAlignment() const { return alignment; }
    void setHorizontalAlignment(int value);

    void paint(QPainter* painter) override;

signals:
    void contentChanged();
    void lookChanged();

private:
    // The shape of one seven-segment digit at the current size.
    struct Metrics {
        qreal height = 0, width = 0, thickness = 0, spacing = 0;
    };
    // Where each piece goes, from the size and the content.
    struct Layout {
        qreal integerWidth = 0, dotGap = 0, dotSize = 0, fractionWidth = 0, lean = 0, unitGap = 0,
              unitWidth = 0;
        qreal ascent = 0, descent = 0;
        qreal width() const;
    };
    Metrics metrics() const;
    Layout measure() const;
    qreal advance(QChar c) const;
    qreal runWidth(const QString& text) const;
    // Draws a run of digits and separators with its baseline at y = 0; returns where it ended.
    qreal drawRun(QPainter* painter, const QString& text, qreal x) const;
    void drawSegments(QPainter* painter, std::uint8_t lit, qreal left) const;
    QFont digitFont() const;
    QFont unitFont() const;
    qreal effectiveUnitSize() const;
    void partsChanged();
    bool leaveBytes();
    void relayout();

    qint64 byteCount = 0;
    bool fromBytes = false;
    QString localeName;
    ByteParts content;
    qreal digitSize = 40;
    qreal unitPixels = 0;
    QColor digitColor = Qt::white;
    QColor unitTextColor = Qt::gray;
    QColor ghost = Qt::transparent;
    QString digitFamily;
    QString unitTextFamily;
    int alignment = Qt::AlignLeft;
};
