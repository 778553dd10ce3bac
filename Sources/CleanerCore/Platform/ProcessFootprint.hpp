#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore::Platform {

// The bytes a process is charged for. A process in an application's systemd unit ("app-….scope"
// or "app-….service", where desktops start applications) is charged for the whole unit, its
// cgroup's memory.current, so a browser's many processes count together. Any other process, or
// one whose scope can't be read, is charged for its anonymous memory and swap
// (<procRoot>/<pid>/smaps_rollup): what stays once the file cache is dropped. Nothing when the
// process has gone or can't be read (another user's).
std::optional<std::uint64_t> processFootprint(int pid, const std::string& procRoot = "/proc",
                                              const std::string& sysRoot = "/sys");

} // namespace CleanerCore::Platform
