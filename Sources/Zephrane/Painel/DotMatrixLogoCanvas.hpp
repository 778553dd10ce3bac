#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

// The name of the product on a grid of dots, as a dot-matrix display shows it: every place of the
// grid has a dot, lit when it belongs to a letter. It powers on one letter at a time: `litCount`
// counts the letters that are lit, and its fraction is how far the next one has faded in.
class DotMatrixLogoCanvas : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal litCount READ litCount WRITE setLitCount NOTIFY changed)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    Q_PROPERTY(int columns READ columns CONSTANT)
    Q_PROPERTY(int rows READ rows CONSTANT)
    Q_PROPERTY(QColor onColor READ onColor WRITE setOnColor NOTIFY changed)
    Q_PROPERTY(QColor offColor READ offColor WRITE setOffColor NOTIFY changed)

public:
    explicit DotMatrixLogoCanvas(QQuickItem* parent = nullptr);

    // Whether the dot at (column, row) belongs to the figure, and to which step (letter) it belongs.
    static bool isFigure(int column, int row);
    static int stepOf(int column);
    // How brightly a dot of `step` shows at `litCount` (0 unlit, 1 fully lit), eased out per step.
    static double brightness(int step, double litCount);

    qreal litCount() const { return lit; }
    void setLitCount(qreal value);
    int stepCount() const;
    int columns() const;
    int rows() const;
    QColor onColor() const { return on; }
    void setOnColor(const QColor& value);
    QColor offColor() const { return off; }
    void setOffColor(const QColor& value);

    void paint(QPainter* painter) override;

signals:
    void changed();

private:
    qreal lit = 0;
    QColor on = Qt::white;
    QColor off = Qt::darkGray;
};
