#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore::Platform {

// One line of the kernel's mount table.
struct MountPoint {
    std::string path;       // where it is mounted, unescaped
    std::uint64_t device{}; // makedev(major, minor)
    std::string type;       // file system type, e.g. "ext4"

    bool operator==(const MountPoint&) const = default;
};

namespace MountTable {

// The lines of a /proc/PID/mountinfo text; malformed lines are skipped.
std::vector<MountPoint> parse(std::string_view mountinfo);

// The mounts of this process, read now (an empty list when the table can't be read).
std::vector<MountPoint> current();

// The mount point under which the absolute `path` lies: the longest mount path that is `path` or a
// folder above it; "/" when none is.
std::string topDirectory(std::string_view path, std::span<const MountPoint> mounts);

} // namespace MountTable
} // namespace CleanerCore::Platform
