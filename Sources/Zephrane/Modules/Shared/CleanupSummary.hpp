#pragma once

#include "Modules/Shared/CleanupLine.hpp"

#include <cstdint>
#include <vector>

// What is selected, one line per category; the totals are the sums of the lines.
struct CleanupSummary {
    std::vector<CleanupLine> lines;

    int count() const;
    std::int64_t bytes() const;
    bool operator==(const CleanupSummary&) const = default;
};
