#include "CleanerCore/System/ProcessMemory.hpp"

#include "CleanerCore/Platform/ProcessFootprint.hpp"

namespace CleanerCore::ProcessMemory {

std::vector<AppMemoryUsage> footprints(const std::vector<std::int32_t>& pids, const std::string& procRoot,
                                       const std::string& sysRoot) {
    std::vector<AppMemoryUsage> usages;
    usages.reserve(pids.size());
    for (const std::int32_t pid : pids)
        if (const auto bytes = Platform::processFootprint(pid, procRoot, sysRoot))
            usages.push_back({pid, *bytes});
    return usages;
}

} // namespace CleanerCore::ProcessMemory
