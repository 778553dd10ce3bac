#pragma once

#include "Modules/Shared/CleanupLine.hpp"

#include <QMetaType>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <vector>

// What is selected, one line per category; the totals are the sums of the lines.
struct CleanupSummary {
    Q_GADGET
    QML_VALUE_TYPE(cleanupSummary)
    Q_PROPERTY(QVariantList lines READ lineValues)
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(double bytes READ bytesValue)
    Q_PROPERTY(QString countText READ countText)
    Q_PROPERTY(QString sizeText READ sizeText)

public:
    std::vector<CleanupLine> lines;

    int count() const;
    std::int64_t bytes() const;
    double bytesValue() const { return static_cast<double>(bytes()); }
    QVariantList lineValues() const;
    QString countText() const;
    QString sizeText() const;
    bool operator==(const CleanupSummary&) const = default;
};

Q_DECLARE_METATYPE(CleanupSummary)

// The lines as QML values, shared by the summary and the outcome.
QVariantList cleanupLineValues(const std::vector<CleanupLine>& lines);
