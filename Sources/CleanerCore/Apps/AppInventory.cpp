#include "CleanerCore/Apps/AppInventory.hpp"

#include "CleanerCore/Apps/BundleIDMatcher.hpp"
#include "CleanerCore/Display/NaturalOrder.hpp"
#include "CleanerCore/Platform/AppImages.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/DesktopEntries.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/InfoPlist.hpp"
#include "CleanerCore/Platform/InstalledFlatpaks.hpp"
#include "CleanerCore/Platform/LastUsed.hpp"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>

namespace CleanerCore::AppInventory {

namespace {

constexpr int knownBundleDepth = 5;

struct Listed {
    std::string name;
    bool isDirectory = false;
};

std::vector<Listed> contents(const std::string& folder) {
    std::vector<Listed> entries;
    const Platform::FileDescriptor fd(Platform::openDirectory(AT_FDCWD, folder.c_str()));
    if (!fd)
        return entries;
    Platform::listDirectory(
        fd.get(),
        [&entries](const Platform::ListedEntry& entry) {
            entries.push_back({std::string(entry.name), entry.kind == Platform::EntryKind::directory});
        },
        {.statFolders = false, .statFiles = false});
    return entries;
}

URL homeURL() {
    const char* home = std::getenv("HOME");
    return URL::file(home && *home ? home : "/");
}

// Every "*.app" below `folder`, the insides of apps included, down to the depth limit; hidden
// entries are neither taken nor entered.
void collectBundles(const std::string& folder, int level, std::vector<std::string>& found) {
    for (const Listed& entry : contents(folder)) {
        if (entry.name.starts_with('.'))
            continue;
        const std::string path = folder + "/" + entry.name;
        if (URL::file(path).pathExtension() == "app")
            found.push_back(path);
        if (entry.isDirectory && level < knownBundleDepth)
            collectBundles(path, level + 1, found);
    }
}

void addLowercased(std::unordered_set<std::string>& ids, std::string_view id) {
    if (!id.empty())
        ids.insert(BundleIDMatcher::lowercased(id));
}

} // namespace

Sources Sources::forHome(const URL& home) {
    Sources sources{home,
                    true,
                    {home.appending("Applications"), home.appending(".local/bin"), home.appending("bin")},
                    Platform::desktopEntryFolders(home.path())};
    return sources;
}

Sources Sources::machine() {
    return forHome(homeURL());
}

std::vector<URL> defaultFolders() {
    return {URL::file("/Applications"), homeURL().appending("Applications")};
}

std::vector<URL> knownBundleRoots() {
    return {URL::file("/Applications"), homeURL().appending("Applications"),
            URL::file("/System/Applications"), URL::file("/System/Library/CoreServices")};
}

std::vector<InstalledApp> installedApps(const std::vector<URL>& folders, const Sources& sources) {
    std::vector<InstalledApp> apps;
    const auto tryBundle = [&apps](const URL& url) {
        if (auto app = InstalledApp::fromBundle(url))
            apps.push_back(std::move(*app));
    };
    for (const URL& folder : folders) {
        for (const Listed& entry : contents(folder.path())) {
            const URL url = folder.appending(entry.name);
            if (url.pathExtension() == "app") {
                tryBundle(url);
            } else if (entry.isDirectory) {
                for (const Listed& inner : contents(url.path()))
                    tryBundle(url.appending(inner.name));
            }
        }
    }
    if (sources.flatpaks)
        for (InstalledApp& app : flatpakApps(sources.home))
            apps.push_back(std::move(app));
    for (InstalledApp& app : appImages(sources.appImageFolders))
        apps.push_back(std::move(app));

    std::stable_sort(apps.begin(), apps.end(), [](const InstalledApp& a, const InstalledApp& b) {
        return NaturalOrder::compare(a.name, b.name) < 0;
    });
    return apps;
}

std::unordered_set<std::string> allKnownBundleIDs(const std::vector<URL>& roots, const Sources& sources) {
    std::vector<std::string> bundles;
    for (const URL& root : roots)
        collectBundles(root.path(), 1, bundles);
    std::unordered_set<std::string> ids;
    for (const std::string& bundle : bundles)
        if (const auto plist = Platform::InfoPlist::read(bundle))
            if (const auto id = plist->text("CFBundleIdentifier"))
                addLowercased(ids, *id);
    if (sources.flatpaks)
        for (const Platform::InstalledFlatpak& ref : Platform::installedFlatpaks())
            addLowercased(ids, ref.id);
    for (const std::string& id : Platform::desktopEntryIDs(sources.desktopEntryFolders))
        addLowercased(ids, id);
    return ids;
}

std::vector<InstalledApp> flatpakApps(const URL& home) {
    const auto lastSeen = Platform::readGnomeShellLastSeen(home.path());
    std::vector<InstalledApp> apps;
    for (Platform::InstalledFlatpak& ref : Platform::installedFlatpaks()) {
        if (!ref.isApp)
            continue;
        InstalledApp app{URL::file(ref.deployPath),
                         ref.name.value_or(ref.id),
                         ref.id,
                         std::move(ref.version),
                         std::nullopt,
                         ref.installation.isUser ? AppKind::flatpakUser : AppKind::flatpakSystem,
                         ref.installedSize,
                         ref.origin.empty() ? std::nullopt : std::optional<std::string>(ref.origin)};
        if (const auto seen = lastSeen.find(ref.id); seen != lastSeen.end())
            app.lastUsed = seen->second;
        else
            app.lastUsed = Platform::newestChange(home.appending(".var/app").appending(ref.id).path());
        apps.push_back(std::move(app));
    }
    return apps;
}

std::vector<InstalledApp> appImages(const std::vector<URL>& folders) {
    std::vector<InstalledApp> apps;
    for (const URL& folder : folders) {
        for (const std::string& path : Platform::appImagesIn(folder.path())) {
            const URL url = URL::file(path);
            std::string name = url.lastPathComponent();
            if (const std::string extension = url.pathExtension();
                !extension.empty() && extension.size() + 1 < name.size())
                name.erase(name.size() - extension.size() - 1);
            InstalledApp app{url, std::move(name)};
            app.kind = AppKind::appImage;
            app.lastUsed = Platform::lastAccess(path);
            apps.push_back(std::move(app));
        }
    }
    return apps;
}

std::vector<RunningAppInfo> runningApps(const std::vector<InstalledApp>& installed,
                                        const std::string& procRoot) {
    std::vector<RunningAppInfo> running;
    for (const Platform::RunningApplication& process : Platform::runningApplications(procRoot)) {
        RunningAppInfo info = RunningAppInfo::fromProcess(process);
        if (!info.bundlePath && info.bundleIdentifier) {
            const std::string id = BundleIDMatcher::lowercased(*info.bundleIdentifier);
            const auto app =
                std::find_if(installed.begin(), installed.end(), [&id](const InstalledApp& each) {
                    return each.bundleID && BundleIDMatcher::lowercased(*each.bundleID) == id;
                });
            if (app != installed.end())
                info.bundlePath = app->url.path();
        }
        running.push_back(std::move(info));
    }
    return running;
}

std::set<std::string> runningBundleIDs(const std::string& procRoot) {
    std::set<std::string> ids;
    for (const std::string& id : Platform::runningBundleIdentifiers(procRoot))
        ids.insert(BundleIDMatcher::lowercased(id));
    return ids;
}

} // namespace CleanerCore::AppInventory
