#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Removal/CleanupItem.hpp"

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace CleanerCore {

// What remains of one identifier that no installed app claims.
struct OrphanGroup {
    std::string bundleID; // the group's key: the first three parts of the names found
    std::vector<CleanupItem> items;

    const std::string& id() const { return bundleID; }
    std::int64_t totalSize() const;
    // The same group without the items whose URL is in `urls`, order kept.
    OrphanGroup removing(const std::unordered_set<URL>& urls) const;

    bool operator==(const OrphanGroup&) const = default;
};

} // namespace CleanerCore
