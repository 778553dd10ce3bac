#pragma once

#include "CleanerCore/Apps/InstalledApp.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <filesystem>
#include <optional>
#include <vector>

namespace CleanerCore::AppIcon {

// The file an app's row shows as its icon: a Flatpak's icon as its installation exports it in the
// hicolor theme, an AppImage's integrated icon; a bundle has none here. Reads a few folders only.
std::optional<URL> of(const InstalledApp& app, const URL& home);

// Of icon files, the one to show: the largest raster size folder ("256x256"), else a scalable one.
std::optional<URL> best(const std::vector<URL>& candidates);

// $XDG_DATA_HOME when set and absolute, else the home's ".local/share".
std::filesystem::path dataHome(const URL& home);

} // namespace CleanerCore::AppIcon
