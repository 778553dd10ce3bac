#pragma once

#include "CleanerCore/Apps/AppKind.hpp"
#include "CleanerCore/Apps/UninstallBlocker.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <chrono>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace CleanerCore {

// One application the user can see and remove. Its identity is its URL.
struct InstalledApp {
    URL url;          // the ".app" bundle, the Flatpak's deploy folder or the AppImage file
    std::string name; // a bundle's file name without extension; a Flatpak's AppStream name
    std::optional<std::string> bundleID; // as stored, case kept; a Flatpak's id
    std::optional<std::string> version;
    std::optional<std::chrono::system_clock::time_point> lastUsed;
    AppKind kind = AppKind::bundle;
    std::optional<std::int64_t> installedSize; // what the installation reports (Flatpak); else measured
    std::optional<std::string> origin;         // the Flatpak remote it came from

    const URL& id() const { return url; }

    // The identifier begins with "com.apple." in any case.
    bool isApple() const;

    // Lower-case names the app's folders may carry in the Library: the name and the bundle's
    // CFBundleName, each only when longer than 2 characters.
    std::set<std::string> folderNames() const;

    // Why it may not be uninstalled, if anything forbids it: this program and its helpers
    // (`ownBundleIDs` and identifiers below them), then Apple's apps, then a running app.
    std::optional<UninstallBlocker> uninstallBlocker(const std::set<std::string>& runningBundleIDs,
                                                     const std::set<std::string>& ownBundleIDs) const;

    // The bundle at `url`, or nothing: the extension must be "app" exactly, the URL no link, and
    // Contents/Info.plist a readable dictionary.
    static std::optional<InstalledApp> fromBundle(const URL& url);

    bool operator==(const InstalledApp&) const = default;
};

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::InstalledApp> {
    std::size_t operator()(const CleanerCore::InstalledApp& app) const noexcept;
};
