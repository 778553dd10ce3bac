#pragma once

#include <cstdint>
#include <optional>

namespace CleanerCore {

// One reading of the machine: load, memory, disk, battery, network throughput.
struct SystemSnapshot {
    struct Battery {
        double level = 0; // a fraction
        bool isCharging = false;
        bool isPluggedIn = false;
        std::optional<int> minutesRemaining; // to full while charging, else to empty
        std::optional<int> cycleCount;

        bool operator==(const Battery&) const = default;
    };

    double cpuUsage = 0; // a fraction of all cores together
    std::uint64_t memoryUsed = 0;
    std::uint64_t memoryTotal = 0;
    std::int64_t diskFree = 0;
    std::int64_t diskTotal = 0;
    std::optional<Battery> battery; // absent on a machine without one
    double downloadBytesPerSecond = 0;
    double uploadBytesPerSecond = 0;
    double uptime = 0; // seconds
    int cpuCores = 0;
    bool hasRates = true; // whether cpuUsage and the two rates are measures

    // memoryUsed / memoryTotal, 0 without a total.
    double memoryFraction() const;
    // The used share of the disk, 0 without a total.
    double diskUsedFraction() const;

    bool operator==(const SystemSnapshot&) const = default;
};

} // namespace CleanerCore
