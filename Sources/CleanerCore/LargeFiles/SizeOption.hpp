#pragma once

#include "CleanerCore/Display/ByteDisplay.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace CleanerCore {

// One choice of the size filter, identified by its bytes. The smallest is also the scan's floor,
// so every choice works on the list in hand.
struct SizeOption {
    std::int64_t bytes = 0;

    std::int64_t id() const { return bytes; }
    ByteDisplay display(const std::string& locale) const { return ByteDisplay(bytes, locale); }

    bool operator==(const SizeOption&) const = default;

    // The three choices, smallest first.
    static constexpr std::array<SizeOption, 3> choices() {
        return {SizeOption{scanFloor}, SizeOption{100000000}, SizeOption{1000000000}};
    }
    static constexpr std::int64_t scanFloor = 50000000;
};

} // namespace CleanerCore
