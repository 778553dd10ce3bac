#pragma once

#include "CleanerCore/Apps/LeftoverCaution.hpp"
#include "CleanerCore/Apps/LeftoverKind.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <optional>

namespace CleanerCore {

// One thing in the Library that goes with an installed app.
struct AppLeftover {
    URL url;
    LeftoverKind kind = LeftoverKind::data;
    std::optional<LeftoverCaution> caution;

    bool operator==(const AppLeftover&) const = default;
};

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::AppLeftover> {
    std::size_t operator()(const CleanerCore::AppLeftover& leftover) const noexcept;
};
