#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <optional>
#include <string>
#include <vector>

namespace CleanerCore::AppImageIntegration {

// The name stem desktop integration tools (appimaged, AppImageLauncher) give an AppImage's files:
// "appimagekit_" and the MD5 of the AppImage's "file://" URI.
std::string stem(const URL& appImage);

// The desktop entries in the home's applications folder and the icons in its icon folders
// ($XDG_DATA_HOME or ~/.local/share) that were made for this AppImage, so they leave with it.
std::vector<URL> files(const URL& appImage, const URL& home);

// The largest raster icon (else a scalable one) made for this AppImage, if any.
std::optional<URL> icon(const URL& appImage, const URL& home);

} // namespace CleanerCore::AppImageIntegration
