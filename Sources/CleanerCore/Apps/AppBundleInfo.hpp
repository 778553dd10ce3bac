#pragma once

#include "CleanerCore/Apps/InstalledApp.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <optional>
#include <string>

namespace CleanerCore {

// A bundle's Info.plist facts that updates need.
struct AppBundleInfo {
    URL url;
    std::string name;
    std::optional<std::string> bundleID;     // CFBundleIdentifier
    std::optional<std::string> shortVersion; // CFBundleShortVersionString
    std::optional<std::string> buildVersion; // CFBundleVersion
    std::optional<URL> feedURL;              // SUFeedURL, trimmed, http or https only
    bool hasAppStoreReceipt = false;         // Contents/_MASReceipt/receipt exists

    std::optional<std::string> displayVersion() const { return shortVersion ? shortVersion : buildVersion; }

    // Nothing when Contents/Info.plist is no readable dictionary.
    static std::optional<AppBundleInfo> fromBundle(const URL& url);
    static std::optional<AppBundleInfo> fromApp(const InstalledApp& app) { return fromBundle(app.url); }

    // The feed address of a SUFeedURL value: trimmed of white space, a well-formed URL, scheme
    // "http" or "https" in any case. Nothing otherwise.
    static std::optional<URL> feedURLFrom(std::string_view text);

    bool operator==(const AppBundleInfo&) const = default;
};

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::AppBundleInfo> {
    std::size_t operator()(const CleanerCore::AppBundleInfo& info) const noexcept;
};
