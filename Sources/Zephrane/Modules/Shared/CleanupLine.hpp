#pragma once

#include <QString>

#include <cstdint>

// One category of a summary or an outcome: how many items, how many bytes.
struct CleanupLine {
    QString id;
    QString title;
    int count = 0;
    std::int64_t bytes = 0;

    bool operator==(const CleanupLine&) const = default;
};
