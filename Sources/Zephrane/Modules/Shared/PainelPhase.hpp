#pragma once

#include "Modules/Shared/ModulePhase.hpp"

#include <QString>

#include <optional>

// What the channel's screen shows. It is derived, never stored: see PainelPhases::from.
enum class PainelPhase { idle, scanning, results, confirm, cleaning, success, empty };

namespace PainelPhases {
QString rawValue(PainelPhase phase);
std::optional<PainelPhase> fromRaw(const QString& raw);

// The screen for a model phase: `ready` splits into empty (no items), results, or confirm (the
// confirmation sheet is up); every other phase has exactly one screen.
PainelPhase from(ModulePhase phase, bool hasItems, bool confirming);
} // namespace PainelPhases
