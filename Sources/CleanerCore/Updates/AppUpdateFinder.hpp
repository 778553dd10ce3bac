#pragma once

#include "CleanerCore/Apps/AppBundleInfo.hpp"
#include "CleanerCore/Apps/InstalledApp.hpp"
#include "CleanerCore/Platform/FlatpakUpdates.hpp"
#include "CleanerCore/Updates/AppUpdate.hpp"
#include "CleanerCore/Updates/HomebrewCask.hpp"
#include "CleanerCore/Updates/OperatingSystemVersion.hpp"

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

class UpdateFetching;

// Which installed applications have a newer version, from where, and with what notes. Each app is
// asked of one source only; the sources run side by side. Installs nothing, and never fails: an
// unreachable source, a bad status or malformed data only means fewer updates.
class AppUpdateFinder {
public:
    struct Settings {
        std::string region = "us";
        OperatingSystemVersion system = OperatingSystemVersion::running();
        std::vector<std::string> preferredLanguages;
        std::vector<std::string> caskroomFolders{"/opt/homebrew/Caskroom", "/usr/local/Caskroom"};
        std::string cacheFolder;
        std::chrono::seconds caskIndexMaxAge{86'400};
        std::size_t maxConcurrent = 6;
        std::set<std::string> excludedBundleIDs{"dev.tavrix.zephrane"};
        // Only caches and local data: no feed, store or index is fetched.
        bool offline = false;
        std::string caskIndexURL{HomebrewCaskIndex::defaultIndexURL};
        std::string storeLookupBase = "https://itunes.apple.com/lookup";
        // What the Flatpak installations report (given `offline`); libflatpak unless a test says otherwise.
        std::function<std::vector<Platform::FlatpakUpdate>(bool offline)> flatpakSource = Platform::flatpakUpdates;
    };

    struct Plan {
        std::vector<AppBundleInfo> appStore;
        std::vector<AppBundleInfo> sparkle;
        std::vector<AppBundleInfo> others;
    };

    AppUpdateFinder(const UpdateFetching& fetcher, Settings settings);

    // The user's caches folder + "/Zephrane/Updates", else the temporary folder's.
    static std::string defaultCacheFolder();

    Plan plan(const std::vector<AppBundleInfo>& apps) const;
    // Every installed app: Flatpaks are asked of their remotes alone, the rest go through `plan`.
    std::vector<AppUpdate> updates(const std::vector<InstalledApp>& apps, std::stop_token stop = {}) const;
    // All sources, sorted by name (natural order, stable: equal names keep store, feed, cask order).
    std::vector<AppUpdate> updates(const std::vector<AppBundleInfo>& apps, std::stop_token stop = {}) const;

    std::vector<AppUpdate> appStoreUpdates(const std::vector<AppBundleInfo>& apps, std::stop_token stop = {}) const;
    std::vector<AppUpdate> sparkleUpdates(const std::vector<AppBundleInfo>& apps, std::stop_token stop = {}) const;
    std::vector<AppUpdate> homebrewUpdates(const std::vector<AppBundleInfo>& apps) const;
    std::vector<AppUpdate> flatpakUpdates(const std::vector<InstalledApp>& apps) const;

    static std::optional<AppUpdate> sparkleUpdate(const AppBundleInfo& info, std::string_view appcast,
                                                  const OperatingSystemVersion& system,
                                                  const std::vector<std::string>& preferredLanguages);
    std::optional<URL> lookupURL(std::string_view bundleID, std::string_view region) const;
    static std::optional<AppUpdate> appStoreUpdate(const AppBundleInfo& info, std::string_view lookup);
    static std::vector<AppUpdate> homebrewUpdates(const std::vector<AppBundleInfo>& apps,
                                                  const std::vector<HomebrewCask>& casks,
                                                  const std::set<std::string>& installedTokens);

    const Settings& settings() const { return config; }

private:
    const UpdateFetching& fetcher;
    Settings config;
};

// Sorts by name in natural order, keeping the order of equal names.
void sortByName(std::vector<AppUpdate>& updates);

} // namespace CleanerCore
