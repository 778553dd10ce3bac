#include "CleanerCore/System/MemoryHogs.hpp"

#include "CleanerCore/Platform/ProcessSignals.hpp"
#include "CleanerCore/System/ProcessMemory.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace CleanerCore::MemoryHogs {

const std::set<std::string>& protectedBundleIDs() {
    static const std::set<std::string> ids{
        "com.apple.finder", "com.apple.dock", "com.apple.loginwindow", "com.apple.systemuiserver",
        "com.apple.controlcenter", "com.apple.WindowManager", "com.apple.notificationcenterui",
        // The desktop shells, window managers and file managers this platform runs.
        "org.gnome.Shell", "org.kde.plasmashell", "org.kde.kwin", "org.gnome.Nautilus", "org.kde.dolphin",
        "Xwayland"};
    return ids;
}

bool isQuittable(const RunningAppInfo& app, std::int32_t ownPID, const std::optional<std::string>& ownBundleID) {
    if (!app.isRegular)
        return false;
    if (app.pid == ownPID || app.pid < 2)
        return false;
    if (app.bundleIdentifier &&
        (protectedBundleIDs().contains(*app.bundleIdentifier) || app.bundleIdentifier == ownBundleID))
        return false;
    if (!app.bundlePath)
        return app.bundleIdentifier.has_value();
    const std::string_view path = *app.bundlePath;
    if (!path.ends_with(".app") && !path.ends_with(".app/"))
        return false;
    constexpr std::array<std::string_view, 5> systemFolders{"/System/", "/Library/CoreServices/", "/usr/", "/sbin/",
                                                            "/bin/"};
    return std::ranges::none_of(systemFolders, [path](std::string_view folder) { return path.starts_with(folder); });
}

std::optional<std::uint64_t> footprintOf(std::int32_t pid) {
    const auto usages = ProcessMemory::footprints({pid});
    if (usages.empty())
        return std::nullopt;
    return usages.front().bytes;
}

std::vector<MemoryHog> top(const std::vector<RunningAppInfo>& apps, int limit, std::int32_t ownPID,
                           const std::optional<std::string>& ownBundleID, const Footprint& footprint) {
    std::vector<MemoryHog> hogs;
    for (const RunningAppInfo& app : apps) {
        if (!isQuittable(app, ownPID, ownBundleID))
            continue;
        if (const auto bytes = footprint(app.pid))
            hogs.push_back({app, *bytes});
    }
    std::ranges::stable_sort(hogs, std::ranges::greater{}, &MemoryHog::bytes);
    hogs.resize(std::min(hogs.size(), static_cast<std::size_t>(std::max(limit, 0))));
    return hogs;
}

bool quit(const MemoryHog& hog, const std::optional<RunningAppInfo>& current, std::int32_t ownPID,
          const std::optional<std::string>& ownBundleID) {
    if (!current || current->pid != hog.app.pid || current->bundleIdentifier != hog.app.bundleIdentifier ||
        current->bundlePath != hog.app.bundlePath)
        return false;
    if (!isQuittable(*current, ownPID, ownBundleID))
        return false;
    return Platform::askProcessToQuit(current->pid);
}

} // namespace CleanerCore::MemoryHogs
