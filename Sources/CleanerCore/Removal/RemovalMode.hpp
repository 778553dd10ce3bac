#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

// How a removal gets rid of things: into the trash, or for good.
enum class RemovalMode { trash, permanent };

inline constexpr std::array<RemovalMode, 2> allRemovalModes{RemovalMode::trash, RemovalMode::permanent};

// "trash" or "permanent".
std::string_view rawValue(RemovalMode mode);

template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);
template <> std::optional<RemovalMode> fromRaw<RemovalMode>(std::string_view raw);

// The mode's name for the user ("core.removal.trash" / "core.removal.permanent").
std::string title(RemovalMode mode, const std::optional<std::string>& locale = std::nullopt);

} // namespace CleanerCore
