#include "CleanerCore/Apps/LeftoverCaution.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <fmt/format.h>

namespace CleanerCore {

std::string_view rawValue(LeftoverCaution caution) {
    return caution == LeftoverCaution::shared ? "shared" : "systemWide";
}

template <> std::optional<LeftoverCaution> fromRaw<LeftoverCaution>(std::string_view raw) {
    for (LeftoverCaution caution : allLeftoverCautions)
        if (rawValue(caution) == raw)
            return caution;
    return std::nullopt;
}

std::string note(LeftoverCaution caution, const std::optional<std::string>& locale) {
    return CoreL10n::string(fmt::format("core.leftoverCaution.{}", rawValue(caution)), locale);
}

} // namespace CleanerCore
