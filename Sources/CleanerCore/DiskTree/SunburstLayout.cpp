#include "CleanerCore/DiskTree/SunburstLayout.hpp"

#include "CleanerCore/Files/URL.hpp"

#include <numbers>

namespace CleanerCore::SunburstLayout {
namespace {

void walk(const DiskNode& node, int depth, double start, double end, double minimumAngle,
          std::vector<SunburstSegment>& out) {
    if (depth > ringCount || node.size() < 1 || node.children().empty())
        return;
    const double span = end - start;
    const double whole = static_cast<double>(node.size());
    double cursor = start;
    for (const DiskNode::Pointer& child : node.children()) {
        const double angle = span * static_cast<double>(child->size()) / whole;
        if (angle >= minimumAngle) {
            out.push_back({child, depth, cursor, cursor + angle, standardizedPath(child->path())});
            if (child->isDirectory())
                walk(*child, depth + 1, cursor, cursor + angle, minimumAngle, out);
        }
        cursor += angle;
    }
}

} // namespace

std::vector<SunburstSegment> segments(const DiskNode::Pointer& focus, double minimumAngle) {
    std::vector<SunburstSegment> out;
    if (focus)
        walk(*focus, 1, 0, 2 * std::numbers::pi, minimumAngle, out);
    return out;
}

} // namespace CleanerCore::SunburstLayout
