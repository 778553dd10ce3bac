#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore::Platform {

// Space of the volume that holds a path: what an unprivileged user may still write, and the whole.
struct VolumeCapacity {
    std::int64_t available = 0;
    std::int64_t total = 0;
    bool operator==(const VolumeCapacity&) const = default;
};

std::optional<VolumeCapacity> readVolumeCapacity(const std::string& path);

} // namespace CleanerCore::Platform
