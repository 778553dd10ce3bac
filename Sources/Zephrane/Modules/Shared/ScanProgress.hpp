#pragma once

#include "Modules/Shared/ScanStep.hpp"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

// What the scanning panel shows of a running scan.
struct ScanProgress {
    std::vector<ScanStep> steps;
    int itemCount = 0;                  // items found so far
    std::optional<QString> currentPath; // a short form of what is being read
    QDateTime startedAt;

    int doneCount() const;
    bool operator==(const ScanProgress&) const = default;
};
