#include "CleanerCore/Platform/ProcessFootprint.hpp"

#include "CleanerCore/Platform/KernelCounters.hpp"
#include "CleanerCore/Platform/RunningApplications.hpp"
#include "CleanerCore/Platform/SmallFile.hpp"

namespace CleanerCore::Platform {

namespace {

constexpr std::size_t smallLimit = 64 << 10;

// The kibibytes of a "Label:   1234 kB" line, when `line` is that label's.
std::optional<std::uint64_t> kibibytesOf(std::string_view line, std::string_view label) {
    if (!line.starts_with(label))
        return std::nullopt;
    const auto value = KernelCounters::leadingInteger(line.substr(label.size()));
    if (!value || *value < 0)
        return std::nullopt;
    return static_cast<std::uint64_t>(*value);
}

// Anonymous plus swap bytes from the text of a smaps_rollup file; nothing without an Anonymous line.
std::optional<std::uint64_t> anonymousAndSwapBytes(std::string_view smapsRollup) {
    std::optional<std::uint64_t> anonymous;
    std::uint64_t swap = 0;
    while (!smapsRollup.empty()) {
        const std::size_t end = smapsRollup.find('\n');
        const std::string_view line = smapsRollup.substr(0, end);
        smapsRollup = end == std::string_view::npos ? std::string_view{} : smapsRollup.substr(end + 1);
        if (const auto value = kibibytesOf(line, "Anonymous:"))
            anonymous = *value;
        else if (const auto swapped = kibibytesOf(line, "Swap:"))
            swap = *swapped;
    }
    if (!anonymous)
        return std::nullopt;
    return (*anonymous + swap) * 1024;
}

} // namespace

std::optional<std::uint64_t> processFootprint(int pid, const std::string& procRoot, const std::string& sysRoot) {
    if (pid <= 0)
        return std::nullopt;
    const std::string base = procRoot + "/" + std::to_string(pid);
    if (const auto cgroup = readSmallFile(base + "/cgroup", smallLimit)) {
        const auto scope = applicationCgroupPath(*cgroup);
        if (scope && scope->find("/..") == std::string_view::npos) {
            const auto current = readSmallFile(sysRoot + "/fs/cgroup" + std::string(*scope) + "/memory.current", 64);
            if (const auto bytes = current ? KernelCounters::leadingInteger(*current) : std::nullopt; bytes && *bytes >= 0)
                return static_cast<std::uint64_t>(*bytes);
        }
    }
    const auto rollup = readSmallFile(base + "/smaps_rollup", smallLimit);
    return rollup ? anonymousAndSwapBytes(*rollup) : std::nullopt;
}

} // namespace CleanerCore::Platform
