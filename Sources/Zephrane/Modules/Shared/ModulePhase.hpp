#pragma once

#include <QString>

#include <optional>

// Where a channel model is in its life: idle -> scanning -> ready -> cleaning -> done -> ready.
// A scan may fall back from scanning to idle or ready; an empty result is ready with no items.
enum class ModulePhase { idle, scanning, ready, cleaning, done };

namespace ModulePhases {
QString rawValue(ModulePhase phase);
std::optional<ModulePhase> fromRaw(const QString& raw);
} // namespace ModulePhases
