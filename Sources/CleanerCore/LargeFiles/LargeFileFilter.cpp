#include "CleanerCore/LargeFiles/LargeFileFilter.hpp"

namespace CleanerCore {

bool LargeFileFilter::passes(const LargeFile& file,
                             const std::optional<std::chrono::system_clock::time_point>& before) const {
    if (file.size < minimumSize)
        return false;
    if (!kinds.empty() && !kinds.contains(file.kind))
        return false;
    return !before || file.lastUsedSortKey() < *before;
}

bool LargeFileFilter::matches(const LargeFile& file, std::chrono::system_clock::time_point now,
                              const icu::Calendar& calendar) const {
    return passes(file, cutoff(age, now, calendar));
}

std::vector<LargeFile> LargeFileFilter::apply(std::span<const LargeFile> files,
                                              std::chrono::system_clock::time_point now,
                                              const icu::Calendar& calendar) const {
    const auto before = cutoff(age, now, calendar);
    std::vector<LargeFile> out;
    for (const LargeFile& file : files)
        if (passes(file, before))
            out.push_back(file);
    return out;
}

} // namespace CleanerCore

std::size_t std::hash<CleanerCore::LargeFileFilter>::operator()(
    const CleanerCore::LargeFileFilter& filter) const noexcept {
    std::size_t seed =
        std::hash<std::int64_t>{}(filter.minimumSize) * 31 + static_cast<std::size_t>(filter.age);
    for (CleanerCore::FileKind kind : filter.kinds)
        seed = seed * 31 + static_cast<std::size_t>(kind) + 1;
    return seed;
}
