#pragma once

#include "CleanerCore/Apps/RunningAppInfo.hpp"

#include <cstdint>
#include <functional>

namespace CleanerCore {

// A running application among the largest users of memory, with the bytes it is charged for.
// Identified by its process.
struct MemoryHog {
    RunningAppInfo app;
    std::uint64_t bytes = 0;

    std::int32_t id() const { return app.pid; }
    bool operator==(const MemoryHog&) const = default;
};

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::MemoryHog> {
    std::size_t operator()(const CleanerCore::MemoryHog& hog) const noexcept {
        return std::hash<std::int32_t>{}(hog.app.pid) ^ (std::hash<std::uint64_t>{}(hog.bytes) << 1);
    }
};
