#pragma once

#include "CleanerCore/DiskTree/SunburstSegment.hpp"

#include <optional>
#include <span>
#include <string_view>

namespace CleanerCore {

// What lies under a point of the map.
struct SunburstHit {
    enum class Kind { centre, nothing, segment };
    Kind kind = Kind::nothing;
    std::optional<SunburstSegment> segment; // set for Kind::segment only

    bool operator==(const SunburstHit&) const = default;
};

// How one segment is stroked: a circle of `radius` from `startAngle` to `endAngle` (clockwise from
// the top, radians) with a pen `lineWidth` wide and butt caps.
struct SunburstArc {
    double radius = 0;
    double lineWidth = 0;
    double startAngle = 0;
    double endAngle = 0;

    bool operator==(const SunburstArc&) const = default;
};

// The radii of a map drawn in a `width` × `height` canvas, shared by drawing and pointing so that
// what is hit is always what is seen.
struct SunburstGeometry {
    static constexpr double ringGap = 7;       // between neighbouring rings, in points
    static constexpr double arcGap = 3.2;      // between neighbouring arcs of a ring, in points
    static constexpr double minimumArc = 3.5;  // shorter arcs are neither drawn nor hit
    static constexpr double holeRatio = 0.353; // the hole's radius over the outer one
    static constexpr double centreRatio = 0.3; // the centre disc's radius over the outer one

    double width = 0;
    double height = 0;

    double outer() const;
    double hole() const;
    double pitch() const { return (outer() - hole()) / 3; }
    double centreRadius() const { return outer() * centreRatio; }
    double inner(int depth) const { return hole() + pitch() * (depth - 1) + ringGap / 2; }
    double outerEdge(int depth) const { return hole() + pitch() * depth - ringGap / 2; }
    double mid(int depth) const { return (inner(depth) + outerEdge(depth)) / 2; }
    // The segment's length along the middle of its ring.
    double arcLength(const SunburstSegment& segment) const;
    bool isShown(const SunburstSegment& segment) const { return arcLength(segment) >= minimumArc; }

    // The stroke of `segment` when the map is revealed up to `sweep` radians; nothing when it is
    // not revealed yet, too short, or eaten by its pads.
    std::optional<SunburstArc> arc(const SunburstSegment& segment, double sweep) const;

    // `x`, `y` in canvas coordinates. The ring gaps and pads still hit their segment.
    SunburstHit hit(double x, double y, std::span<const SunburstSegment> segments) const;

    bool operator==(const SunburstGeometry&) const = default;
};

// The colour role and opacity of a segment.
struct SunburstPaint {
    enum class Tone { accent, faint, text };
    Tone tone = Tone::text;
    double opacity = 1;

    bool operator==(const SunburstPaint&) const = default;

    // `highlighted` and `marked` are standardized paths; a segment inside either is lit, with its
    // sub-rings fading by depth.
    static SunburstPaint of(const SunburstSegment& segment, std::optional<std::string_view> highlighted,
                            std::span<const std::string> marked, bool increasedContrast);
};

} // namespace CleanerCore
