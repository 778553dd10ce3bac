#include "CleanerCore/Junk/JunkRule.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

namespace CleanerCore {

using Source = JunkRule::Source;

Source Source::contents(std::string of, std::set<std::string> excluding) {
    return {Kind::contents, std::move(of), std::move(excluding)};
}

Source Source::folder(std::string path) {
    return {Kind::folder, std::move(path), {}};
}

Source Source::files(std::string in, std::set<std::string> extensions) {
    return {Kind::files, std::move(in), std::move(extensions)};
}

namespace {

JunkRule rule(std::string id, std::string_view key, std::string symbol, std::vector<Source> sources,
              bool selectedByDefault = true) {
    const std::string prefix = "core.junk." + std::string(key);
    return {std::move(id),
            CoreL10n::string(prefix + ".title"),
            CoreL10n::string(prefix + ".summary"),
            std::move(symbol),
            std::move(sources),
            selectedByDefault};
}

std::vector<JunkRule> makeDefaults() {
    const std::string xcode = "Library/Developer/Xcode/";
    return {
        rule("user-caches", "userCaches", "internaldrive",
             {Source::contents("Library/Caches", JunkRule::protectedCaches())}),
        rule("user-logs", "userLogs", "doc.text", {Source::contents("Library/Logs")}),
        rule("xcode", "xcode", "hammer",
             {Source::contents(xcode + "DerivedData"), Source::contents(xcode + "iOS DeviceSupport"),
              Source::contents(xcode + "watchOS DeviceSupport"),
              Source::contents(xcode + "macOS DeviceSupport"),
              Source::contents(xcode + "visionOS DeviceSupport"),
              Source::folder("Library/Developer/CoreSimulator/Caches")}),
        rule("dev-caches", "devCaches", "shippingbox",
             {Source::folder(".npm/_cacache"), Source::folder("Library/pnpm/store"),
              Source::folder(".bun/install/cache"), Source::folder(".gradle/caches"),
              Source::folder(".cargo/registry/cache")}),
        rule("dot-cache", "dotCache", "terminal", {Source::contents(".cache")}, false),
        rule("incomplete-downloads", "incompleteDownloads", "arrow.down.circle",
             {Source::files("Downloads", {"download", "crdownload", "part", "partial", "opdownload"})}),
    };
}

} // namespace

const std::vector<JunkRule>& JunkRule::defaults() {
    static const std::vector<JunkRule> table = makeDefaults();
    return table;
}

const std::set<std::string>& JunkRule::protectedCaches() {
    static const std::set<std::string> names{
        "CloudKit",
        "com.apple.bird",
        "com.apple.akd",
        "com.apple.HomeKit",
        "FamilyCircle",
        "com.apple.ap.adprivacyd",
        "com.apple.containermanagerd",
        "com.apple.nsurlsessiond",
    };
    return names;
}

} // namespace CleanerCore
