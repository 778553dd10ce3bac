#pragma once

#include "CleanerCore/Removal/RemovalMode.hpp"

#include <QString>

#include <optional>

// Where cleaned items go by the user's choice (Preferences keeps it; default trash).
enum class CleanDestination { trash, deleteForGood };

namespace CleanDestinations {

QString rawValue(CleanDestination destination); // "trash", "delete"
std::optional<CleanDestination> fromRaw(const QString& raw);

CleanerCore::RemovalMode removalMode(CleanDestination destination);
CleanDestination from(CleanerCore::RemovalMode mode);
} // namespace CleanDestinations
