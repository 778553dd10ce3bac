#include "CleanerCore/Apps/LeftoverFinder.hpp"

#include "CleanerCore/Apps/BundleIDMatcher.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"

#include <algorithm>
#include <fcntl.h>

namespace CleanerCore {

namespace {

bool isAppOnlyFolder(std::string_view folder) {
    return folder == "Preferences" || folder == "Containers" || folder == "Saved Application State" ||
           folder == "HTTPStorages" || folder == "Application Scripts";
}

bool isNameMatchFolder(std::string_view folder) {
    return folder == "Application Support" || folder == "Caches" || folder == "Logs";
}

// The home's XDG places, each with the rules of the Library folder it stands for.
struct XdgFolder {
    std::string_view relativePath;
    LeftoverKind kind;
    bool appOnly;
    bool nameMatch;
};
constexpr std::array<XdgFolder, 7> xdgProfile{{
    {".var/app", LeftoverKind::data, true, false}, // a Flatpak's sandboxed home, like a container
    {".local/share/flatpak/overrides", LeftoverKind::preferences, true, false},
    {".local/share", LeftoverKind::data, false, true},
    {".cache", LeftoverKind::caches, false, true},
    {".local/state", LeftoverKind::logs, false, true},
    {".config", LeftoverKind::preferences, false, false}, // host programs write here too
    {".config/autostart", LeftoverKind::startup, false, false},
}};

// Whether `id` or one of its dot-separated leading parts is in `set`: `id` lies below a member.
bool belowAMember(const std::string& id, const std::unordered_set<std::string>& set) {
    if (set.empty())
        return false;
    for (std::size_t dot = id.find('.'); dot != std::string::npos; dot = id.find('.', dot + 1))
        if (dot > 0 && set.contains(id.substr(0, dot)))
            return true;
    return set.contains(id);
}

// Whether some member of the sorted `members` lies below `id` ("id.xxx").
bool hasMemberBelow(const std::string& id, const std::vector<std::string>& members) {
    const std::string prefix = id + ".";
    const auto first = std::lower_bound(members.begin(), members.end(), prefix);
    return first != members.end() && first->starts_with(prefix);
}

std::string groupKey(const std::string& id) {
    const std::vector<std::string_view> parts = BundleIDMatcher::parts(id);
    std::string key;
    for (std::size_t i = 0; i < parts.size() && i < 3; ++i) {
        if (i > 0)
            key += '.';
        key += parts[i];
    }
    return key;
}

} // namespace

LeftoverFinder::LeftoverFinder(const URL& homeFolder, std::optional<URL> system)
    : home(homeFolder), userLibrary(homeFolder.appending("Library")), systemLibrary(std::move(system)) {}

std::vector<LeftoverFinder::SearchFolder> LeftoverFinder::searchFolders(bool includingSystem) const {
    std::vector<SearchFolder> folders;
    const auto library = [&folders](const URL& root, std::string_view folder, bool isSystem) {
        folders.push_back({std::string(folder), root.appending(folder), leftoverKind(folder),
                           isAppOnlyFolder(folder), isNameMatchFolder(folder), isSystem});
    };
    for (std::string_view folder : userFolders)
        library(userLibrary, folder, false);
    for (const XdgFolder& xdg : xdgProfile)
        folders.push_back({std::string(xdg.relativePath), home.appending(xdg.relativePath), xdg.kind,
                           xdg.appOnly, xdg.nameMatch, false});
    if (includingSystem && systemLibrary)
        for (std::string_view folder : systemFolders)
            library(*systemLibrary, folder, true);
    return folders;
}

std::vector<LeftoverFinder::Entry> LeftoverFinder::entries(const std::vector<SearchFolder>& folders) const {
    std::vector<Entry> found;
    for (const SearchFolder& folder : folders) {
        const Platform::FileDescriptor fd(Platform::openDirectory(AT_FDCWD, folder.location.path().c_str()));
        if (!fd)
            continue;
        Platform::listDirectory(
            fd.get(),
            [&](const Platform::ListedEntry& entry) {
                if (entry.name == ".DS_Store")
                    return;
                found.push_back({&folder, folder.location.appending(entry.name), std::string(entry.name)});
            },
            {.statFolders = false, .statFiles = false});
    }
    return found;
}

std::unordered_map<URL, std::vector<AppLeftover>>
LeftoverFinder::appLeftovers(const std::vector<InstalledApp>& apps,
                             const std::unordered_set<std::string>& otherAppBundleIDs) const {
    const std::vector<SearchFolder> folders = searchFolders(true);
    const std::vector<Entry> all = entries(folders);
    std::vector<std::string> normalized, lowered;
    normalized.reserve(all.size());
    lowered.reserve(all.size());
    for (const Entry& entry : all) {
        normalized.push_back(BundleIDMatcher::normalize(entry.name));
        lowered.push_back(BundleIDMatcher::lowercased(entry.name));
    }
    std::vector<std::string> others(otherAppBundleIDs.begin(), otherAppBundleIDs.end());
    std::sort(others.begin(), others.end());

    std::unordered_map<URL, std::vector<AppLeftover>> result;
    for (const InstalledApp& app : apps) {
        std::vector<AppLeftover>& list = result[app.url];
        const std::optional<std::string> id =
            app.bundleID ? std::optional(BundleIDMatcher::lowercased(*app.bundleID)) : std::nullopt;
        // Apps whose identifiers lie below this one's: their files are theirs.
        std::unordered_set<std::string> nested;
        if (id) {
            const std::string prefix = *id + ".";
            for (auto it = std::lower_bound(others.begin(), others.end(), prefix);
                 it != others.end() && it->starts_with(prefix); ++it)
                nested.insert(*it);
        }
        const std::set<std::string> names = app.folderNames();
        for (std::size_t i = 0; i < all.size(); ++i) {
            const SearchFolder& folder = *all[i].folder;
            bool accepted = false;
            if (id && BundleIDMatcher::entry(normalized[i], *id)) {
                const bool ofNested = std::any_of(nested.begin(), nested.end(), [&](const std::string& n) {
                    return BundleIDMatcher::entry(normalized[i], n);
                });
                if (ofNested)
                    continue;
                accepted = true;
            } else {
                accepted = folder.nameMatch && names.contains(lowered[i]);
            }
            if (!accepted)
                continue;
            std::optional<LeftoverCaution> caution;
            if (folder.isSystem)
                caution = LeftoverCaution::systemWide;
            else if (folder.folder == "Group Containers")
                caution = LeftoverCaution::shared;
            list.push_back({all[i].url, folder.kind, caution});
        }
    }
    return result;
}

std::vector<AppLeftover>
LeftoverFinder::appLeftovers(const InstalledApp& app,
                             const std::unordered_set<std::string>& otherAppBundleIDs) const {
    auto all = appLeftovers(std::vector<InstalledApp>{app}, otherAppBundleIDs);
    const auto found = all.find(app.url);
    return found == all.end() ? std::vector<AppLeftover>{} : std::move(found->second);
}

std::vector<URL> LeftoverFinder::leftovers(const InstalledApp& app,
                                           const std::unordered_set<std::string>& otherAppBundleIDs) const {
    std::vector<URL> urls;
    for (AppLeftover& leftover : appLeftovers(app, otherAppBundleIDs))
        urls.push_back(std::move(leftover.url));
    return urls;
}

std::vector<OrphanGroup> LeftoverFinder::orphans(const std::unordered_set<std::string>& knownBundleIDs,
                                                 std::stop_token stop) const {
    // Hashes and one sorted list stand in for comparing every entry with every known identifier.
    std::unordered_set<std::string> knownVendors;
    for (const std::string& known : knownBundleIDs)
        knownVendors.insert(BundleIDMatcher::vendor(known));
    std::vector<std::string> sortedKnown(knownBundleIDs.begin(), knownBundleIDs.end());
    std::sort(sortedKnown.begin(), sortedKnown.end());

    const std::vector<SearchFolder> folders = searchFolders(false);
    std::vector<std::string> order; // the buckets' keys, first seen first
    std::unordered_map<std::string, std::vector<URL>> buckets;
    std::unordered_set<std::string> strong;
    for (const Entry& entry : entries(folders)) {
        const std::string id = BundleIDMatcher::normalize(entry.name);
        if (!BundleIDMatcher::looksLikeBundleID(id) || id.find("apple") != std::string::npos ||
            knownVendors.contains(BundleIDMatcher::vendor(id)) || belowAMember(id, knownBundleIDs) ||
            hasMemberBelow(id, sortedKnown))
            continue;
        std::string key = groupKey(id);
        auto [bucket, fresh] = buckets.try_emplace(key);
        if (fresh)
            order.push_back(key);
        bucket->second.push_back(entry.url);
        if (entry.folder->appOnly)
            strong.insert(std::move(key));
    }

    std::vector<URL> kept;
    for (const std::string& key : order)
        if (strong.contains(key))
            kept.insert(kept.end(), buckets[key].begin(), buckets[key].end());
    const std::unordered_map<URL, std::int64_t> sizes = FileSize::sizes(kept, stop);

    std::vector<OrphanGroup> groups;
    for (const std::string& key : order) {
        if (!strong.contains(key))
            continue;
        OrphanGroup group{key, {}};
        for (const URL& url : buckets[key]) {
            const auto size = sizes.find(url);
            group.items.push_back({url, size == sizes.end() ? 0 : size->second, std::nullopt, false});
        }
        std::stable_sort(group.items.begin(), group.items.end(),
                         [](const CleanupItem& a, const CleanupItem& b) { return a.size > b.size; });
        groups.push_back(std::move(group));
    }
    std::stable_sort(groups.begin(), groups.end(), [](const OrphanGroup& a, const OrphanGroup& b) {
        return a.totalSize() > b.totalSize();
    });
    return groups;
}

} // namespace CleanerCore
