#include "CleanerCore/Apps/LeftoverKind.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <fmt/format.h>

namespace CleanerCore {

std::string_view rawValue(LeftoverKind kind) {
    switch (kind) {
    case LeftoverKind::app:
        return "app";
    case LeftoverKind::preferences:
        return "preferences";
    case LeftoverKind::caches:
        return "caches";
    case LeftoverKind::data:
        return "data";
    case LeftoverKind::logs:
        return "logs";
    case LeftoverKind::savedState:
        return "savedState";
    case LeftoverKind::startup:
        return "startup";
    case LeftoverKind::cookies:
        return "cookies";
    }
    return "data";
}

template <> std::optional<LeftoverKind> fromRaw<LeftoverKind>(std::string_view raw) {
    for (LeftoverKind kind : allLeftoverKinds)
        if (rawValue(kind) == raw)
            return kind;
    return std::nullopt;
}

LeftoverKind leftoverKind(std::string_view folder) {
    if (folder == "Preferences" || folder == "Preferences/ByHost")
        return LeftoverKind::preferences;
    if (folder == "Caches")
        return LeftoverKind::caches;
    if (folder == "Logs")
        return LeftoverKind::logs;
    if (folder == "Saved Application State")
        return LeftoverKind::savedState;
    if (folder == "LaunchAgents" || folder == "LaunchDaemons" || folder == "PrivilegedHelperTools")
        return LeftoverKind::startup;
    if (folder == "Cookies" || folder == "HTTPStorages")
        return LeftoverKind::cookies;
    return LeftoverKind::data;
}

std::string title(LeftoverKind kind, const std::optional<std::string>& locale) {
    return CoreL10n::string(fmt::format("core.leftoverKind.{}", rawValue(kind)), locale);
}

} // namespace CleanerCore
