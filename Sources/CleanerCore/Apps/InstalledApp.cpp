#include "CleanerCore/Apps/InstalledApp.hpp"

#include "CleanerCore/Apps/BundleIDMatcher.hpp"
#include "CleanerCore/Platform/InfoPlist.hpp"
#include "CleanerCore/Platform/LastUsed.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <fcntl.h>
#include <sys/stat.h>

namespace CleanerCore {

namespace {

std::string nameOf(const URL& url) {
    std::string name = url.lastPathComponent();
    const std::string extension = url.pathExtension();
    if (!extension.empty())
        name.erase(name.size() - extension.size() - 1);
    return name;
}

bool isLink(const std::string& path) {
    struct stat info {};
    return Platform::SystemCalls::current().fstatat(AT_FDCWD, path.c_str(), &info, AT_SYMLINK_NOFOLLOW) ==
               0 &&
           S_ISLNK(info.st_mode);
}

} // namespace

bool InstalledApp::isApple() const {
    return bundleID && BundleIDMatcher::lowercased(*bundleID).starts_with("com.apple.");
}

std::set<std::string> InstalledApp::folderNames() const {
    std::set<std::string> names{BundleIDMatcher::lowercased(name)};
    if (kind == AppKind::bundle)
        if (const auto plist = Platform::InfoPlist::read(url.path()))
            if (const auto bundleName = plist->text("CFBundleName"))
                names.insert(BundleIDMatcher::lowercased(*bundleName));
    // Names this short would claim too many unrelated folders.
    std::erase_if(names, [](const std::string& each) { return each.size() <= 2; });
    return names;
}

std::optional<UninstallBlocker>
InstalledApp::uninstallBlocker(const std::set<std::string>& runningBundleIDs,
                               const std::set<std::string>& ownBundleIDs) const {
    if (!bundleID)
        return std::nullopt;
    const std::string id = BundleIDMatcher::lowercased(*bundleID);
    for (const std::string& member : ownBundleIDs)
        if (BundleIDMatcher::entry(id, BundleIDMatcher::lowercased(member)))
            return UninstallBlocker::zephrane;
    if (id.starts_with("com.apple."))
        return UninstallBlocker::apple;
    for (const std::string& member : runningBundleIDs)
        if (BundleIDMatcher::lowercased(member) == id)
            return UninstallBlocker::running;
    return std::nullopt;
}

std::optional<InstalledApp> InstalledApp::fromBundle(const URL& url) {
    if (url.pathExtension() != "app")
        return std::nullopt;
    // A linked app is no app of the list, so removing a row can never reach the link's target.
    const std::string path = url.path();
    if (isLink(path))
        return std::nullopt;
    const auto plist = Platform::InfoPlist::read(path);
    if (!plist)
        return std::nullopt;
    InstalledApp app{url, nameOf(url), plist->text("CFBundleIdentifier"),
                     plist->text("CFBundleShortVersionString")};
    // No Spotlight here: the main executable's access time stands in, when the volume records it.
    if (const auto executable = plist->text("CFBundleExecutable");
        executable && !executable->empty() && executable->find('/') == std::string::npos)
        app.lastUsed = Platform::lastAccess(path + "/Contents/MacOS/" + *executable);
    return app;
}

} // namespace CleanerCore

std::size_t
std::hash<CleanerCore::InstalledApp>::operator()(const CleanerCore::InstalledApp& app) const noexcept {
    std::size_t seed = std::hash<CleanerCore::URL>{}(app.url);
    const auto mix = [&seed](std::size_t value) {
        seed ^= value + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
    };
    mix(std::hash<std::string>{}(app.name));
    mix(std::hash<std::optional<std::string>>{}(app.bundleID));
    mix(std::hash<std::optional<std::string>>{}(app.version));
    mix(app.lastUsed ? std::hash<std::int64_t>{}(app.lastUsed->time_since_epoch().count()) : 0);
    mix(static_cast<std::size_t>(app.kind));
    return seed;
}
