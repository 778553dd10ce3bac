#include "CleanerCore/DiskTree/SunburstGeometry.hpp"

#include "CleanerCore/Files/URL.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace CleanerCore {
namespace {

constexpr double turn = 2 * std::numbers::pi;
constexpr double margin = 4;

double usableRadius(double width, double height) {
    return std::min(width, height) * 0.5 - margin;
}

} // namespace

double SunburstGeometry::outer() const {
    const double radius = usableRadius(width, height);
    return radius <= 1 ? 1 : radius;
}

double SunburstGeometry::hole() const {
    return outer() * holeRatio;
}

double SunburstGeometry::arcLength(const SunburstSegment& segment) const {
    return (segment.end - segment.start) * (inner(segment.depth) + outerEdge(segment.depth)) * 0.5;
}

std::optional<SunburstArc> SunburstGeometry::arc(const SunburstSegment& segment, double sweep) const {
    if (segment.start >= sweep || !isShown(segment))
        return std::nullopt;
    const double radius = mid(segment.depth);
    const double pad = arcGap / 2 / radius;
    const double a0 = segment.start + pad;
    const double a1 = std::min(sweep, segment.end) - pad;
    if (!(a0 < a1))
        return std::nullopt;
    return SunburstArc{radius, outerEdge(segment.depth) - inner(segment.depth), a0, a1};
}

SunburstHit SunburstGeometry::hit(double x, double y, std::span<const SunburstSegment> segments) const {
    const double dx = x - width / 2;
    const double dy = y - height / 2;
    const double r = std::hypot(dx, dy);
    const double out = outer();
    const double in = hole();
    if (r < out * centreRatio)
        return {SunburstHit::Kind::centre, std::nullopt};
    if (r < in || r > out)
        return {};
    const int ring = std::min(static_cast<int>(std::floor((r - in) / pitch())) + 1, 3);
    double angle = std::atan2(dx, -dy);
    if (angle < 0)
        angle += turn;
    for (const SunburstSegment& segment : segments) {
        if (segment.depth == ring && segment.start <= angle && angle < segment.end && isShown(segment))
            return {SunburstHit::Kind::segment, segment};
    }
    return {};
}

SunburstPaint SunburstPaint::of(const SunburstSegment& segment, std::optional<std::string_view> highlighted,
                                std::span<const std::string> marked, bool increasedContrast) {
    const double k = segment.depth - 1;
    const bool lit = std::any_of(marked.begin(), marked.end(),
                                 [&](const std::string& mark) { return pathIsInside(segment.path, mark); }) ||
                     (highlighted && pathIsInside(segment.path, *highlighted));
    if (lit)
        return {Tone::accent, 1 - 0.22 * k};
    if (segment.node && segment.node->isAggregate())
        return {Tone::faint, increasedContrast ? 0.7 : 0.5};
    return {Tone::text, (increasedContrast ? 0.9 : 0.75) - 0.2 * k};
}

} // namespace CleanerCore
