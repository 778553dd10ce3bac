#pragma once

#include "CleanerCore/Apps/AppLeftover.hpp"
#include "CleanerCore/Apps/InstalledApp.hpp"
#include "CleanerCore/Apps/LeftoverKind.hpp"
#include "CleanerCore/Apps/OrphanGroup.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <array>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace CleanerCore {

// Decides whose each top-level entry of the Library folders is: an installed app's (before its
// uninstall) or nobody's (orphans). It only reports, and never descends: one entry is one leftover.
class LeftoverFinder {
public:
    // One folder whose direct entries are judged, and the rules that hold there.
    struct SearchFolder {
        std::string folder; // as named in the lists below, or the path below the home (".var/app")
        URL location;
        LeftoverKind kind = LeftoverKind::data;
        bool appOnly = false;   // only an app bearing the identifier writes here
        bool nameMatch = false; // entries may be matched by an app's plain name
        bool isSystem = false;  // found in the system Library

        bool operator==(const SearchFolder&) const = default;
    };

    static constexpr std::array<std::string_view, 13> userFolders{"Application Support",
                                                                  "Caches",
                                                                  "Preferences",
                                                                  "Preferences/ByHost",
                                                                  "Containers",
                                                                  "Group Containers",
                                                                  "Saved Application State",
                                                                  "Logs",
                                                                  "HTTPStorages",
                                                                  "WebKit",
                                                                  "Cookies",
                                                                  "LaunchAgents",
                                                                  "Application Scripts"};
    static constexpr std::array<std::string_view, 7> systemFolders{
        "Application Support",   "Caches", "Preferences", "LaunchAgents", "LaunchDaemons",
        "PrivilegedHelperTools", "Logs"};

    URL home;
    URL userLibrary;
    std::optional<URL> systemLibrary; // none switches all system searching off

    LeftoverFinder(const URL& home, std::optional<URL> systemLibrary);

    // The user Library's folders, then this platform's XDG profile of the home (Flatpak data in
    // ".var/app" and overrides, ".local/share", ".cache", ".local/state", ".config",
    // ".config/autostart"), then, when asked and present, the system Library's folders.
    std::vector<SearchFolder> searchFolders(bool includingSystem) const;

    // What goes with each app, keyed by every app's URL (an empty list included). Matching is by
    // identifier in every folder, and by exact plain name in the name-matching folders only; an
    // entry of another app whose identifier lies below this one's is never this one's.
    // `otherAppBundleIDs` are lower case.
    std::unordered_map<URL, std::vector<AppLeftover>>
    appLeftovers(const std::vector<InstalledApp>& apps,
                 const std::unordered_set<std::string>& otherAppBundleIDs) const;
    std::vector<AppLeftover> appLeftovers(const InstalledApp& app,
                                          const std::unordered_set<std::string>& otherAppBundleIDs) const;
    std::vector<URL> leftovers(const InstalledApp& app,
                               const std::unordered_set<std::string>& otherAppBundleIDs) const;

    // What belongs to no known identifier (lower case), grouped by the names' first three parts.
    // A group stands only when an app-only folder holds one of its entries; vendors, parents and
    // children of known identifiers and anything naming "apple" are left alone. The system
    // Library is never searched. Sizes are measured in one go; groups and items come largest first.
    std::vector<OrphanGroup> orphans(const std::unordered_set<std::string>& knownBundleIDs,
                                     std::stop_token stop = {}) const;

private:
    struct Entry {
        const SearchFolder* folder = nullptr;
        URL url;
        std::string name;
    };
    std::vector<Entry> entries(const std::vector<SearchFolder>& folders) const;
};

} // namespace CleanerCore
