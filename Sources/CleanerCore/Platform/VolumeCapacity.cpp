#include "CleanerCore/Platform/VolumeCapacity.hpp"

#include <sys/statvfs.h>

namespace CleanerCore::Platform {

std::optional<VolumeCapacity> readVolumeCapacity(const std::string& path) {
    struct statvfs info {};
    if (::statvfs(path.c_str(), &info) != 0 || info.f_frsize == 0)
        return std::nullopt;
    const auto unit = static_cast<std::int64_t>(info.f_frsize);
    return VolumeCapacity{static_cast<std::int64_t>(info.f_bavail) * unit,
                          static_cast<std::int64_t>(info.f_blocks) * unit};
}

} // namespace CleanerCore::Platform
