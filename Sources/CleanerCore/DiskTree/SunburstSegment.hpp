#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"

#include <string>

namespace CleanerCore {

// One arc of the disk map. Angles are radians, 0 at the top, growing clockwise; a full turn is 2π.
struct SunburstSegment {
    DiskNode::Pointer node;
    int depth = 1; // the ring, 1 to 3
    double start = 0;
    double end = 0;
    // The node's standardized path, kept so that painting never has to build it again.
    std::string path;

    bool operator==(const SunburstSegment&) const = default;
};

} // namespace CleanerCore
