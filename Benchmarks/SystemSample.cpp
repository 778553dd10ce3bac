// What one refresh of the tray's monitor costs on this machine: a sample of the system and the
// ranking of the memory hogs, each beside its floor, the same files read with bare system calls and
// nothing parsed. Usage: SystemSample [benchmark flags].
#include "CleanerCore/Platform/RunningApplications.hpp"
#include "CleanerCore/System/MemoryHogs.hpp"
#include "CleanerCore/System/SystemSampler.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/statvfs.h>
#include <unistd.h>
#include <vector>

namespace {

char buffer[1 << 16];

std::size_t readAll(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return 0;
    std::size_t total = 0;
    for (ssize_t got; (got = ::read(fd, buffer, sizeof buffer)) > 0;)
        total += static_cast<std::size_t>(got);
    ::close(fd);
    return total;
}

std::vector<std::string> names(const char* folder) {
    std::vector<std::string> found;
    if (DIR* dir = ::opendir(folder)) {
        while (const dirent* entry = ::readdir(dir))
            if (entry->d_name[0] != '.')
                found.emplace_back(entry->d_name);
        ::closedir(dir);
    }
    return found;
}

void sample(benchmark::State& state) {
    CleanerCore::SystemSampler sampler;
    for (auto _ : state)
        benchmark::DoNotOptimize(sampler.sample());
}

// The same reads as a sample: processor ticks, memory, uptime, the disk, each physical interface's
// two counters and the power supplies.
void sampleFloor(benchmark::State& state) {
    for (auto _ : state) {
        std::size_t bytes = readAll("/proc/stat") + readAll("/proc/meminfo") + readAll("/proc/uptime");
        struct statvfs volume {};
        ::statvfs("/", &volume);
        for (const std::string& name : names("/sys/class/net")) {
            const std::string base = "/sys/class/net/" + name;
            if (::access((base + "/device").c_str(), F_OK) == 0)
                bytes += readAll(base + "/statistics/rx_bytes") + readAll(base + "/statistics/tx_bytes");
        }
        for (const std::string& name : names("/sys/class/power_supply"))
            bytes += readAll("/sys/class/power_supply/" + name + "/type");
        benchmark::DoNotOptimize(bytes);
    }
}

void hogs(benchmark::State& state) {
    for (auto _ : state) {
        std::vector<CleanerCore::RunningAppInfo> candidates;
        for (const auto& process : CleanerCore::Platform::runningApplications())
            candidates.push_back(CleanerCore::RunningAppInfo::fromProcess(process));
        benchmark::DoNotOptimize(CleanerCore::MemoryHogs::top(candidates, 3, ::getpid(), std::nullopt));
    }
}

// What the process table costs: every process's name, executable, parent, cgroup and Flatpak
// record, and what the ranking reads for this program alone.
void hogsFloor(benchmark::State& state) {
    char target[4096];
    for (auto _ : state) {
        std::size_t bytes = 0;
        for (const std::string& pid : names("/proc")) {
            if (pid[0] < '0' || pid[0] > '9')
                continue;
            for (const char* file : {"/comm", "/status", "/cgroup", "/root/.flatpak-info"})
                bytes += readAll("/proc/" + pid + file);
            bytes += static_cast<std::size_t>(std::max<ssize_t>(0, ::readlink(("/proc/" + pid + "/exe").c_str(), target, sizeof target)));
        }
        bytes += readAll("/proc/self/cgroup") + readAll("/proc/self/smaps_rollup");
        benchmark::DoNotOptimize(bytes);
    }
}

} // namespace

BENCHMARK(sample)->Unit(benchmark::kMicrosecond);
BENCHMARK(sampleFloor)->Unit(benchmark::kMicrosecond);
BENCHMARK(hogs)->Unit(benchmark::kMicrosecond);
BENCHMARK(hogsFloor)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
