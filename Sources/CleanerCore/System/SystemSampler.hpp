#pragma once

#include "CleanerCore/System/SystemSnapshot.hpp"

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace CleanerCore {

// Measures the machine. Load and network throughput are differences between two samples, so a
// sampler keeps the previous raw counters: its first sample reports 0 for them. Not synchronized:
// one owner calls sample(). summary() keeps nothing and is safe from any thread.
class SystemSampler {
public:
    // Where the readings come from; tests point these at recorded files.
    struct Sources {
        std::string procRoot = "/proc";
        std::string sysRoot = "/sys";
        std::string diskPath = "/";
    };
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    SystemSampler();
    // Without a clock, the monotonic one.
    explicit SystemSampler(Sources sources, Clock clock = {});

    // Everything, rates included, and the counters kept for the next call.
    SystemSnapshot sample();

    // Everything that needs no history; load and rates 0, hasRates false.
    static SystemSnapshot summary();
    static SystemSnapshot summary(const Sources& sources);

private:
    struct NetworkMark {
        std::uint64_t bytesIn = 0;
        std::uint64_t bytesOut = 0;
        std::chrono::steady_clock::time_point at;
    };

    std::pair<double, double> networkRates();

    Sources sources;
    Clock clock;
    std::optional<std::array<std::uint64_t, 4>> previousCPUTicks;
    std::optional<NetworkMark> previousNetwork;
};

} // namespace CleanerCore
