#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace CleanerCore {

// What one process is charged for, in bytes.
struct AppMemoryUsage {
    std::int32_t pid = 0;
    std::uint64_t bytes = 0;

    bool operator==(const AppMemoryUsage&) const = default;
};

// Reads what the system itself counts as a process's memory: not its resident size, which
// includes shared file pages, but what it costs (see Platform::processFootprint).
namespace ProcessMemory {

// One entry per readable pid, in the given order; a process that has gone or can't be read is
// left out in silence.
std::vector<AppMemoryUsage> footprints(const std::vector<std::int32_t>& pids, const std::string& procRoot = "/proc",
                                       const std::string& sysRoot = "/sys");

} // namespace ProcessMemory

} // namespace CleanerCore
