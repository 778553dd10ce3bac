#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

// A row (or column) of LED cells drawn in one pass: as many cells light as the fraction asks, the
// last `accentTail` of them in the accent colour, the others unlit. It fills from the leading edge,
// so a right-to-left layout fills from the right; a vertical meter fills from the bottom.
class LEDMeterCanvas : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double fraction READ fraction WRITE setFraction NOTIFY changed)
    Q_PROPERTY(int cells READ cells WRITE setCells NOTIFY changed)
    Q_PROPERTY(int litCells READ litCells NOTIFY changed)
    Q_PROPERTY(int accentTail READ accentTail WRITE setAccentTail NOTIFY changed)
    Q_PROPERTY(int axis READ axis WRITE setAxis NOTIFY changed)
    Q_PROPERTY(qreal spacing READ spacing WRITE setSpacing NOTIFY changed)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY changed)
    Q_PROPERTY(bool fillsCrossAxis READ fillsCrossAxis WRITE setFillsCrossAxis NOTIFY changed)
    Q_PROPERTY(bool mirrored READ mirrored WRITE setMirrored NOTIFY changed)
    Q_PROPERTY(QColor onColor READ onColor WRITE setOnColor NOTIFY changed)
    Q_PROPERTY(QColor accentColor READ accentColor WRITE setAccentColor NOTIFY changed)
    Q_PROPERTY(QColor offColor READ offColor WRITE setOffColor NOTIFY changed)

public:
    explicit LEDMeterCanvas(QQuickItem* parent = nullptr);

    // How many of `cells` light for a fraction: any share above zero lights at least one cell, and
    // only a full meter lights the last, so neither "almost empty" nor "almost full" hides.
    static int litCells(double fraction, int cells);

    double fraction() const { return share; }
    void setFraction(double value);
    int cells() const { return count; }
    void setCells(int value);
    int litCells() const { return litCells(share, count); }
    int accentTail() const { return tail; }
    void setAccentTail(int value);
    // Qt.Horizontal or Qt.Vertical.
    int axis() const { return orientation; }
    void setAxis(int value);
    qreal spacing() const { return gap; }
    void setSpacing(qreal value);
    qreal cornerRadius() const { return radius; }
    void setCornerRadius(qreal value);
    // Cells span the whole cross axis; otherwise they are square, centred on it.
    bool fillsCrossAxis() const { return crossFill; }
    void setFillsCrossAxis(bool value);
    bool mirrored() const { return mirror; }
    void setMirrored(bool value);
    QColor onColor() const { return lit; }
    void setOnColor(const QColor& value);
    QColor accentColor() const { return accent; }
    void setAccentColor(const QColor& value);
    QColor offColor() const { return unlit; }
    void setOffColor(const QColor& value);

    // The rectangle of cell `index`, counted from the leading edge.
    QRectF cellRect(int index) const;
    void paint(QPainter* painter) override;

signals:
    void changed();

private:
    template <typename T> void assign(T& field, const T& value);

    double share = 0;
    int count = 12;
    int tail = 0;
    int orientation = Qt::Horizontal;
    qreal gap = 2;
    qreal radius = 1.5;
    bool crossFill = true;
    bool mirror = false;
    QColor lit = Qt::white;
    QColor accent = Qt::red;
    QColor unlit = Qt::darkGray;
};
