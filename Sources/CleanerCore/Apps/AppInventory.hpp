#pragma once

#include "CleanerCore/Apps/InstalledApp.hpp"
#include "CleanerCore/Apps/RunningAppInfo.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <set>
#include <string>
#include <unordered_set>
#include <vector>

// Which applications the user can see and remove, and which identifiers exist on the machine at
// all. Blocking, without shared state; nothing here removes anything.
namespace CleanerCore::AppInventory {

// Where this platform's own applications come from, beside the bundle folders.
struct Sources {
    URL home;
    bool flatpaks = false;                        // every Flatpak installation libflatpak knows
    std::vector<URL> appImageFolders;             // searched one level deep, by magic bytes
    std::vector<std::string> desktopEntryFolders; // ids of installed desktop entries (known ids only)

    // The machine's: Flatpaks, AppImages in ~/Applications, ~/.local/bin and ~/bin, and the XDG
    // application folders.
    static Sources forHome(const URL& home);
    // forHome() of $HOME.
    static Sources machine();
    // Nothing beyond the bundle folders.
    static Sources none() { return {}; }
};

// "/Applications" and the home's "Applications", in that order.
std::vector<URL> defaultFolders();

// Where allKnownBundleIDs looks for bundles: "/Applications", the home's "Applications",
// "/System/Applications", "/System/Library/CoreServices".
std::vector<URL> knownBundleRoots();

// The ".app" bundles directly in each folder or in a folder directly inside it (hidden entries
// seen, nothing deeper, links never), then the Flatpaks and AppImages of `sources`; all sorted by
// name in natural order, stably. Copies found twice are two rows. Unreadable folders count as empty.
std::vector<InstalledApp> installedApps(const std::vector<URL>& folders = defaultFolders(),
                                        const Sources& sources = Sources::machine());

// Every lower-case bundle identifier on the machine: bundles anywhere below `roots` down to five
// levels (hidden entries skipped, nested helpers counted), every Flatpak ref of every
// installation and every desktop entry's id.
std::unordered_set<std::string> allKnownBundleIDs(const std::vector<URL>& roots = knownBundleRoots(),
                                                  const Sources& sources = Sources::machine());

// The Flatpak apps of every installation, with their AppStream name and version, deploy folder,
// installed size, origin and last use.
std::vector<InstalledApp> flatpakApps(const URL& home);

// The AppImages directly in `folders`, recognised by their magic bytes.
std::vector<InstalledApp> appImages(const std::vector<URL>& folders);

// The running applications, those with an identifier of an installed app (case aside) given
// that app's URL as their bundle path when they have none of their own.
std::vector<RunningAppInfo> runningApps(const std::vector<InstalledApp>& installed,
                                        const std::string& procRoot = "/proc");

// The lower-case identifiers of the running applications, what uninstallBlocker expects.
std::set<std::string> runningBundleIDs(const std::string& procRoot = "/proc");

} // namespace CleanerCore::AppInventory
