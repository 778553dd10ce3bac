#pragma once

#include "CleanerCore/Removal/RemovalFailure.hpp"
#include "CleanerCore/Removal/RemovalReport.hpp"
#include "Modules/Shared/CleanDestination.hpp"
#include "Modules/Shared/CleanupLine.hpp"

#include <chrono>
#include <cstdint>
#include <vector>

// What a finished removal did, as the success panel tells it.
struct CleanupOutcome {
    std::vector<CleanupLine> lines; // removed, per category, at scan-time sizes
    std::int64_t bytes = 0;         // freed, as the cleaner counted it
    std::chrono::milliseconds duration{0};
    CleanDestination destination = CleanDestination::trash;
    std::vector<CleanerCore::RemovalFailure> failures;

    // Bytes, destination and failures come from the report; lines and duration from the caller.
    static CleanupOutcome from(const CleanerCore::RemovalReport& report, std::vector<CleanupLine> lines,
                               std::chrono::milliseconds duration);
    bool operator==(const CleanupOutcome&) const = default;
};
