#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace CleanerCore {

// One removable thing, as a scan proposes it.
struct CleanupItem {
    URL url;                         // what would be removed; also the item's identity
    std::int64_t size = 0;           // allocated bytes at scan time
    std::optional<std::string> note; // a warning shown beside the item
    bool selectedByDefault = true;   // whether a fresh scan preselects it

    const URL& id() const { return url; }
    std::string name() const { return url.lastPathComponent(); }

    bool operator==(const CleanupItem&) const = default;
};

// The sum of the items' sizes.
std::int64_t totalSize(std::span<const CleanupItem> items);

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::CleanupItem> {
    std::size_t operator()(const CleanerCore::CleanupItem& item) const noexcept;
};
