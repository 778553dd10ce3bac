#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

// The band of light that crosses the scanning panel, over faint scan lines. `phase` runs from 0 (the
// band just entering at the leading edge) to 1 (just gone past the trailing edge).
class ScanSweepCanvas : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal phase READ phase WRITE setPhase NOTIFY changed)
    Q_PROPERTY(qreal bandWidth READ bandWidth WRITE setBandWidth NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QColor lineColor READ lineColor WRITE setLineColor NOTIFY changed)
    Q_PROPERTY(bool mirrored READ mirrored WRITE setMirrored NOTIFY changed)

public:
    explicit ScanSweepCanvas(QQuickItem* parent = nullptr);

    qreal phase() const { return position; }
    void setPhase(qreal value);
    // The band's width as a share of the item's width.
    qreal bandWidth() const { return band; }
    void setBandWidth(qreal value);
    QColor color() const { return glow; }
    void setColor(const QColor& value);
    QColor lineColor() const { return lines; }
    void setLineColor(const QColor& value);
    bool mirrored() const { return mirror; }
    void setMirrored(bool value);

    // The band's centre in item coordinates for the current phase.
    qreal bandCentre() const;
    void paint(QPainter* painter) override;

signals:
    void changed();

private:
    qreal position = 0;
    qreal band = 0.3;
    QColor glow = Qt::white;
    QColor lines = Qt::darkGray;
    bool mirror = false;
};
