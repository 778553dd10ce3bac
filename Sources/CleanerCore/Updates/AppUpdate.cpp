#include "CleanerCore/Updates/AppUpdate.hpp"

#include <algorithm>

namespace CleanerCore {

std::string_view rawValue(AppUpdateSource source) {
    switch (source) {
    case AppUpdateSource::sparkle: return "sparkle";
    case AppUpdateSource::appStore: return "appStore";
    case AppUpdateSource::homebrew: return "homebrew";
    case AppUpdateSource::flatpak: return "flatpak";
    }
    return "sparkle";
}

template <> std::optional<AppUpdateSource> fromRaw<AppUpdateSource>(std::string_view raw) {
    for (const AppUpdateSource source : allAppUpdateSources)
        if (rawValue(source) == raw)
            return source;
    return std::nullopt;
}

AppUpdate AppUpdate::forApp(const AppBundleInfo& info, AppUpdateSource source, std::string newVersion) {
    AppUpdate update;
    update.appURL = info.url;
    update.name = info.name;
    update.bundleID = info.bundleID;
    update.currentVersion = info.displayVersion().value_or("");
    update.newVersion = std::move(newVersion);
    update.source = source;
    return update;
}

std::string AppUpdate::id() const { return appURL.path() + "#" + newVersion; }

std::string AppUpdate::ignoreKey() const { return bundleID ? *bundleID : appURL.path(); }

std::optional<std::string> AppUpdate::notesSummary() const {
    if (!notes)
        return std::nullopt;
    std::string_view rest = *notes;
    for (;;) {
        const std::size_t newline = rest.find('\n');
        std::string_view line = rest.substr(0, newline);
        const std::size_t first = line.find_first_not_of(" \t");
        line = first == std::string_view::npos ? std::string_view{}
                                               : line.substr(first, line.find_last_not_of(" \t") - first + 1);
        if (!line.empty() && line != "\u2022")
            return std::string(line);
        if (newline == std::string_view::npos)
            break;
        rest = rest.substr(newline + 1);
    }
    return std::nullopt;
}

std::optional<std::string> AppUpdate::brewCommand() const {
    if (!caskToken)
        return std::nullopt;
    return "brew upgrade --cask " + *caskToken;
}

bool AppUpdate::canInstallDownload() const {
    if (source != AppUpdateSource::sparkle || !downloadURL || downloadURL->scheme() != "https")
        return false;
    std::string extension = downloadURL->pathExtension();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension == "dmg" || extension == "zip";
}

AppUpdateAction AppUpdate::action() const {
    switch (source) {
    case AppUpdateSource::sparkle: return canInstallDownload() ? AppUpdateAction::install : AppUpdateAction::openApp;
    case AppUpdateSource::appStore: return AppUpdateAction::openStore;
    case AppUpdateSource::homebrew: return AppUpdateAction::copyCommand;
    case AppUpdateSource::flatpak: return AppUpdateAction::install;
    }
    return AppUpdateAction::openApp;
}

} // namespace CleanerCore
