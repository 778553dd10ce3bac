#include "CleanerCore/Platform/PowerSource.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/KernelCounters.hpp"
#include "CleanerCore/Platform/SmallFile.hpp"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <vector>

namespace CleanerCore::Platform {

namespace {

// One supply's folder, read attribute by attribute.
struct Supply {
    std::string folder;

    std::string text(const char* attribute) const {
        std::string value = readSmallFile(folder + "/" + attribute, 256).value_or("");
        while (!value.empty() && (value.back() == '\n' || value.back() == ' '))
            value.pop_back();
        return value;
    }
    std::optional<std::int64_t> number(const char* attribute) const {
        const auto value = readSmallFile(folder + "/" + attribute, 64);
        return value ? KernelCounters::leadingInteger(*value) : std::nullopt;
    }
    bool ofTheSystem() const {
        const std::string scope = text("scope");
        return scope.empty() || scope == "System";
    }
};

std::optional<std::int64_t> minutes(std::int64_t amount, std::int64_t rate) {
    if (rate <= 0 || amount < 0)
        return std::nullopt;
    return amount * 60 / rate;
}

std::optional<std::int64_t> minutesFromSeconds(std::optional<std::int64_t> seconds) {
    if (!seconds)
        return std::nullopt;
    return *seconds / 60;
}

PowerSource describe(const Supply& battery) {
    PowerSource source;
    const std::string status = battery.text("status");
    source.isCharging = status == "Charging";
    source.cycleCount = battery.number("cycle_count");

    // Energy when the driver gives it, else charge; both pair with a rate of the same kind.
    std::optional<std::int64_t> now = battery.number("energy_now"), full = battery.number("energy_full"),
                                rate = battery.number("power_now");
    if (!full) {
        now = battery.number("charge_now");
        full = battery.number("charge_full");
        rate = battery.number("current_now");
    }
    if (full) {
        source.currentCapacity = now;
        source.maxCapacity = full;
    } else if (const auto percent = battery.number("capacity")) {
        source.currentCapacity = percent;
        source.maxCapacity = 100;
    }

    // Some drivers report the current as negative while discharging.
    const std::int64_t speed = rate ? std::llabs(*rate) : 0;
    source.minutesToEmpty = minutesFromSeconds(battery.number("time_to_empty_now"));
    source.minutesToFullCharge = minutesFromSeconds(battery.number("time_to_full_now"));
    if (!source.minutesToEmpty && now)
        source.minutesToEmpty = minutes(*now, speed);
    if (!source.minutesToFullCharge && now && full)
        source.minutesToFullCharge = minutes(*full - *now, speed);
    source.isPluggedIn = status == "Charging" || status == "Full" || status == "Not charging";
    return source;
}

} // namespace

std::optional<PowerSource> readPowerSource(const std::string& sysRoot) {
    const std::string folder = sysRoot + "/class/power_supply";
    const FileDescriptor fd(openDirectory(AT_FDCWD, folder.c_str()));
    if (!fd)
        return std::nullopt;
    std::vector<std::string> names;
    listDirectory(fd.get(), [&names](const ListedEntry& entry) { names.emplace_back(entry.name); },
                  {.statFolders = false, .statFiles = false});
    std::ranges::sort(names);

    std::optional<Supply> battery;
    std::optional<bool> mainsOnline; // absent when the machine lists no external supply
    for (const std::string& name : names) {
        const Supply supply{folder + "/" + name};
        if (!supply.ofTheSystem())
            continue;
        const std::string type = supply.text("type");
        if (type == "Battery" && !battery && supply.number("present").value_or(1) != 0)
            battery = supply;
        else if (type == "Mains" || type.starts_with("USB"))
            mainsOnline = mainsOnline.value_or(false) || supply.number("online").value_or(0) == 1;
    }
    if (!battery)
        return std::nullopt;
    PowerSource source = describe(*battery);
    if (mainsOnline)
        source.isPluggedIn = *mainsOnline;
    return source;
}

} // namespace CleanerCore::Platform
