#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <chrono>
#include <cstdint>
#include <optional>

namespace CleanerCore {

// One item of a trash folder.
struct TrashEntry {
    URL url;               // the item in the trash's files/ folder; also its identity
    std::int64_t size = 0; // allocated bytes; 0 for a link
    std::optional<std::chrono::system_clock::time_point> dateAdded; // from its info file

    const URL& id() const { return url; }
    bool operator==(const TrashEntry&) const = default;
};

} // namespace CleanerCore
