#include "CleanerCore/DiskTree/SunburstGeometry.hpp"
#include "CleanerCore/DiskTree/SunburstLayout.hpp"
#include "DiskTreeChecks.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace CleanerCore;

namespace {

constexpr double pi = std::numbers::pi;

const auto file = DiskTreeChecks::leaf;
using DiskTreeChecks::aggregate;
using DiskTreeChecks::folder;

SunburstSegment segment(int depth, double start, double end, const std::string& path = "/r/x") {
    return {file(path, 1), depth, start, end, path};
}

// A point at `radius` from the centre of `geometry`, `angle` radians clockwise from the top.
std::pair<double, double> polar(const SunburstGeometry& geometry, double radius, double angle) {
    return {geometry.width / 2 + radius * std::sin(angle), geometry.height / 2 - radius * std::cos(angle)};
}

SunburstHit hitAt(const SunburstGeometry& geometry, double radius, double angle,
                  const std::vector<SunburstSegment>& segments) {
    const auto [x, y] = polar(geometry, radius, angle);
    return geometry.hit(x, y, segments);
}

} // namespace

TEST(SunburstLayout, WalksThreeRingsParentsFirstWithAnglesAsShares) {
    // 4 levels deep: the fourth never becomes a ring.
    const auto deep = folder("/r/a/b/c", {file("/r/a/b/c/d", 10)});
    const auto tree =
        folder("/r", {folder("/r/a", {folder("/r/a/b", {deep}), file("/r/a/f", 30)}), file("/r/z", 60)});
    const auto segments = SunburstLayout::segments(tree);
    std::vector<std::pair<std::string, int>> rings;
    for (const SunburstSegment& segment : segments)
        rings.emplace_back(segment.path, segment.depth);
    ASSERT_EQ(rings, (std::vector<std::pair<std::string, int>>{
                         {"/r/a", 1}, {"/r/a/b", 2}, {"/r/a/b/c", 3}, {"/r/a/f", 2}, {"/r/z", 1}}));
    EXPECT_DOUBLE_EQ(segments[0].end, 2 * pi * 0.4);
    EXPECT_DOUBLE_EQ(segments[1].start, 0);
    EXPECT_DOUBLE_EQ(segments[1].end, 2 * pi * 0.1);
    EXPECT_DOUBLE_EQ(segments[3].start, 2 * pi * 0.1);
    EXPECT_DOUBLE_EQ(segments[4].start, 2 * pi * 0.4);
    EXPECT_DOUBLE_EQ(segments[4].end, 2 * pi);
}

TEST(SunburstLayout, EmptyOrZeroSizedFocusHasNoSegments) {
    EXPECT_TRUE(SunburstLayout::segments(nullptr).empty());
    EXPECT_TRUE(SunburstLayout::segments(folder("/r", {})).empty());
    EXPECT_TRUE(SunburstLayout::segments(folder("/r", {file("/r/empty", 0), folder("/r/e", {})})).empty());
    EXPECT_TRUE(SunburstLayout::segments(file("/r", 100)).empty());
}

TEST(SunburstLayout, ThinChildrenLeaveGapsOfTheirTrueWidthAndTheCutIsAbsolute) {
    // 1 byte in 10000 is 0.00063 rad: cut, but the next child starts after it.
    const auto tree = folder("/r", {file("/r/big", 5000), file("/r/thin", 1), file("/r/rest", 4999)});
    const auto segments = SunburstLayout::segments(tree);
    ASSERT_EQ(segments.size(), 2u);
    EXPECT_EQ(segments[1].path, "/r/rest");
    EXPECT_DOUBLE_EQ(segments[1].start, 2 * pi * 5001 / 10000);

    // 1/2000 of a folder that spans 1/2 of the turn is 0.0016 rad: gone in ring 2 although a
    // ring-1 child of the same share (0.0031 rad) stays.
    const auto nested = folder("/n", {folder("/n/half", {file("/n/half/big", 1999), file("/n/half/s", 1)}),
                                      file("/n/other", 1998), file("/n/s", 2)});
    const auto ringed = SunburstLayout::segments(nested);
    ASSERT_EQ(ringed.size(), 4u);
    EXPECT_EQ(ringed[3].path, "/n/s");
    for (const auto& arc : ringed)
        EXPECT_NE(arc.path, "/n/half/s");

    const auto all = SunburstLayout::segments(tree, 0);
    EXPECT_EQ(all.size(), 3u);
}

TEST(SunburstLayout, OnlyRealFoldersGetRingsBeyondThem) {
    // A package or an aggregate is a leaf of the map even when it holds nodes.
    const auto package =
        std::make_shared<const DiskNode>(URL::file("/r/App.app"), std::nullopt, 50, false, 1, false,
                                         std::vector<DiskNode::Pointer>{file("/r/App.app/x", 50)});
    const auto tree = folder("/r", {package, aggregate("/r", 50)});
    const auto segments = SunburstLayout::segments(tree);
    ASSERT_EQ(segments.size(), 2u);
    EXPECT_TRUE(segments[1].node->isAggregate());
    EXPECT_EQ(segments[1].path, "/r/.zephrane-small-items");
}

TEST(SunburstGeometry, RadiiLeaveSevenPointGapsAndFallBackOnTinyCanvases) {
    const SunburstGeometry geometry{400, 300};
    EXPECT_DOUBLE_EQ(geometry.outer(), 146);
    EXPECT_NEAR(geometry.inner(2) - geometry.outerEdge(1), 7, 1e-9);
    EXPECT_NEAR(geometry.inner(1) - geometry.hole(), 3.5, 1e-9);
    EXPECT_NEAR(geometry.outer() - geometry.outerEdge(3), 3.5, 1e-9);

    for (const SunburstGeometry tiny :
         {SunburstGeometry{10, 10}, SunburstGeometry{0, 0}, SunburstGeometry{10, 500}}) {
        EXPECT_EQ(tiny.outer(), 1);
        const std::vector<SunburstSegment> segments{segment(1, 0, 2 * pi)};
        EXPECT_EQ(tiny.hit(tiny.width / 2, tiny.height / 2, segments).kind, SunburstHit::Kind::centre);
        // Every arc is far below the visible length, so nothing around it can be hit or drawn.
        for (double radius : {0.31, 0.5, 0.99, 2.0})
            EXPECT_EQ(hitAt(tiny, radius, 1, segments).kind, SunburstHit::Kind::nothing);
        EXPECT_FALSE(tiny.arc(segments[0], 2 * pi));
    }
}

TEST(SunburstGeometry, HitsTheCentreNothingAroundItRingsByPitchAndAnglesClockwiseFromTheTop) {
    const SunburstGeometry geometry{400, 400};
    const std::vector<SunburstSegment> segments{segment(1, 0, pi, "/r/a"), segment(2, 0, pi / 2, "/r/a/b"),
                                                segment(1, pi, 2 * pi, "/r/c")};
    EXPECT_EQ(hitAt(geometry, 0, 0, segments).kind, SunburstHit::Kind::centre);
    EXPECT_EQ(hitAt(geometry, geometry.outer() * 0.3 - 0.01, 2, segments).kind, SunburstHit::Kind::centre);
    // Between the centre disc and the hole.
    EXPECT_EQ(hitAt(geometry, geometry.outer() * 0.3 + 0.01, 2, segments).kind, SunburstHit::Kind::nothing);
    EXPECT_EQ(hitAt(geometry, geometry.hole() - 0.01, 2, segments).kind, SunburstHit::Kind::nothing);
    EXPECT_EQ(hitAt(geometry, geometry.outer() + 0.01, 0.5, segments).kind, SunburstHit::Kind::nothing);

    // Angle 0 belongs to the segment that starts there; the end of one is the start of the next.
    EXPECT_EQ(hitAt(geometry, geometry.mid(1), 0, segments).segment->path, "/r/a");
    EXPECT_EQ(geometry.hit(200, 200 + geometry.mid(1), segments).segment->path, "/r/c");
    EXPECT_EQ(hitAt(geometry, geometry.mid(1), 2 * pi - 1e-9, segments).segment->path, "/r/c");
    // Right of the centre is a quarter turn.
    EXPECT_EQ(geometry.hit(200 + geometry.mid(2), 200, segments).kind, SunburstHit::Kind::nothing);
    EXPECT_EQ(geometry.hit(200 + geometry.mid(2), 200 - 1, segments).segment->path, "/r/a/b");

    // The gaps between rings and the outer edge still hit, by pitch.
    EXPECT_EQ(hitAt(geometry, geometry.hole() + 0.5, 1, segments).segment->path, "/r/a");
    EXPECT_EQ(hitAt(geometry, geometry.outerEdge(1) + 3, 1, segments).segment->path, "/r/a");
    EXPECT_EQ(hitAt(geometry, geometry.outerEdge(1) + 4, 1, segments).segment->path, "/r/a/b");
    EXPECT_EQ(hitAt(geometry, geometry.outer(), 1, segments).kind, SunburstHit::Kind::nothing);
    const std::vector<SunburstSegment> third{segment(3, 0, 2 * pi)};
    EXPECT_EQ(hitAt(geometry, geometry.outer(), 1, third).kind, SunburstHit::Kind::segment);
}

TEST(SunburstGeometry, ThinGapsAndShortArcsHitNothing) {
    const SunburstGeometry geometry{400, 400};
    const auto tree = folder("/r", {file("/r/big", 5000), file("/r/thin", 1), file("/r/rest", 4999)});
    const auto segments = SunburstLayout::segments(tree);
    EXPECT_EQ(hitAt(geometry, geometry.mid(1), 2 * pi * 5000.5 / 10000, segments).kind,
              SunburstHit::Kind::nothing);
    // An arc shorter than 3.5 points at its ring's middle is neither hit nor drawn.
    const double shortAngle = 3.4 / geometry.mid(1);
    const std::vector<SunburstSegment> tiny{segment(1, 0, shortAngle)};
    EXPECT_EQ(hitAt(geometry, geometry.mid(1), shortAngle / 2, tiny).kind, SunburstHit::Kind::nothing);
    EXPECT_FALSE(geometry.arc(tiny[0], 2 * pi));
}

TEST(SunburstGeometry, ArcsArePaddedAndRevealedClockwise) {
    const SunburstGeometry geometry{400, 400};
    // A child as large as its focus draws the whole turn less the two pads.
    const auto whole = SunburstLayout::segments(folder("/r", {file("/r/all", 42)}));
    ASSERT_EQ(whole.size(), 1u);
    const auto full = geometry.arc(whole[0], 2 * pi);
    ASSERT_TRUE(full);
    const double pad = 1.6 / geometry.mid(1);
    EXPECT_DOUBLE_EQ(full->endAngle - full->startAngle, 2 * pi - 2 * pad);
    EXPECT_DOUBLE_EQ(full->radius, geometry.mid(1));
    EXPECT_DOUBLE_EQ(full->lineWidth, geometry.pitch() - 7);

    const SunburstSegment late = segment(2, 1, 2);
    EXPECT_FALSE(geometry.arc(late, 1));
    EXPECT_FALSE(geometry.arc(late, 1 + pad));
    const auto partial = geometry.arc(late, 1.5);
    ASSERT_TRUE(partial);
    EXPECT_DOUBLE_EQ(partial->endAngle, 1.5 - 1.6 / geometry.mid(2));
}

TEST(SunburstPaint, LightsHighlightedAndMarkedSubtreesFadingByDepth) {
    const std::vector<std::string> none;
    const auto paint = [&](int depth, const std::string& path, std::optional<std::string_view> highlighted,
                           const std::vector<std::string>& marked = {}, bool contrast = false) {
        return SunburstPaint::of(segment(depth, 0, 1, path), highlighted, marked, contrast);
    };
    using Tone = SunburstPaint::Tone;
    EXPECT_EQ(paint(1, "/r/a", "/r/a"), (SunburstPaint{Tone::accent, 1}));
    EXPECT_EQ(paint(2, "/r/a/b", "/r/a").tone, Tone::accent);
    EXPECT_DOUBLE_EQ(paint(2, "/r/a/b", "/r/a").opacity, 0.78);
    EXPECT_DOUBLE_EQ(paint(3, "/r/a/b/c", "/r/a").opacity, 1 - 0.44);
    // A sibling whose name only starts like the highlighted one stays plain.
    EXPECT_EQ(paint(1, "/r/ab", "/r/a").tone, Tone::text);
    EXPECT_EQ(paint(1, "/r/a", "/r/a/b").tone, Tone::text);

    EXPECT_EQ(paint(3, "/r/m/x/y", std::nullopt, {"/r/q", "/r/m"}).tone, Tone::accent);
    EXPECT_DOUBLE_EQ(paint(3, "/r/m/x/y", std::nullopt, {"/r/q", "/r/m"}).opacity, 1 - 0.44);

    EXPECT_DOUBLE_EQ(paint(1, "/r/a", std::nullopt).opacity, 0.75);
    EXPECT_DOUBLE_EQ(paint(3, "/r/a/b/c", std::nullopt).opacity, 0.35);
    EXPECT_DOUBLE_EQ(paint(3, "/r/a/b/c", std::nullopt, none, true).opacity, 0.5);

    SunburstSegment small{aggregate("/r", 5), 2, 0, 1, "/r/.zephrane-small-items"};
    EXPECT_EQ(SunburstPaint::of(small, std::nullopt, none, false), (SunburstPaint{Tone::faint, 0.5}));
    EXPECT_EQ(SunburstPaint::of(small, std::nullopt, none, true), (SunburstPaint{Tone::faint, 0.7}));
    EXPECT_EQ(SunburstPaint::of(small, "/r", none, false).tone, Tone::accent);
}

TEST(URLInside, ComparesStandardizedPathsAtSeparators) {
    const auto inside = [](const char* path, const char* container) {
        return URL::file(path).isInside(URL::file(container));
    };
    EXPECT_TRUE(inside("/a/b", "/a/b") && inside("/a/b/", "/a/b") && inside("/a/b/c", "/a/b") &&
                inside("/a/./b/c", "/a/b/") && inside("/anything", "/") && inside("/", "/"));
    EXPECT_FALSE(inside("/a/bc", "/a/b") || inside("/a", "/a/b") || inside("/", "/a"));
}
