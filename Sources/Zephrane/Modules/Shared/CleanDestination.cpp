#include "Modules/Shared/CleanDestination.hpp"

namespace CleanDestinations {

QString rawValue(CleanDestination destination) {
    return destination == CleanDestination::deleteForGood ? QStringLiteral("delete")
                                                          : QStringLiteral("trash");
}

std::optional<CleanDestination> fromRaw(const QString& raw) {
    if (raw == QLatin1String("trash"))
        return CleanDestination::trash;
    if (raw == QLatin1String("delete"))
        return CleanDestination::deleteForGood;
    return std::nullopt;
}

CleanerCore::RemovalMode removalMode(CleanDestination destination) {
    return destination == CleanDestination::deleteForGood ? CleanerCore::RemovalMode::permanent
                                                          : CleanerCore::RemovalMode::trash;
}

CleanDestination from(CleanerCore::RemovalMode mode) {
    return mode == CleanerCore::RemovalMode::permanent ? CleanDestination::deleteForGood
                                                       : CleanDestination::trash;
}

} // namespace CleanDestinations
