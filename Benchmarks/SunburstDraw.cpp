// The disk map on the root of a large tree: laying out the three rings, and one full draw of them.
// Usage: SunburstDraw [--tree=/tmp/bench-tree] [benchmark flags]. The tree is scanned once, first.
#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "CleanerCore/DiskTree/SunburstLayout.hpp"
#include "Modules/Lens/SpaceLensModel.hpp"
#include "Modules/Lens/SunburstCanvas.hpp"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

std::string treeRoot = "/tmp/bench-tree";

const CleanerCore::DiskNode::Pointer& tree() {
    static const CleanerCore::DiskNode::Pointer root = [] {
        const CleanerCore::DiskTreeScanner scanner{treeRoot, 1000000, 12};
        auto node = scanner.scan(CleanerCore::DiskTreeScanner::Progress{});
        std::fprintf(stderr, "tree: %lld items, %lld bytes\n", static_cast<long long>(node->itemCount()),
                     static_cast<long long>(node->size()));
        return node;
    }();
    return root;
}

void segmentsAroundRoot(benchmark::State& state) {
    const auto& root = tree();
    std::size_t count = 0;
    for (auto _ : state) {
        auto segments = CleanerCore::SunburstLayout::segments(root);
        count = segments.size();
        benchmark::DoNotOptimize(segments.data());
    }
    state.counters["segments"] = static_cast<double>(count);
}
BENCHMARK(segmentsAroundRoot)->Unit(benchmark::kMicrosecond);

void drawRoot(benchmark::State& state) {
    const auto segments = CleanerCore::SunburstLayout::segments(tree());
    const int side = static_cast<int>(state.range(0));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    const CleanerCore::SunburstGeometry geometry{double(side), double(side)};
    const SunburstCanvas::Colours colours{QColor(0xFF6A1A), QColor(0x8C8C90), QColor(0xECECEC)};
    const std::vector<std::string> marked{segments.empty() ? std::string() : segments.back().path};
    const std::string highlighted = segments.empty() ? std::string() : segments.front().path;
    int drawn = 0;
    for (auto _ : state) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawn = SunburstCanvas::draw(painter, geometry, segments, highlighted, marked, 1.0, colours, false);
    }
    state.counters["arcs"] = drawn;
    state.counters["segments"] = static_cast<double>(segments.size());
}
BENCHMARK(drawRoot)->Arg(520)->Arg(1040)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--tree=", 7) == 0)
            treeRoot = argv[i] + 7;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    tree();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
