#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace CleanerCore {

// Where an installed app comes from; removal and updates dispatch on it. A bundle and an AppImage
// are files, a Flatpak is uninstalled by its installation.
enum class AppKind { bundle, flatpakUser, flatpakSystem, appImage };

inline constexpr std::array<AppKind, 4> allAppKinds{AppKind::bundle, AppKind::flatpakUser,
                                                    AppKind::flatpakSystem, AppKind::appImage};

// "bundle", "flatpakUser", "flatpakSystem", "appImage".
std::string_view rawValue(AppKind kind);

template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);
template <> std::optional<AppKind> fromRaw<AppKind>(std::string_view raw);

inline bool isFlatpak(AppKind kind) {
    return kind == AppKind::flatpakUser || kind == AppKind::flatpakSystem;
}

} // namespace CleanerCore
