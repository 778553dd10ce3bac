#include "Modules/Shared/PainelPhase.hpp"

#include <array>

namespace PainelPhases {
namespace {
constexpr std::array<const char*, 7> raws{"idle",     "scanning", "results", "confirm",
                                          "cleaning", "success",  "empty"};
}

QString rawValue(PainelPhase phase) {
    return QString::fromLatin1(raws[static_cast<std::size_t>(phase)]);
}

std::optional<PainelPhase> fromRaw(const QString& raw) {
    for (std::size_t i = 0; i < raws.size(); ++i)
        if (raw == QLatin1String(raws[i]))
            return static_cast<PainelPhase>(i);
    return std::nullopt;
}

PainelPhase from(ModulePhase phase, bool hasItems, bool confirming) {
    switch (phase) {
    case ModulePhase::idle:
        return PainelPhase::idle;
    case ModulePhase::scanning:
        return PainelPhase::scanning;
    case ModulePhase::ready:
        if (!hasItems)
            return PainelPhase::empty;
        return confirming ? PainelPhase::confirm : PainelPhase::results;
    case ModulePhase::cleaning:
        return PainelPhase::cleaning;
    case ModulePhase::done:
        return PainelPhase::success;
    }
    return PainelPhase::idle;
}
} // namespace PainelPhases
