#pragma once

#include "CleanerCore/Removal/CleanupItem.hpp"

#include <QString>

#include <vector>

// A channel's results as the shared rules see them: removable items grouped under a title. The
// summary and the outcome have one line per category.
struct CleanupCategory {
    QString id;
    QString title;
    std::vector<CleanerCore::CleanupItem> items;

    bool operator==(const CleanupCategory&) const = default;
};
