#include "Modules/Shared/CleanupFailure.hpp"

CleanupFailure CleanupFailure::from(const CleanerCore::RemovalFailure& failure) {
    return {QString::fromStdString(failure.url.lastPathComponent()), QString::fromStdString(failure.url.path()),
            QString::fromStdString(failure.reason)};
}
