#include "Modules/Shared/ModulePhase.hpp"

#include <array>

namespace ModulePhases {
namespace {
constexpr std::array<const char*, 5> raws{"idle", "scanning", "ready", "cleaning", "done"};
}

QString rawValue(ModulePhase phase) {
    return QString::fromLatin1(raws[static_cast<std::size_t>(phase)]);
}

std::optional<ModulePhase> fromRaw(const QString& raw) {
    for (std::size_t i = 0; i < raws.size(); ++i)
        if (raw == QLatin1String(raws[i]))
            return static_cast<ModulePhase>(i);
    return std::nullopt;
}
} // namespace ModulePhases
