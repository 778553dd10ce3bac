#pragma once

#include "CleanerCore/DiskTree/SunburstGeometry.hpp"

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QTimer>
#include <QVariantAnimation>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>

class SpaceLensModel;

// The disk map: one stroked arc per visible segment of the model, lit where highlighted or
// marked, revealed clockwise when the focus changes. Pointing at it hovers, a tap moves the cursor
// (or goes up from the centre) and a double tap opens a folder. Its accessible form is the list.
class SunburstCanvas : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(SpaceLensModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(double progress READ progress WRITE setProgress NOTIFY progressChanged)
    Q_PROPERTY(bool reducedMotion MEMBER lessMotion NOTIFY styleChanged)
    Q_PROPERTY(bool increasedContrast MEMBER contrast NOTIFY styleChanged)
    Q_PROPERTY(QColor accentColor MEMBER accentColour NOTIFY styleChanged)
    Q_PROPERTY(QColor faintColor MEMBER faintColour NOTIFY styleChanged)
    Q_PROPERTY(QColor textColor MEMBER textColour NOTIFY styleChanged)
    Q_PROPERTY(double centreDiameter READ centreDiameter NOTIFY geometryChanged)

public:
    struct Colours {
        QColor accent;
        QColor faint;
        QColor text;
    };

    explicit SunburstCanvas(QQuickItem* parent = nullptr);

    SpaceLensModel* model() const { return lens; }
    void setModel(SpaceLensModel* model);
    double progress() const { return revealed; }
    void setProgress(double value);
    double centreDiameter() const { return 2 * geometry().centreRadius(); }
    CleanerCore::SunburstGeometry geometry() const { return {width(), height()}; }

    void paint(QPainter* painter) override;

    // Strokes `segments` into a canvas of `geometry`'s size; returns how many arcs it drew.
    static int draw(QPainter& painter, const CleanerCore::SunburstGeometry& geometry,
                    std::span<const CleanerCore::SunburstSegment> segments,
                    std::optional<std::string_view> highlighted, std::span<const std::string> marked,
                    double progress, const Colours& colours, bool increasedContrast);

signals:
    void modelChanged();
    void progressChanged();
    void styleChanged();
    void geometryChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void focusMaybeChanged();
    void singleTap();
    CleanerCore::SunburstHit hitAt(QPointF point) const;

    QPointer<SpaceLensModel> lens;
    const void* shownFocus = nullptr;
    double revealed = 1;
    bool lessMotion = false;
    bool contrast = false;
    QColor accentColour{0xFF6A1A};
    QColor faintColour{0x8C8C90};
    QColor textColour{0xECECEC};
    QVariantAnimation reveal;
    QTimer tapTimer;
    QPointF tapPoint;
    bool endsDoubleTap = false;
};
