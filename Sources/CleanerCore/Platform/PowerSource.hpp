#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore::Platform {

// The machine's battery as the kernel's power-supply class describes it, in the terms the sampler
// asks for. Capacities share one unit (µWh, µAh, or percent when the driver gives no more).
struct PowerSource {
    std::optional<std::int64_t> currentCapacity;
    std::optional<std::int64_t> maxCapacity;
    bool isCharging = false;  // status "Charging"
    bool isPluggedIn = false; // a mains or USB supply is online
    std::optional<std::int64_t> minutesToFullCharge;
    std::optional<std::int64_t> minutesToEmpty;
    std::optional<std::int64_t> cycleCount;

    bool operator==(const PowerSource&) const = default;
};

// The first battery of the system under <sysRoot>/class/power_supply, by name. Batteries of
// devices (a wireless mouse reports one with scope "Device") and absent ones don't count. Nothing
// on a machine without a battery or when the folder can't be read.
std::optional<PowerSource> readPowerSource(const std::string& sysRoot);

} // namespace CleanerCore::Platform
