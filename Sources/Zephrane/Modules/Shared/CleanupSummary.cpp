#include "Modules/Shared/CleanupSummary.hpp"

int CleanupSummary::count() const {
    int total = 0;
    for (const CleanupLine& line : lines)
        total += line.count;
    return total;
}

std::int64_t CleanupSummary::bytes() const {
    std::int64_t total = 0;
    for (const CleanupLine& line : lines)
        total += line.bytes;
    return total;
}
