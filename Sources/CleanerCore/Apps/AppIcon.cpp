#include "CleanerCore/Apps/AppIcon.hpp"

#include "CleanerCore/Apps/AppImageIntegration.hpp"
#include "CleanerCore/Platform/FlatpakUninstall.hpp"

#include <cstdlib>
#include <system_error>

namespace fs = std::filesystem;

namespace CleanerCore::AppIcon {

namespace {

// The pixel size of a hicolor size folder ("48x48", "48x48@2"); 0 for "scalable" and others.
int pixels(const std::string& folder) {
    const std::size_t x = folder.find('x');
    if (x == std::string::npos || x == 0)
        return 0;
    int value = 0;
    for (std::size_t i = 0; i < x; ++i) {
        if (folder[i] < '0' || folder[i] > '9')
            return 0;
        value = value * 10 + (folder[i] - '0');
    }
    return value;
}

} // namespace

fs::path dataHome(const URL& home) {
    if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && *xdg == '/')
        return xdg;
    return fs::path(home.path()) / ".local/share";
}

std::optional<URL> best(const std::vector<URL>& candidates) {
    std::optional<URL> chosen;
    int chosenPixels = -1;
    for (const URL& candidate : candidates) {
        // .../<size>/<context>/<file>
        const fs::path path(candidate.path());
        const int size = pixels(path.parent_path().parent_path().filename().string());
        if (size > chosenPixels) {
            chosen = candidate;
            chosenPixels = size;
        }
    }
    return chosen;
}

std::optional<URL> of(const InstalledApp& app, const URL& home) {
    if (app.kind == AppKind::appImage)
        return AppImageIntegration::icon(app.url, home);
    if (!isFlatpak(app.kind) || !app.bundleID)
        return std::nullopt;
    const auto deployment = Platform::flatpakDeployment(app.url.path());
    if (!deployment)
        return std::nullopt;
    const fs::path icons = fs::path(deployment->installation) / "exports/share/icons/hicolor";
    std::vector<URL> candidates;
    std::error_code error;
    for (fs::directory_iterator size(icons, error), end; !error && size != end; size.increment(error))
        for (const char* extension : {".png", ".svg"}) {
            const fs::path file = size->path() / "apps" / (*app.bundleID + extension);
            if (fs::exists(file, error))
                candidates.push_back(URL::file(file.string()));
        }
    return best(candidates);
}

} // namespace CleanerCore::AppIcon
