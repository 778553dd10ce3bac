#include "CleanerCore/Apps/AppKind.hpp"

namespace CleanerCore {

std::string_view rawValue(AppKind kind) {
    switch (kind) {
    case AppKind::bundle:
        return "bundle";
    case AppKind::flatpakUser:
        return "flatpakUser";
    case AppKind::flatpakSystem:
        return "flatpakSystem";
    case AppKind::appImage:
        return "appImage";
    }
    return "bundle";
}

template <> std::optional<AppKind> fromRaw<AppKind>(std::string_view raw) {
    for (AppKind kind : allAppKinds)
        if (rawValue(kind) == raw)
            return kind;
    return std::nullopt;
}

} // namespace CleanerCore
