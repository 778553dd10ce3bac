#pragma once

#include "CleanerCore/Removal/RemovalFailure.hpp"
#include "CleanerCore/Removal/RemovalReport.hpp"
#include "Modules/Shared/CleanDestination.hpp"
#include "Modules/Shared/CleanupLine.hpp"

#include <QMetaType>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <cstdint>
#include <vector>

// What a finished removal did, as the success panel tells it.
struct CleanupOutcome {
    Q_GADGET
    QML_VALUE_TYPE(cleanupOutcome)
    Q_PROPERTY(QVariantList lines READ lineValues)
    Q_PROPERTY(double bytes READ bytesValue)
    Q_PROPERTY(QString durationText READ durationText)
    Q_PROPERTY(QString destination READ destinationRaw)
    Q_PROPERTY(QVariantList failures READ failureValues)
    Q_PROPERTY(int failureCount READ failureCount)
    Q_PROPERTY(QString failureCountText READ failureCountText)

public:
    std::vector<CleanupLine> lines; // removed, per category, at scan-time sizes
    std::int64_t bytes = 0;         // freed, as the cleaner counted it
    std::chrono::milliseconds duration{0};
    CleanDestination destination = CleanDestination::trash;
    std::vector<CleanerCore::RemovalFailure> failures;

    // Bytes, destination and failures come from the report; lines and duration from the caller.
    static CleanupOutcome from(const CleanerCore::RemovalReport& report, std::vector<CleanupLine> lines,
                               std::chrono::milliseconds duration);

    QVariantList lineValues() const;
    double bytesValue() const { return static_cast<double>(bytes); }
    QString durationText() const;
    QString destinationRaw() const { return CleanDestinations::rawValue(destination); }
    QVariantList failureValues() const;
    int failureCount() const { return static_cast<int>(failures.size()); }
    QString failureCountText() const;
    bool operator==(const CleanupOutcome&) const = default;
};

Q_DECLARE_METATYPE(CleanupOutcome)
