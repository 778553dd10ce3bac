#include "CleanerCore/Platform/KernelCounters.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SmallFile.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <vector>

namespace CleanerCore::Platform::KernelCounters {

namespace {

constexpr std::size_t statLimit = 1 << 20; // /proc/stat grows with processors and interrupts

// Splits off the next blank-separated word of `text`.
std::string_view nextWord(std::string_view& text) {
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos) {
        text = {};
        return {};
    }
    text.remove_prefix(start);
    const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(end);
    return word;
}

std::optional<std::uint64_t> unsignedValue(std::string_view word) {
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc{} || end != word.data() + word.size())
        return std::nullopt;
    return value;
}

template <typename Visit> void forEachLine(std::string_view text, Visit&& visit) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        visit(text.substr(0, end));
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + 1);
    }
}

bool isProcessorLine(std::string_view label) {
    return label.size() > 3 && label.starts_with("cpu") &&
           label.find_first_not_of("0123456789", 3) == std::string_view::npos;
}

bool exists(const std::string& path) {
    struct ::stat info {};
    return SystemCalls::current().fstatat(AT_FDCWD, path.c_str(), &info, AT_SYMLINK_NOFOLLOW) == 0;
}

std::uint64_t counter(const std::string& path) {
    const auto text = readSmallFile(path, 64);
    if (!text)
        return 0;
    std::string_view rest = *text;
    while (!rest.empty() && rest.back() == '\n')
        rest.remove_suffix(1);
    return unsignedValue(nextWord(rest)).value_or(0);
}

} // namespace

std::optional<std::int64_t> leadingInteger(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t\n");
    if (start == std::string_view::npos)
        return std::nullopt;
    text.remove_prefix(start);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end == text.data())
        return std::nullopt;
    return value;
}

std::optional<CpuTicks> readCpuTicks(const std::string& procRoot) {
    const auto text = readSmallFile(procRoot + "/stat", statLimit);
    if (!text)
        return std::nullopt;
    // The "cpu" line sums every processor the machine may have, so unlike the sum of the "cpuN"
    // lines of those online it never falls when one goes offline between two samples.
    std::optional<std::array<std::uint64_t, 4>> totals;
    int processors = 0;
    forEachLine(*text, [&](std::string_view line) {
        const std::string_view label = nextWord(line);
        if (isProcessorLine(label)) {
            ++processors;
            return;
        }
        if (label != "cpu")
            return;
        // user nice system idle iowait irq softirq steal guest guest_nice; guest time is already
        // inside user, and steal is neither ours nor idle, so both stay out.
        std::array<std::uint64_t, 7> fields{};
        for (std::uint64_t& field : fields)
            field = unsignedValue(nextWord(line)).value_or(0);
        const auto [user, nice, system, idle, iowait, irq, softirq] = fields;
        totals = {user, system + irq + softirq, idle + iowait, nice};
    });
    if (!totals || processors == 0)
        return std::nullopt;
    return CpuTicks{*totals, processors};
}

std::optional<MemoryCounters> readMemoryCounters(const std::string& procRoot) {
    const auto text = readSmallFile(procRoot + "/meminfo", 64 << 10);
    if (!text)
        return std::nullopt;
    std::optional<std::uint64_t> total, available;
    forEachLine(*text, [&](std::string_view line) {
        const std::string_view label = nextWord(line);
        std::optional<std::uint64_t>* target =
            label == "MemTotal:" ? &total : label == "MemAvailable:" ? &available : nullptr;
        if (target == nullptr)
            return;
        const auto kibibytes = unsignedValue(nextWord(line));
        if (kibibytes && *kibibytes <= UINT64_MAX / 1024)
            *target = *kibibytes * 1024;
    });
    if (!total)
        return std::nullopt;
    return MemoryCounters{*total, available};
}

std::optional<double> readUptime(const std::string& procRoot) {
    const auto text = readSmallFile(procRoot + "/uptime", 256);
    if (!text)
        return std::nullopt;
    std::string_view rest = *text;
    const std::string_view word = nextWord(rest);
    double seconds = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), seconds);
    if (error != std::errc{} || end == word.data())
        return std::nullopt;
    return seconds;
}

std::optional<NetworkCounters> readNetworkCounters(const std::string& sysRoot) {
    const std::string folder = sysRoot + "/class/net";
    const FileDescriptor fd(openDirectory(AT_FDCWD, folder.c_str()));
    if (!fd)
        return std::nullopt;
    std::vector<std::string> names;
    listDirectory(fd.get(), [&names](const ListedEntry& entry) { names.emplace_back(entry.name); },
                  {.statFolders = false, .statFiles = false});
    NetworkCounters counters;
    for (const std::string& name : names) {
        const std::string base = folder + "/" + name;
        if (!exists(base + "/device"))
            continue;
        counters.bytesIn += counter(base + "/statistics/rx_bytes");
        counters.bytesOut += counter(base + "/statistics/tx_bytes");
    }
    return counters;
}

} // namespace CleanerCore::Platform::KernelCounters
