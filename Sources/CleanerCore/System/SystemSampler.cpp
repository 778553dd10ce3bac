#include "CleanerCore/System/SystemSampler.hpp"

#include "CleanerCore/Platform/KernelCounters.hpp"
#include "CleanerCore/Platform/PowerSource.hpp"
#include "CleanerCore/Platform/VolumeCapacity.hpp"

#include <limits>
#include <tuple>

namespace CleanerCore {

namespace {

namespace Counters = Platform::KernelCounters;

std::optional<int> smallInteger(std::optional<std::int64_t> value) {
    if (!value || *value < std::numeric_limits<int>::min() || *value > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(*value);
}

std::optional<SystemSnapshot::Battery> battery(const std::string& sysRoot) {
    const auto source = Platform::readPowerSource(sysRoot);
    if (!source || !source->currentCapacity || !source->maxCapacity || *source->maxCapacity < 1)
        return std::nullopt;
    SystemSnapshot::Battery battery;
    battery.level = static_cast<double>(*source->currentCapacity) / static_cast<double>(*source->maxCapacity);
    battery.isCharging = source->isCharging;
    battery.isPluggedIn = source->isPluggedIn;
    // 0 means the kernel can't tell yet, as much as "done".
    const auto minutes = source->isCharging ? source->minutesToFullCharge : source->minutesToEmpty;
    if (minutes && *minutes >= 1)
        battery.minutesRemaining = smallInteger(minutes);
    battery.cycleCount = smallInteger(source->cycleCount);
    return battery;
}

// Everything but load and rates; `ticks` gives the processor count when the caller has read them.
SystemSnapshot measured(const SystemSampler::Sources& sources, const std::optional<Counters::CpuTicks>& ticks) {
    SystemSnapshot snapshot;
    snapshot.cpuCores = ticks ? ticks->processors : 0;
    snapshot.uptime = Counters::readUptime(sources.procRoot).value_or(0);
    if (const auto memory = Counters::readMemoryCounters(sources.procRoot)) {
        snapshot.memoryTotal = memory->total;
        // Memory the kernel could hand out without swapping counts as free: the file cache is not use.
        if (memory->available && *memory->available <= memory->total)
            snapshot.memoryUsed = memory->total - *memory->available;
    }
    if (const auto volume = Platform::readVolumeCapacity(sources.diskPath)) {
        snapshot.diskFree = volume->available;
        snapshot.diskTotal = volume->total;
    }
    snapshot.battery = battery(sources.sysRoot);
    return snapshot;
}

} // namespace

SystemSampler::SystemSampler() : SystemSampler(Sources{}) {}

SystemSampler::SystemSampler(Sources sources, Clock clock) : sources(std::move(sources)), clock(std::move(clock)) {
    if (!this->clock)
        this->clock = [] { return std::chrono::steady_clock::now(); };
}

SystemSnapshot SystemSampler::summary() {
    return summary(Sources{});
}

SystemSnapshot SystemSampler::summary(const Sources& sources) {
    SystemSnapshot snapshot = measured(sources, Counters::readCpuTicks(sources.procRoot));
    snapshot.hasRates = false;
    return snapshot;
}

SystemSnapshot SystemSampler::sample() {
    const auto ticks = Counters::readCpuTicks(sources.procRoot);
    SystemSnapshot snapshot = measured(sources, ticks);
    if (ticks) {
        if (previousCPUTicks) {
            // Wrapping subtraction: a counter that wrapped reads as a large delta, not a negative one.
            std::array<std::uint64_t, 4> delta{};
            std::uint64_t total = 0;
            for (std::size_t i = 0; i < delta.size(); ++i) {
                delta[i] = ticks->totals[i] - (*previousCPUTicks)[i];
                total += delta[i];
            }
            if (total != 0)
                snapshot.cpuUsage = 1 - static_cast<double>(delta[2]) / static_cast<double>(total);
        }
        previousCPUTicks = ticks->totals;
    }
    std::tie(snapshot.downloadBytesPerSecond, snapshot.uploadBytesPerSecond) = networkRates();
    return snapshot;
}

std::pair<double, double> SystemSampler::networkRates() {
    const auto counters = Counters::readNetworkCounters(sources.sysRoot);
    if (!counters)
        return {0, 0};
    const auto now = clock();
    std::pair<double, double> rates{0, 0};
    if (previousNetwork) {
        const double elapsed = std::chrono::duration<double>(now - previousNetwork->at).count();
        // A total that fell is a counter that wrapped or an interface that went away: 0, not a spike.
        const auto rate = [elapsed](std::uint64_t current, std::uint64_t before) {
            return current >= before ? static_cast<double>(current - before) / elapsed : 0.0;
        };
        if (elapsed > 0)
            rates = {rate(counters->bytesIn, previousNetwork->bytesIn),
                     rate(counters->bytesOut, previousNetwork->bytesOut)};
    }
    previousNetwork = NetworkMark{counters->bytesIn, counters->bytesOut, now};
    return rates;
}

} // namespace CleanerCore
