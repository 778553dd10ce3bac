#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <string>

namespace CleanerCore {

// An item that was not removed, and why, in words for the user.
struct RemovalFailure {
    URL url;            // the item's URL as the caller gave it
    std::string reason; // localized

    const URL& id() const { return url; }
    bool operator==(const RemovalFailure&) const = default;
};

} // namespace CleanerCore
