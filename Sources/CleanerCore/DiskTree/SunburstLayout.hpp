#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"
#include "CleanerCore/DiskTree/SunburstSegment.hpp"

#include <vector>

namespace CleanerCore::SunburstLayout {

inline constexpr int ringCount = 3;
inline constexpr double defaultMinimumAngle = 0.002;

// The arcs of the three rings around `focus`, parents before their children. A child thinner than
// `minimumAngle` (absolute, so deep rings lose slivers first) is skipped but still takes its true
// width, leaving a gap; only real folders get rings beyond them.
std::vector<SunburstSegment> segments(const DiskNode::Pointer& focus,
                                      double minimumAngle = defaultMinimumAngle);

} // namespace CleanerCore::SunburstLayout
