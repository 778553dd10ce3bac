#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What the kernel counts for the whole machine, read from a /proc-like and a /sys-like tree so that
// tests can hand in recorded files.
namespace CleanerCore::Platform::KernelCounters {

// Clock ticks of all processors together, in the order user, system, idle, nice. Waiting for I/O
// counts as idle and interrupt handling as system, as other platforms count them.
struct CpuTicks {
    std::array<std::uint64_t, 4> totals{};
    int processors = 0; // the "cpuN" lines: the processors online

    bool operator==(const CpuTicks&) const = default;
};

// From <procRoot>/stat; nothing when it can't be read or lacks the totals or the processors.
std::optional<CpuTicks> readCpuTicks(const std::string& procRoot);

struct MemoryCounters {
    std::uint64_t total = 0;                    // MemTotal, bytes
    std::optional<std::uint64_t> available;     // MemAvailable, bytes; old kernels lack it

    bool operator==(const MemoryCounters&) const = default;
};

// From <procRoot>/meminfo; nothing without a MemTotal.
std::optional<MemoryCounters> readMemoryCounters(const std::string& procRoot);

// Seconds since boot, from <procRoot>/uptime.
std::optional<double> readUptime(const std::string& procRoot);

// Bytes received and sent by the physical interfaces (those with a device behind them in
// <sysRoot>/class/net), so loopback, bridges, tunnels and VPNs are left out.
struct NetworkCounters {
    std::uint64_t bytesIn = 0;
    std::uint64_t bytesOut = 0;

    bool operator==(const NetworkCounters&) const = default;
};

// Nothing when the interface list can't be read; an interface whose counters can't be read adds 0.
std::optional<NetworkCounters> readNetworkCounters(const std::string& sysRoot);

// The first whole number at the start of `text` (after blanks), as /sys files hold one.
std::optional<std::int64_t> leadingInteger(std::string_view text);

} // namespace CleanerCore::Platform::KernelCounters
