#include "CleanerCore/Updates/AppUpdateFinder.hpp"

#include "CleanerCore/Display/NaturalOrder.hpp"
#include "CleanerCore/Updates/AppVersion.hpp"
#include "CleanerCore/Updates/Appcast.hpp"
#include "CleanerCore/Updates/ConcurrentCompactMap.hpp"
#include "CleanerCore/Updates/ReleaseNotesText.hpp"
#include "CleanerCore/Updates/StoreLookup.hpp"
#include "CleanerCore/Updates/UpdateFetching.hpp"
#include "CleanerCore/Updates/WebURL.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <map>

namespace CleanerCore {
namespace {

std::string lowercased(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return out;
}

std::string queryValue(std::string_view text) {
    constexpr char hex[] = "0123456789ABCDEF";
    std::string out;
    for (const char ch : text) {
        const auto c = static_cast<unsigned char>(ch);
        if (std::isalnum(c) != 0 || c == '-' || c == '.' || c == '_' || c == '~') {
            out.push_back(ch);
        } else {
            out.push_back('%');
            out.push_back(hex[c >> 4]);
            out.push_back(hex[c & 15]);
        }
    }
    return out;
}


} // namespace

AppUpdateFinder::AppUpdateFinder(const UpdateFetching& fetcher, Settings settings)
    : fetcher(fetcher), config(std::move(settings)) {
    config.region = config.region.empty() ? "us" : lowercased(config.region);
    std::set<std::string> excluded;
    for (const std::string& id : config.excludedBundleIDs)
        excluded.insert(lowercased(id));
    config.excludedBundleIDs = std::move(excluded);
    if (config.cacheFolder.empty())
        config.cacheFolder = defaultCacheFolder();
}

std::string AppUpdateFinder::defaultCacheFolder() {
    if (const char* caches = std::getenv("XDG_CACHE_HOME"); caches != nullptr && *caches == '/')
        return std::string(caches) + "/Zephrane/Updates";
    if (const char* home = std::getenv("HOME"); home != nullptr && *home == '/')
        return std::string(home) + "/.cache/Zephrane/Updates";
    std::error_code error;
    return (std::filesystem::temp_directory_path(error) / "Zephrane/Updates").string();
}

AppUpdateFinder::Plan AppUpdateFinder::plan(const std::vector<AppBundleInfo>& apps) const {
    Plan plan;
    for (const AppBundleInfo& info : apps) {
        if (info.bundleID && config.excludedBundleIDs.contains(lowercased(*info.bundleID)))
            continue; // the program never reports itself
        if (info.bundleID && info.hasAppStoreReceipt)
            plan.appStore.push_back(info);
        else if (info.feedURL)
            plan.sparkle.push_back(info);
        else
            plan.others.push_back(info);
    }
    return plan;
}

std::vector<AppUpdate> AppUpdateFinder::updates(const std::vector<AppBundleInfo>& apps, std::stop_token stop) const {
    const Plan planned = plan(apps);
    auto store = std::async(std::launch::async, [&] { return appStoreUpdates(planned.appStore, stop); });
    auto feeds = std::async(std::launch::async, [&] { return sparkleUpdates(planned.sparkle, stop); });
    std::vector<AppUpdate> casks = stop.stop_requested() ? std::vector<AppUpdate>{} : homebrewUpdates(planned.others);
    std::vector<AppUpdate> all = store.get();
    for (AppUpdate& update : feeds.get())
        all.push_back(std::move(update));
    for (AppUpdate& update : casks)
        all.push_back(std::move(update));
    sortByName(all);
    return all;
}

std::vector<AppUpdate> AppUpdateFinder::updates(const std::vector<InstalledApp>& apps, std::stop_token stop) const {
    std::vector<AppBundleInfo> bundles;
    std::vector<InstalledApp> flatpaks;
    for (const InstalledApp& app : apps) {
        if (isFlatpak(app.kind))
            flatpaks.push_back(app);
        else if (auto info = AppBundleInfo::fromApp(app))
            bundles.push_back(std::move(*info));
    }
    auto fromFlatpak = std::async(std::launch::async, [&] {
        return flatpaks.empty() || stop.stop_requested() ? std::vector<AppUpdate>{} : flatpakUpdates(flatpaks);
    });
    std::vector<AppUpdate> all = updates(bundles, stop);
    for (AppUpdate& update : fromFlatpak.get())
        all.push_back(std::move(update));
    sortByName(all);
    return all;
}

std::vector<AppUpdate> AppUpdateFinder::flatpakUpdates(const std::vector<InstalledApp>& apps) const {
    std::map<std::string, Platform::FlatpakUpdate> byDeployFolder;
    for (Platform::FlatpakUpdate& update : config.flatpakSource(config.offline))
        byDeployFolder.emplace(update.deployPath, std::move(update));
    std::vector<AppUpdate> updates;
    for (const InstalledApp& app : apps) {
        const auto found = byDeployFolder.find(app.url.path());
        if (found == byDeployFolder.end())
            continue;
        const Platform::FlatpakUpdate& offered = found->second;
        const auto shortCommit = [](const std::string& commit) { return commit.substr(0, 12); };
        AppUpdate update;
        update.appURL = app.url;
        update.name = app.name;
        update.bundleID = app.bundleID;
        update.currentVersion = offered.installedVersion.value_or(app.version.value_or(shortCommit(offered.installedCommit)));
        // A new commit with the same version (a rebuild) is still an update: its commit tells it apart.
        update.newVersion = offered.offeredVersion && *offered.offeredVersion != update.currentVersion
                                ? *offered.offeredVersion
                                : shortCommit(offered.offeredCommit);
        update.source = AppUpdateSource::flatpak;
        updates.push_back(std::move(update));
    }
    return updates;
}

std::vector<AppUpdate> AppUpdateFinder::sparkleUpdates(const std::vector<AppBundleInfo>& apps, std::stop_token stop) const {
    if (config.offline)
        return {};
    return concurrentCompactMap(
        apps, config.maxConcurrent,
        [&](const AppBundleInfo& info) -> std::optional<AppUpdate> {
            if (!info.feedURL)
                return std::nullopt;
            try {
                return sparkleUpdate(info, fetcher.data(*info.feedURL), config.system, config.preferredLanguages);
            } catch (const std::exception&) {
                return std::nullopt; // an unreachable feed is no update, silently
            }
        },
        stop);
}

std::optional<AppUpdate> AppUpdateFinder::sparkleUpdate(const AppBundleInfo& info, std::string_view appcast,
                                                        const OperatingSystemVersion& system,
                                                        const std::vector<std::string>& preferredLanguages) {
    const auto item = Appcast::bestItem(Appcast::items(appcast), system);
    if (!item)
        return std::nullopt;
    const auto offered = item->displayVersion();
    if (!offered || !info.displayVersion())
        return std::nullopt;
    if (!AppVersion::isUpdate(item->shortVersion, item->version, info.shortVersion, info.buildVersion))
        return std::nullopt;
    AppUpdate update = AppUpdate::forApp(info, AppUpdateSource::sparkle, *offered);
    update.newBuild = item->version;
    if (item->descriptionHTML)
        if (std::string notes = ReleaseNotesText::plainText(*item->descriptionHTML); !notes.empty())
            update.notes = std::move(notes);
    update.notesLanguage = item->descriptionLanguage;
    update.notesURL = item->notesURL(preferredLanguages);
    if (!item->isInformational)
        update.downloadURL = item->enclosureURL;
    return update;
}

std::vector<AppUpdate> AppUpdateFinder::appStoreUpdates(const std::vector<AppBundleInfo>& apps, std::stop_token stop) const {
    if (config.offline)
        return {};
    return concurrentCompactMap(
        apps, config.maxConcurrent,
        [&](const AppBundleInfo& info) -> std::optional<AppUpdate> {
            if (!info.bundleID)
                return std::nullopt;
            const auto url = lookupURL(*info.bundleID, config.region);
            if (!url)
                return std::nullopt;
            try {
                return appStoreUpdate(info, fetcher.data(*url));
            } catch (const std::exception&) {
                return std::nullopt;
            }
        },
        stop);
}

std::optional<URL> AppUpdateFinder::lookupURL(std::string_view bundleID, std::string_view region) const {
    return WebURL::parse(config.storeLookupBase + "?bundleId=" + queryValue(bundleID) + "&country=" +
                         queryValue(region) + "&entity=macSoftware");
}

std::optional<AppUpdate> AppUpdateFinder::appStoreUpdate(const AppBundleInfo& info, std::string_view lookup) {
    return StoreLookup::update(info, lookup);
}

std::vector<AppUpdate> AppUpdateFinder::homebrewUpdates(const std::vector<AppBundleInfo>& apps) const {
    const std::set<std::string> installed = installedCaskTokens(config.caskroomFolders);
    // A machine without Homebrew never reads nor downloads the index.
    if (installed.empty() || apps.empty())
        return {};
    const HomebrewCaskIndex index(fetcher, config.cacheFolder, config.caskIndexMaxAge, URL::parse(config.caskIndexURL));
    const auto casks = config.offline ? index.cached() : index.casks();
    if (!casks)
        return {};
    return homebrewUpdates(apps, *casks, installed);
}

std::vector<AppUpdate> AppUpdateFinder::homebrewUpdates(const std::vector<AppBundleInfo>& apps,
                                                        const std::vector<HomebrewCask>& casks,
                                                        const std::set<std::string>& installedTokens) {
    std::map<std::string, const HomebrewCask*> byAppName;
    std::map<std::string, const HomebrewCask*> byBundleID;
    for (const HomebrewCask& cask : casks) {
        if (!installedTokens.contains(cask.token))
            continue;
        for (const std::string& name : cask.appNames)
            byAppName[lowercased(name)] = &cask;
        for (const std::string& id : cask.bundleIDs)
            byBundleID[lowercased(id)] = &cask;
    }
    std::vector<AppUpdate> updates;
    for (const AppBundleInfo& info : apps) {
        const HomebrewCask* cask = nullptr;
        if (const auto found = byAppName.find(lowercased(info.url.lastPathComponent())); found != byAppName.end())
            cask = found->second;
        else if (info.bundleID)
            if (const auto byID = byBundleID.find(lowercased(*info.bundleID)); byID != byBundleID.end())
                cask = byID->second;
        if (cask == nullptr)
            continue;
        const auto offered = cask->comparableVersion();
        const auto installed = StoreLookup::installedComparable(info);
        if (!offered || !installed || !AppVersion::isNewer(AppVersion::cutAtParenthesis(*offered), *installed))
            continue;
        AppUpdate update = AppUpdate::forApp(info, AppUpdateSource::homebrew, *offered);
        update.notesURL = cask->homepage;
        update.downloadURL = cask->downloadURL;
        update.caskToken = cask->token;
        updates.push_back(std::move(update));
    }
    return updates;
}

void sortByName(std::vector<AppUpdate>& updates) {
    std::stable_sort(updates.begin(), updates.end(), [](const AppUpdate& a, const AppUpdate& b) {
        return NaturalOrder::compare(a.name, b.name) < 0;
    });
}

} // namespace CleanerCore
