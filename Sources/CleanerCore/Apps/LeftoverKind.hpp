#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

// What sort of thing an app left behind.
enum class LeftoverKind { app, preferences, caches, data, logs, savedState, startup, cookies };

inline constexpr std::array<LeftoverKind, 8> allLeftoverKinds{
    LeftoverKind::app,  LeftoverKind::preferences, LeftoverKind::caches,  LeftoverKind::data,
    LeftoverKind::logs, LeftoverKind::savedState,  LeftoverKind::startup, LeftoverKind::cookies};

std::string_view rawValue(LeftoverKind kind);

template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);
template <> std::optional<LeftoverKind> fromRaw<LeftoverKind>(std::string_view raw);

// The kind of what lies in a Library folder ("Preferences/ByHost" holds preferences, an unlisted
// folder data). `app` is never the answer: it stands for the bundle itself.
LeftoverKind leftoverKind(std::string_view folder);

// "core.leftoverKind.<raw value>" in the engine's language or `locale`.
std::string title(LeftoverKind kind, const std::optional<std::string>& locale = std::nullopt);

} // namespace CleanerCore
