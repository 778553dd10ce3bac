#pragma once

#include "CleanerCore/Removal/RemovalMode.hpp"

#include <QString>

#include <optional>

// Where cleaned items go by the user's choice, stored under "cleanDestination" (default trash).
enum class CleanDestination { trash, deleteForGood };

namespace CleanDestinations {
inline constexpr const char* settingsKey = "cleanDestination";

QString rawValue(CleanDestination destination); // "trash", "delete"
std::optional<CleanDestination> fromRaw(const QString& raw);

CleanerCore::RemovalMode removalMode(CleanDestination destination);
CleanDestination from(CleanerCore::RemovalMode mode);

// The stored choice; an absent or unknown value reads as trash.
CleanDestination stored();
void store(CleanDestination destination);
} // namespace CleanDestinations
