#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Removal/RemovalFailure.hpp"
#include "CleanerCore/Removal/RemovalMode.hpp"

#include <cstdint>
#include <vector>

namespace CleanerCore {

// What one removal did. Every item given lands in exactly one of `removed` and `failures`,
// both in the order the items were processed.
struct RemovalReport {
    RemovalMode mode = RemovalMode::trash;
    std::vector<URL> removed;
    std::vector<RemovalFailure> failures;
    std::int64_t bytes = 0; // the sizes of the items actually removed

    bool operator==(const RemovalReport&) const = default;
};

} // namespace CleanerCore
