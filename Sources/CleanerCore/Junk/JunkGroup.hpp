#pragma once

#include "CleanerCore/Junk/JunkRule.hpp"
#include "CleanerCore/Removal/CleanupItem.hpp"

#include <cstdint>
#include <unordered_set>
#include <vector>

namespace CleanerCore {

// What one rule found.
struct JunkGroup {
    JunkRule rule;
    std::vector<CleanupItem> items;

    const std::string& id() const { return rule.id; }
    std::int64_t totalSize() const;
    // The same group without the items whose URL is in `urls`; it stays even when emptied.
    JunkGroup removing(const std::unordered_set<URL>& urls) const;

    bool operator==(const JunkGroup&) const = default;
};

} // namespace CleanerCore
