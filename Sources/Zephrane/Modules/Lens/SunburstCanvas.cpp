#include "Modules/Lens/SunburstCanvas.hpp"

#include "Modules/Lens/LensMarks.hpp"
#include "Modules/Lens/SpaceLensModel.hpp"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleHints>

#include <numbers>
#include <utility>

using CleanerCore::SunburstGeometry;
using CleanerCore::SunburstHit;
using CleanerCore::SunburstPaint;
using CleanerCore::SunburstSegment;

namespace {

constexpr double turn = 2 * std::numbers::pi;
constexpr int revealMilliseconds = 600;

double degrees(double radians) {
    return radians * 180 / std::numbers::pi;
}

} // namespace

SunburstCanvas::SunburstCanvas(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    reveal.setStartValue(0.0);
    reveal.setEndValue(1.0);
    reveal.setDuration(revealMilliseconds);
    reveal.setEasingCurve(QEasingCurve::OutCubic);
    connect(&reveal, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setProgress(value.toDouble()); });
    tapTimer.setSingleShot(true);
    tapTimer.setInterval(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    connect(&tapTimer, &QTimer::timeout, this, &SunburstCanvas::singleTap);
    connect(this, &SunburstCanvas::styleChanged, this, [this] { update(); });
}

void SunburstCanvas::setModel(SpaceLensModel* model) {
    if (model == lens)
        return;
    if (lens) {
        disconnect(lens, nullptr, this, nullptr);
        disconnect(lens->navigation(), nullptr, this, nullptr);
    }
    lens = model;
    shownFocus = lens ? lens->navigation()->focusNode().get() : nullptr; // no reveal on first appearance
    if (lens) {
        connect(lens, &SpaceLensModel::treeChanged, this, &SunburstCanvas::focusMaybeChanged);
        connect(lens->navigation(), &LensNavigation::highlightChanged, this, [this] { update(); });
        connect(lens, &ModulePhaseModel::selectionChanged, this, [this] { update(); });
    }
    emit modelChanged();
    update();
}

void SunburstCanvas::setProgress(double value) {
    value = std::clamp(value, 0.0, 1.0);
    if (value == revealed)
        return;
    revealed = value;
    emit progressChanged();
    update();
}

void SunburstCanvas::focusMaybeChanged() {
    const void* focus = lens ? lens->navigation()->focusNode().get() : nullptr;
    const bool changed = focus != shownFocus;
    shownFocus = focus;
    if (changed && !lessMotion && focus) {
        reveal.stop();
        setProgress(0);
        reveal.start();
    }
    update();
}

void SunburstCanvas::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        emit geometryChanged();
}

void SunburstCanvas::paint(QPainter* painter) {
    if (!lens)
        return;
    const auto highlighted = lens->navigation()->highlighted();
    const std::string highlightedPath =
        highlighted ? CleanerCore::standardizedPath(highlighted->path()) : std::string();
    const std::vector<std::string> marked = LensMarks::paths(lens->selection()->urls());
    draw(*painter, geometry(), lens->navigation()->segments(),
         highlighted ? std::optional<std::string_view>(highlightedPath) : std::nullopt, marked, revealed,
         Colours{accentColour, faintColour, textColour}, contrast);
}

int SunburstCanvas::draw(QPainter& painter, const SunburstGeometry& geometry,
                         std::span<const SunburstSegment> segments,
                         std::optional<std::string_view> highlighted, std::span<const std::string> marked,
                         double progress, const Colours& colours, bool increasedContrast) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(geometry.width / 2, geometry.height / 2);
    const double sweep = progress * turn;
    QPen pen;
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    pen.setMiterLimit(10);
    int drawn = 0;
    for (const SunburstSegment& segment : segments) {
        const auto arc = geometry.arc(segment, sweep);
        if (!arc)
            continue;
        const SunburstPaint paint = SunburstPaint::of(segment, highlighted, marked, increasedContrast);
        QColor colour = paint.tone == SunburstPaint::Tone::accent  ? colours.accent
                        : paint.tone == SunburstPaint::Tone::faint ? colours.faint
                                                                   : colours.text;
        colour.setAlphaF(static_cast<float>(colour.alphaF() * paint.opacity));
        pen.setColor(colour);
        pen.setWidthF(arc->lineWidth);
        painter.setPen(pen);
        const QRectF circle(centre.x() - arc->radius, centre.y() - arc->radius, 2 * arc->radius,
                            2 * arc->radius);
        // The map counts clockwise from the top; the painter counter-clockwise from three o'clock.
        const double from = 90 - degrees(arc->startAngle);
        const double span = -degrees(arc->endAngle - arc->startAngle);
        QPainterPath path;
        path.arcMoveTo(circle, from);
        path.arcTo(circle, from, span);
        painter.drawPath(path);
        ++drawn;
    }
    return drawn;
}

SunburstHit SunburstCanvas::hitAt(QPointF point) const {
    if (!lens)
        return {};
    return geometry().hit(point.x(), point.y(), lens->navigation()->segments());
}

void SunburstCanvas::hoverMoveEvent(QHoverEvent* event) {
    if (!lens)
        return;
    const SunburstHit hit = hitAt(event->position());
    std::optional<CleanerCore::URL> url;
    if (hit.kind == SunburstHit::Kind::segment)
        url = hit.segment->node->url();
    if (url != lens->navigation()->hovered())
        lens->navigation()->setHovered(std::move(url));
}

void SunburstCanvas::hoverLeaveEvent(QHoverEvent*) {
    if (lens && lens->navigation()->hovered())
        lens->navigation()->setHovered(std::nullopt);
}

void SunburstCanvas::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void SunburstCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (std::exchange(endsDoubleTap, false))
        return;
    // A single tap waits until a double tap can no longer be on its way.
    tapPoint = event->position();
    tapTimer.start();
}

void SunburstCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    tapTimer.stop();
    endsDoubleTap = true;
    if (!lens)
        return;
    const SunburstHit hit = hitAt(event->position());
    if (hit.kind == SunburstHit::Kind::segment)
        lens->navigation()->open(hit.segment->node->url());
}

void SunburstCanvas::singleTap() {
    if (!lens)
        return;
    const SunburstHit hit = hitAt(tapPoint);
    if (hit.kind == SunburstHit::Kind::centre)
        lens->navigation()->goUp();
    else if (hit.kind == SunburstHit::Kind::segment)
        lens->navigation()->setCursor(hit.segment->node->url());
}
