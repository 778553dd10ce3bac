#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Removal/CleanupItem.hpp"
#include "CleanerCore/Removal/RemovalMode.hpp"
#include "CleanerCore/Removal/RemovalReport.hpp"

#include <optional>
#include <span>

namespace CleanerCore {

// The one place that deletes. Each item is first put to SafetyGuard::check; only the path the guard
// returns is moved to the trash or removed for good. Build it with the user's home and
// SafetyGuard::runningAppBundle(), and call remove() off the interface thread.
class Cleaner {
public:
    Cleaner(RemovalMode mode, URL home, std::optional<URL> ownBundle)
        : mode_(mode), home_(std::move(home)), ownBundle_(std::move(ownBundle)) {}

    RemovalMode mode() const { return mode_; }
    const URL& home() const { return home_; }
    const std::optional<URL>& ownBundle() const { return ownBundle_; }

    // Synchronous; never throws. Items are handled in order and one failure never stops the rest.
    // An item counts as already gone (removed, no bytes) only when nothing stands at its place; an
    // item inside another selected one goes with it and adds no bytes of its own. Mount points stay.
    RemovalReport remove(std::span<const CleanupItem> items) const;

private:
    RemovalMode mode_;
    URL home_;
    std::optional<URL> ownBundle_;
};

} // namespace CleanerCore
