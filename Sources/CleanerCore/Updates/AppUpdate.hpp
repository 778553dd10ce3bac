#pragma once

#include "CleanerCore/Apps/AppBundleInfo.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

// Where an offered version comes from. Flatpak apps are asked of their remote alone.
enum class AppUpdateSource { sparkle, appStore, homebrew, flatpak };

inline constexpr std::array<AppUpdateSource, 4> allAppUpdateSources{AppUpdateSource::sparkle, AppUpdateSource::appStore,
                                                                    AppUpdateSource::homebrew, AppUpdateSource::flatpak};

// "sparkle", "appStore", "homebrew", "flatpak".
std::string_view rawValue(AppUpdateSource source);
template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);
template <> std::optional<AppUpdateSource> fromRaw<AppUpdateSource>(std::string_view raw);

// What a row of an update offers: install it here, open the app (its own updater takes over),
// open its store page, or copy the package manager's command for the user to run.
enum class AppUpdateAction { install, openApp, openStore, copyCommand };

// A newer version of one installed application, with where it comes from and what it brings.
struct AppUpdate {
    URL appURL;
    std::string name;
    std::optional<std::string> bundleID;
    std::string currentVersion; // installed short version, else installed build
    std::string newVersion;     // as the source writes it
    std::optional<std::string> newBuild;
    AppUpdateSource source = AppUpdateSource::sparkle;
    std::optional<std::string> notes; // plain text
    std::optional<std::string> notesLanguage;
    std::optional<URL> notesURL;
    std::optional<URL> downloadURL;
    std::optional<URL> storeURL;
    std::optional<std::string> caskToken;

    bool operator==(const AppUpdate&) const = default;

    // An update of `info` with its identity and installed version filled in.
    static AppUpdate forApp(const AppBundleInfo& info, AppUpdateSource source, std::string newVersion);

    // The app's path, "#", the new version.
    std::string id() const;
    // What the user ignores an update by: the bundle identifier, else the app's path.
    std::string ignoreKey() const;
    // The first line of the notes with something in it besides a bullet.
    std::optional<std::string> notesSummary() const;
    std::optional<std::string> brewCommand() const;
    // Only feed downloads over https of a disk image or zip archive can be installed here.
    bool canInstallDownload() const;
    // Feed updates install when their download can; Flatpak updates always, by a transaction.
    AppUpdateAction action() const;
};

} // namespace CleanerCore
