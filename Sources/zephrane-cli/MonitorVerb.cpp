#include "Arguments.hpp"
#include "Cli.hpp"
#include "TerminalText.hpp"

#include "CleanerCore/Platform/RunningApplications.hpp"
#include "CleanerCore/System/MemoryHogs.hpp"
#include "CleanerCore/System/SystemSampler.hpp"
#include "CleanerCore/System/SystemStatus.hpp"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <ostream>
#include <thread>
#include <unistd.h>

namespace ZephraneCli {

namespace {

// Long enough for the load and the rates to mean something, short enough to wait for.
constexpr std::chrono::milliseconds interval{500};

std::vector<CleanerCore::MemoryHog> currentHogs() {
    std::vector<CleanerCore::RunningAppInfo> candidates;
    for (const CleanerCore::Platform::RunningApplication& process : CleanerCore::Platform::runningApplications())
        candidates.push_back(CleanerCore::RunningAppInfo::fromProcess(process));
    return CleanerCore::MemoryHogs::top(candidates, 3, static_cast<std::int32_t>(::getpid()), std::nullopt);
}

const char* statusName(CleanerCore::SystemStatus status) {
    return status == CleanerCore::SystemStatus::ok ? "ok" : "diskAlmostFull";
}

template <typename T> nlohmann::json optional(const std::optional<T>& value) {
    return value ? nlohmann::json(*value) : nlohmann::json();
}

nlohmann::json asJson(const CleanerCore::SystemSnapshot& snapshot, const std::vector<CleanerCore::MemoryHog>& hogs) {
    nlohmann::json battery;
    if (snapshot.battery)
        battery = {{"level", snapshot.battery->level},
                   {"isCharging", snapshot.battery->isCharging},
                   {"isPluggedIn", snapshot.battery->isPluggedIn},
                   {"minutesRemaining", optional(snapshot.battery->minutesRemaining)},
                   {"cycleCount", optional(snapshot.battery->cycleCount)}};
    nlohmann::json hogList = nlohmann::json::array();
    for (const CleanerCore::MemoryHog& hog : hogs)
        hogList.push_back({{"pid", hog.app.pid},
                           {"name", hog.app.name},
                           {"bundleIdentifier", optional(hog.app.bundleIdentifier)},
                           {"bytes", hog.bytes}});
    return {{"cpuUsage", snapshot.cpuUsage},
            {"cpuCores", snapshot.cpuCores},
            {"memoryUsed", snapshot.memoryUsed},
            {"memoryTotal", snapshot.memoryTotal},
            {"diskFree", snapshot.diskFree},
            {"diskTotal", snapshot.diskTotal},
            {"battery", battery},
            {"downloadBytesPerSecond", snapshot.downloadBytesPerSecond},
            {"uploadBytesPerSecond", snapshot.uploadBytesPerSecond},
            {"uptime", snapshot.uptime},
            {"status", statusName(CleanerCore::systemStatus(snapshot))},
            {"hogs", std::move(hogList)}};
}

void writeText(std::ostream& out, const CleanerCore::SystemSnapshot& snapshot,
               const std::vector<CleanerCore::MemoryHog>& hogs, bool escape) {
    out << fmt::format("cpu\t{:.1f}%\t{} cores\n", snapshot.cpuUsage * 100, snapshot.cpuCores)
        << fmt::format("memory\t{}\tof {}\n", snapshot.memoryUsed, snapshot.memoryTotal)
        << fmt::format("disk\t{}\tfree of {}\n", snapshot.diskFree, snapshot.diskTotal)
        << fmt::format("network\t{:.0f}\tdown/s\t{:.0f}\tup/s\n", snapshot.downloadBytesPerSecond,
                       snapshot.uploadBytesPerSecond);
    if (const auto& battery = snapshot.battery) {
        out << fmt::format("battery\t{:.0f}%\t{}", battery->level * 100,
                           battery->isCharging ? "charging" : battery->isPluggedIn ? "plugged in" : "on battery");
        if (battery->minutesRemaining)
            out << fmt::format("\t{} min", *battery->minutesRemaining);
        if (battery->cycleCount)
            out << fmt::format("\t{} cycles", *battery->cycleCount);
        out << '\n';
    }
    out << fmt::format("uptime\t{:.0f} s\n", snapshot.uptime)
        << "status\t" << statusName(CleanerCore::systemStatus(snapshot)) << '\n';
    for (const CleanerCore::MemoryHog& hog : hogs) {
        std::string name;
        appendShown(name, hog.app.name, escape);
        out << "hog\t" << hog.app.pid << '\t' << hog.bytes << '\t' << name << '\n';
    }
}

} // namespace

// One reading of the machine, taken over a short interval so that load and throughput are
// measured, and the applications that use the most memory. Text: "NAME<TAB>VALUES" lines, one
// "hog<TAB>PID<TAB>BYTES<TAB>NAME" line per application. Nothing is quit from here.
int runMonitor(const std::vector<std::string>& words, const Streams& streams) {
    const Arguments arguments = Arguments::parse(words, {"json"}, {});
    if (!arguments.positionals().empty())
        throw UsageError("monitor takes no argument but --json");
    CleanerCore::SystemSampler sampler;
    sampler.sample();
    std::this_thread::sleep_for(interval);
    const CleanerCore::SystemSnapshot snapshot = sampler.sample();
    const std::vector<CleanerCore::MemoryHog> hogs = currentHogs();

    if (arguments.has("json"))
        streams.out << asJson(snapshot, hogs).dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    else
        writeText(streams.out, snapshot, hogs, streams.outIsTerminal);
    return 0;
}

} // namespace ZephraneCli
