#include "CleanerCore/Removal/RemovalMode.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

namespace CleanerCore {

std::string_view rawValue(RemovalMode mode) {
    return mode == RemovalMode::trash ? "trash" : "permanent";
}

template <> std::optional<RemovalMode> fromRaw<RemovalMode>(std::string_view raw) {
    for (RemovalMode mode : allRemovalModes)
        if (rawValue(mode) == raw)
            return mode;
    return std::nullopt;
}

std::string title(RemovalMode mode, const std::optional<std::string>& locale) {
    return CoreL10n::string(mode == RemovalMode::trash ? "core.removal.trash" : "core.removal.permanent",
                            locale);
}

} // namespace CleanerCore
