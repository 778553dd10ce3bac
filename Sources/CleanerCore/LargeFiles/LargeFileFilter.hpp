#pragma once

#include "CleanerCore/LargeFiles/FileKind.hpp"
#include "CleanerCore/LargeFiles/LargeFile.hpp"
#include "CleanerCore/LargeFiles/LargeFileAge.hpp"

#include <chrono>
#include <cstdint>
#include <set>
#include <span>
#include <vector>

namespace CleanerCore {

// Which of the scanned files to show. Applied to the list in memory, so changing it needs no walk.
struct LargeFileFilter {
    std::int64_t minimumSize = 0; // a file of exactly this size passes
    LargeFileAge age = LargeFileAge::any;
    std::set<FileKind> kinds; // empty: every kind

    // Whether `file` passes: big enough, of a chosen kind, and last used before the age's cutoff
    // from `now` (a file used exactly at the cutoff fails; one with no date counts as the oldest).
    bool matches(const LargeFile& file, std::chrono::system_clock::time_point now,
                 const icu::Calendar& calendar) const;
    // The files that pass, in their order.
    std::vector<LargeFile> apply(std::span<const LargeFile> files, std::chrono::system_clock::time_point now,
                                 const icu::Calendar& calendar) const;

    bool operator==(const LargeFileFilter&) const = default;

private:
    bool passes(const LargeFile& file,
                const std::optional<std::chrono::system_clock::time_point>& before) const;
};

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::LargeFileFilter> {
    std::size_t operator()(const CleanerCore::LargeFileFilter& filter) const noexcept;
};
