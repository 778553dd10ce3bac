#include "CleanerCore/System/SystemSampler.hpp"
#include "CleanerCore/System/SystemStatus.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

using CleanerCore::SystemSampler;
using CleanerCore::SystemSnapshot;
using namespace std::chrono_literals;

namespace {

// A machine recorded as files: /proc and /sys as the kernel writes them, and a clock the test moves.
struct RecordedMachine {
    TestSupport::TempTree tree;
    std::chrono::steady_clock::time_point now{};

    RecordedMachine() {
        tree.text("proc/meminfo", "MemTotal:       16000000 kB\nMemFree:         1000000 kB\n"
                                  "MemAvailable:    6000000 kB\nBuffers:          200000 kB\n");
        tree.text("proc/uptime", "12345.67 23456.78\n");
        // user nice system idle iowait irq softirq steal guest guest_nice
        ticks({{100, 10, 50, 800, 40, 0, 0, 5, 0, 0}, {200, 0, 100, 700, 0, 0, 0, 0, 0, 0}});
        interface("eth0", true, 1'000'000, 500'000);
        interface("lo", false, 9'000'000, 9'000'000);
        interface("wg0", false, 7'000'000, 7'000'000);
    }

    // The kernel's totals count every processor; only the first `online` are listed one by one.
    void ticks(const std::vector<std::array<std::uint64_t, 10>>& processors, std::size_t online = SIZE_MAX) {
        std::array<std::uint64_t, 10> totals{};
        std::string lines;
        for (std::size_t i = 0; i < processors.size(); ++i) {
            for (std::size_t field = 0; field < totals.size(); ++field)
                totals[field] += processors[i][field];
            if (i >= online)
                continue;
            lines += "cpu" + std::to_string(i);
            for (const std::uint64_t field : processors[i])
                lines += " " + std::to_string(field);
            lines += "\n";
        }
        std::string text = "cpu ";
        for (const std::uint64_t field : totals)
            text += " " + std::to_string(field);
        text += "\n" + lines + "intr 12345 0 0\nctxt 99999\nbtime 1700000000\n";
        tree.text("proc/stat", text);
    }
    void interface(const std::string& name, bool physical, std::uint64_t in, std::uint64_t out) {
        const std::string folder = "sys/class/net/" + name;
        tree.text(folder + "/statistics/rx_bytes", std::to_string(in) + "\n");
        tree.text(folder + "/statistics/tx_bytes", std::to_string(out) + "\n");
        if (physical && !std::filesystem::is_symlink(tree.path(folder + "/device")))
            tree.symlink("sys/class/net/" + name + "/device", "../../../devices/pci0000:00/0000:00:1f.6");
    }
    // `attributes`: "type=Battery status=Full", one file each.
    void supply(const std::string& name, const std::string& attributes) {
        std::istringstream pairs(attributes);
        for (std::string pair; pairs >> pair;)
            tree.text("sys/class/power_supply/" + name + "/" + pair.substr(0, pair.find('=')),
                      pair.substr(pair.find('=') + 1) + "\n");
    }

    SystemSampler::Sources sources() const {
        return {tree.path("proc").string(), tree.path("sys").string(), tree.root().string()};
    }
    SystemSampler sampler() {
        return SystemSampler(sources(), [this] { return now; });
    }
};

} // namespace

TEST(SystemSampler, FirstSampleHasNoRatesAndTheNextMeasuresTheTwoSecondsBetween) {
    RecordedMachine machine;
    SystemSampler sampler = machine.sampler();

    const SystemSnapshot first = sampler.sample();
    EXPECT_TRUE(first.hasRates);
    EXPECT_EQ(first.cpuUsage, 0);
    EXPECT_EQ(first.downloadBytesPerSecond, 0);
    EXPECT_EQ(first.uploadBytesPerSecond, 0);
    EXPECT_EQ(first.cpuCores, 2);
    EXPECT_EQ(first.memoryTotal, 16'000'000ull * 1024);
    EXPECT_EQ(first.memoryUsed, 10'000'000ull * 1024) << "the file cache is no use";
    EXPECT_DOUBLE_EQ(first.memoryFraction(), 0.625);
    EXPECT_DOUBLE_EQ(first.uptime, 12345.67);
    EXPECT_GT(first.diskTotal, 0);
    EXPECT_FALSE(first.battery) << "a desktop has none";

    // Processor 0: user +60, system +30 (+10 of it interrupts), idle +60 (+20 of it I/O wait),
    // nice +10, steal +40 left out; processor 1: user +40, idle +60. Busy 140 of 260.
    machine.ticks({{160, 20, 70, 840, 60, 5, 5, 45, 0, 0}, {240, 0, 100, 760, 0, 0, 0, 0, 0, 0}});
    machine.interface("eth0", true, 1'000'000 + 8'000, 500'000 + 2'000);
    machine.interface("lo", false, 99'000'000, 99'000'000);
    machine.now += 2s;
    const SystemSnapshot second = sampler.sample();
    EXPECT_DOUBLE_EQ(second.cpuUsage, 1 - 120.0 / 260.0);
    EXPECT_DOUBLE_EQ(second.downloadBytesPerSecond, 4'000);
    EXPECT_DOUBLE_EQ(second.uploadBytesPerSecond, 1'000);

    // Processor 1 goes offline: its ticks stop, and the load is processor 0's alone (busy 30 of 100).
    machine.ticks({{180, 20, 80, 910, 60, 5, 5, 45, 0, 0}, {240, 0, 100, 760, 0, 0, 0, 0, 0, 0}}, 1);
    machine.now += 2s;
    const SystemSnapshot third = sampler.sample();
    EXPECT_EQ(third.cpuCores, 1);
    EXPECT_DOUBLE_EQ(third.cpuUsage, 0.3);

    // A fresh sampler has no history, whatever the counters say.
    EXPECT_EQ(machine.sampler().sample().cpuUsage, 0);
}

TEST(SystemSampler, NoElapsedTimeOrTicksGiveZeroAndAFallenCounterIsNoSpike) {
    RecordedMachine machine;
    SystemSampler sampler = machine.sampler();
    sampler.sample();

    machine.interface("eth0", true, 1'000'000 + 6'000, 500'000);
    const SystemSnapshot still = sampler.sample(); // same instant, same ticks
    EXPECT_EQ(still.cpuUsage, 0);
    EXPECT_EQ(still.downloadBytesPerSecond, 0);
    machine.now += 2s;
    EXPECT_EQ(sampler.sample().downloadBytesPerSecond, 0) << "the instant sample still became the history";

    // A counter that wrapped (or an interface that went away) reads 0; the other side still counts.
    machine.interface("eth0", true, 1'000, 500'000 + 4'000);
    machine.now += 2s;
    const SystemSnapshot wrapped = sampler.sample();
    EXPECT_EQ(wrapped.downloadBytesPerSecond, 0);
    EXPECT_DOUBLE_EQ(wrapped.uploadBytesPerSecond, 2'000);
}

TEST(SystemSampler, SummaryHasNoRatesAndUnreadableSourcesFallBackAlone) {
    RecordedMachine machine;
    const SystemSnapshot summary = SystemSampler::summary(machine.sources());
    EXPECT_FALSE(summary.hasRates);
    EXPECT_EQ(summary.cpuCores, 2);
    EXPECT_EQ(summary.memoryUsed, 10'000'000ull * 1024);

    std::filesystem::remove(machine.tree.path("proc/stat"));
    machine.tree.text("proc/meminfo", "MemTotal: 1000 kB\n"); // a kernel without MemAvailable
    SystemSampler::Sources sources = machine.sources();
    sources.diskPath = machine.tree.path("missing").string();
    SystemSampler sampler(sources, [&machine] { return machine.now; });
    sampler.sample();
    machine.interface("eth0", true, 1'000'000 + 2'000, 500'000);
    machine.now += 1s;
    const SystemSnapshot partial = sampler.sample();
    EXPECT_EQ(partial.cpuCores, 0);
    EXPECT_EQ(partial.cpuUsage, 0);
    EXPECT_EQ(partial.memoryTotal, 1024'000u);
    EXPECT_EQ(partial.memoryUsed, 0u);
    EXPECT_EQ(partial.diskTotal, 0);
    EXPECT_EQ(partial.diskUsedFraction(), 0);
    EXPECT_DOUBLE_EQ(partial.downloadBytesPerSecond, 2'000);
}

TEST(SystemSampler, BatteryFromThePowerSupplyClass) {
    const auto battery = [](const std::map<std::string, std::string>& supplies) {
        RecordedMachine machine;
        for (const auto& [name, attributes] : supplies)
            machine.supply(name, attributes);
        return SystemSampler::summary(machine.sources()).battery;
    };
    const std::string mains = "type=Mains online=1";

    const auto discharging =
        battery({{"AC", "type=Mains online=0"},
                 {"BAT0", "type=Battery status=Discharging energy_now=30000000 energy_full=40000000 "
                          "power_now=10000000 capacity=74 cycle_count=312"}});
    ASSERT_TRUE(discharging);
    EXPECT_EQ(*discharging, (SystemSnapshot::Battery{0.75, false, false, 180, 312}));

    const auto charging = battery({{"ADP1", mains},
                                   {"BAT1", "type=Battery status=Charging charge_now=2000000 "
                                            "charge_full=4000000 current_now=-1000000"}});
    ASSERT_TRUE(charging);
    EXPECT_EQ(*charging, (SystemSnapshot::Battery{0.5, true, true, 120, std::nullopt}));

    const auto topped = battery({{"ADP1", mains},
                                 {"BAT0", "type=Battery status=Charging energy_now=40000000 "
                                          "energy_full=40000000 power_now=1000000"}});
    ASSERT_TRUE(topped);
    EXPECT_EQ(topped->minutesRemaining, std::nullopt) << "0 minutes to full charge reads as unknown";

    const auto percentOnly = battery({{"BAT0", "type=Battery status=Full capacity=100"}});
    ASSERT_TRUE(percentOnly);
    EXPECT_EQ(*percentOnly, (SystemSnapshot::Battery{1, false, true, std::nullopt, std::nullopt}));

    EXPECT_FALSE(battery({{"BAT0", "type=Battery energy_now=0 energy_full=0"}}))
        << "a battery of no capacity is none";
    EXPECT_FALSE(battery({{"AC", mains}}));
    EXPECT_FALSE(battery(
        {{"hidpp_battery_0", "type=Battery scope=Device capacity=55"}, {"BAT0", "type=Battery present=0"}}))
        << "a mouse's battery is not the machine's, nor an empty bay";
}

TEST(SystemStatus, AlmostFullFromNinetyPercentUsed) {
    const auto status = [](std::int64_t free, std::int64_t total) {
        SystemSnapshot snapshot;
        snapshot.diskFree = free;
        snapshot.diskTotal = total;
        return CleanerCore::systemStatus(snapshot);
    };
    using enum CleanerCore::SystemStatus;
    EXPECT_EQ(status(101'000'000'000, 1'000'000'000'000), ok); // 89.9 percent
    EXPECT_EQ(status(100'000'000'000, 1'000'000'000'000), diskAlmostFull);
    EXPECT_EQ(status(1, 10), diskAlmostFull);
    EXPECT_EQ(status(0, 0), ok);
}
