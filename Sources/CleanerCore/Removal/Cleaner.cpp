#include "CleanerCore/Removal/Cleaner.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

namespace CleanerCore {

RemovalReport Cleaner::remove(std::span<const CleanupItem> items) const {
    // Nothing is removed until the guarded back ends are in: every item stays where it is.
    RemovalReport report{.mode = mode_};
    for (const CleanupItem& item : items)
        report.failures.push_back({item.url, CoreL10n::format("core.removal.failure.other", std::nullopt,
                                                              {std::string("ENOSYS")})});
    return report;
}

} // namespace CleanerCore
