#include "Modules/Shared/CleanupOutcome.hpp"

CleanupOutcome CleanupOutcome::from(const CleanerCore::RemovalReport& report, std::vector<CleanupLine> lines,
                                    std::chrono::milliseconds duration) {
    return {std::move(lines), report.bytes, duration, CleanDestinations::from(report.mode), report.failures};
}
