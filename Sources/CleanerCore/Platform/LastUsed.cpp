#include "CleanerCore/Platform/LastUsed.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SmallFile.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <expat.h>

#include <charconv>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <vector>

namespace CleanerCore::Platform {

namespace {

// A sandboxed app's folder can hold a great many files; the newest change is looked for among
// this many entries at most, which is plenty for a date shown to the day.
constexpr int maximumEntries = 20000;

TimePoint timeOf(const struct statx_timestamp& stamp) {
    return TimePoint(std::chrono::duration_cast<TimePoint::duration>(
        std::chrono::seconds(stamp.tv_sec) + std::chrono::nanoseconds(stamp.tv_nsec)));
}

void lastSeenElement(void* data, const XML_Char* element, const XML_Char** attributes) {
    if (std::strcmp(element, "application") != 0)
        return;
    std::string_view id, seen;
    for (int i = 0; attributes[i] != nullptr; i += 2) {
        if (std::strcmp(attributes[i], "id") == 0)
            id = attributes[i + 1];
        else if (std::strcmp(attributes[i], "last-seen") == 0)
            seen = attributes[i + 1];
    }
    long long seconds = 0;
    if (id.empty() ||
        std::from_chars(seen.data(), seen.data() + seen.size(), seconds).ptr != seen.data() + seen.size() ||
        seen.empty() || seconds <= 0)
        return;
    if (id.ends_with(".desktop"))
        id.remove_suffix(8);
    auto& map = *static_cast<std::map<std::string, TimePoint, std::less<>>*>(data);
    const TimePoint when{std::chrono::seconds(seconds)};
    // The same app can be listed in several contexts (workspaces): the latest sighting counts.
    const auto [slot, fresh] = map.try_emplace(std::string(id), when);
    if (!fresh && slot->second < when)
        slot->second = when;
}

void walkNewest(int parentFd, const char* name, int depth, int& budget, std::optional<TimePoint>& newest) {
    const FileDescriptor fd(openDirectory(parentFd, name));
    if (!fd)
        return;
    SystemCalls& calls = SystemCalls::current();
    std::vector<std::string> folders;
    listDirectory(fd.get(),
                  [&](const ListedEntry& entry) {
                      if (--budget < 0)
                          return;
                      struct statx info {};
                      if (calls.statx(fd.get(), entry.name.data(), AT_SYMLINK_NOFOLLOW | AT_STATX_DONT_SYNC,
                                      STATX_MTIME, &info) == 0) {
                          const TimePoint when = timeOf(info.stx_mtime);
                          if (!newest || *newest < when)
                              newest = when;
                      }
                      if (entry.kind == EntryKind::directory)
                          folders.emplace_back(entry.name);
                  },
                  {.statFolders = false, .statFiles = false});
    if (depth <= 0)
        return;
    for (const std::string& folder : folders)
        if (budget > 0)
            walkNewest(fd.get(), folder.c_str(), depth - 1, budget, newest);
}

} // namespace

std::map<std::string, TimePoint, std::less<>> gnomeShellLastSeen(std::string_view stateFile) {
    std::map<std::string, TimePoint, std::less<>> seen;
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!parser || stateFile.size() > (64u << 20))
        return seen;
    XML_SetUserData(parser.get(), &seen);
    XML_SetStartElementHandler(parser.get(), &lastSeenElement);
    XML_SetParamEntityParsing(parser.get(), XML_PARAM_ENTITY_PARSING_NEVER);
    XML_Parse(parser.get(), stateFile.data(), static_cast<int>(stateFile.size()), true);
    return seen;
}

std::map<std::string, TimePoint, std::less<>> readGnomeShellLastSeen(const std::string& home) {
    const auto content = readSmallFile(home + "/.local/share/gnome-shell/application_state", 16u << 20);
    return content ? gnomeShellLastSeen(*content) : std::map<std::string, TimePoint, std::less<>>{};
}

std::optional<TimePoint> newestChange(const std::string& folder, int depth) {
    struct statx info {};
    if (SystemCalls::current().statx(AT_FDCWD, folder.c_str(), AT_SYMLINK_NOFOLLOW, STATX_MTIME | STATX_TYPE,
                                     &info) != 0 ||
        !S_ISDIR(info.stx_mode))
        return std::nullopt;
    std::optional<TimePoint> newest = timeOf(info.stx_mtime);
    int budget = maximumEntries;
    walkNewest(AT_FDCWD, folder.c_str(), depth - 1, budget, newest);
    return newest;
}

std::optional<TimePoint> lastAccess(const std::string& file) {
    struct statx info {};
    if (SystemCalls::current().statx(AT_FDCWD, file.c_str(), AT_SYMLINK_NOFOLLOW, STATX_ATIME | STATX_MTIME,
                                     &info) != 0 ||
        (info.stx_mask & STATX_ATIME) == 0)
        return std::nullopt;
    const TimePoint accessed = timeOf(info.stx_atime);
    if (accessed <= timeOf(info.stx_mtime))
        return std::nullopt;
    return accessed;
}

} // namespace CleanerCore::Platform
