#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/LargeFiles/FileKind.hpp"
#include "CleanerCore/Removal/CleanupItem.hpp"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore {

// One large file (or package, measured whole) that a scan found. Identified by its URL.
struct LargeFile {
    using Clock = std::chrono::system_clock;

    URL url;
    std::int64_t size = 0;                     // allocated bytes
    std::optional<Clock::time_point> lastUsed; // the later of the last access and the last change of content
    FileKind kind = FileKind::other;
    bool isInICloud = false; // never true here: no file system of this platform keeps files in iCloud

    const URL& id() const { return url; }
    std::string name() const { return url.lastPathComponent(); }
    // `lastUsed`, or the distant past when there is none, so undated files count as the oldest.
    Clock::time_point lastUsedSortKey() const { return lastUsed.value_or(Clock::time_point::min()); }
    std::string kindTitle(const std::optional<std::string>& locale = std::nullopt) const {
        return title(kind, locale);
    }
    // The folder holding the file, for display.
    std::string folderPath() const { return url.deletingLastPathComponent().path(); }
    // Removable as it stands: its URL and size, no note, selected.
    CleanupItem asCleanupItem() const { return CleanupItem{url, size, std::nullopt, true}; }

    bool operator==(const LargeFile&) const = default;
};

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::LargeFile> {
    std::size_t operator()(const CleanerCore::LargeFile& file) const noexcept {
        return std::hash<CleanerCore::URL>{}(file.url);
    }
};
