#include "CleanerCore/Apps/AppImageIntegration.hpp"

#include "CleanerCore/Apps/AppIcon.hpp"

#include <glib.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace CleanerCore::AppImageIntegration {

std::string stem(const URL& appImage) {
    gchar* uri = g_filename_to_uri(appImage.path().c_str(), nullptr, nullptr);
    const std::string text = uri ? uri : "file://" + appImage.path();
    g_free(uri);
    gchar* digest = g_compute_checksum_for_string(G_CHECKSUM_MD5, text.c_str(), static_cast<gssize>(text.size()));
    std::string result = std::string("appimagekit_") + digest;
    g_free(digest);
    return result;
}

namespace {

bool startsWith(const std::string& text, const std::string& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

// Regular files (never links followed) directly in `folder` whose name begins with `prefix`.
void collect(const fs::path& folder, const std::string& prefix, std::vector<URL>& out) {
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        if (startsWith(it->path().filename().string(), prefix) && !it->is_directory(error))
            out.push_back(URL::file(it->path().string()));
}

} // namespace

std::vector<URL> files(const URL& appImage, const URL& home) {
    const std::string key = stem(appImage);
    const fs::path data = AppIcon::dataHome(home);
    std::vector<URL> found;
    collect(data / "applications", key, found);
    std::error_code error;
    // icons/<theme>/<size>/<context>/appimagekit_<md5>_<name>.<ext>
    for (fs::directory_iterator theme(data / "icons", error), end; !error && theme != end; theme.increment(error))
        for (fs::directory_iterator size(theme->path(), error); !error && size != end; size.increment(error))
            for (fs::directory_iterator context(size->path(), error); !error && context != end;
                 context.increment(error))
                collect(context->path(), key, found);
    std::ranges::sort(found, {}, &URL::path);
    return found;
}

std::optional<URL> icon(const URL& appImage, const URL& home) {
    std::vector<URL> candidates = files(appImage, home);
    std::erase_if(candidates, [](const URL& url) { return url.path().ends_with(".desktop"); });
    return AppIcon::best(candidates);
}

} // namespace CleanerCore::AppImageIntegration
