#include "Modules/Shared/CleanupOutcome.hpp"

#include "Modules/Shared/CleanupFailure.hpp"
#include "Modules/Shared/CleanupSummary.hpp"
#include "Modules/Shared/PhaseFormat.hpp"

CleanupOutcome CleanupOutcome::from(const CleanerCore::RemovalReport& report, std::vector<CleanupLine> lines,
                                    std::chrono::milliseconds duration) {
    return {std::move(lines), report.bytes, duration, CleanDestinations::from(report.mode), report.failures};
}

QVariantList CleanupOutcome::lineValues() const {
    return cleanupLineValues(lines);
}

QString CleanupOutcome::durationText() const {
    return PhaseFormat::duration(duration);
}

QVariantList CleanupOutcome::failureValues() const {
    QVariantList values;
    for (const CleanerCore::RemovalFailure& failure : failures)
        values.append(QVariant::fromValue(CleanupFailure::from(failure)));
    return values;
}

QString CleanupOutcome::failureCountText() const {
    return PhaseFormat::count(failureCount());
}
