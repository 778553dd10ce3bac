#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace CleanerCore {

// One byte count broken into what the panel draws: the number and the unit apart, and the words a
// screen reader says. Units are 1,000-based, as file sizes are shown: bytes and kB whole, MB with
// one decimal, GB and above with two; zero is a number with its unit.
struct ByteDisplay {
    ByteDisplay(std::int64_t bytes, std::string locale);

    std::int64_t bytes;
    std::string locale;                      // BCP 47 or ICU identifier, e.g. "pt-BR", "en_US"
    std::string formatted;                   // "1.2 MB"
    std::string number;                      // "1.2"
    std::string integerPart;                 // "1"
    std::optional<std::string> fractionPart; // "2"; none without a decimal separator
    std::string decimalSeparator;            // the locale's, "." or ","
    std::string unit;                        // "MB", no-break spaces trimmed
    std::string spoken;                      // "1.2 megabytes"

    bool operator==(const ByteDisplay&) const = default;
};

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::ByteDisplay> {
    std::size_t operator()(const CleanerCore::ByteDisplay& display) const noexcept {
        return std::hash<std::int64_t>{}(display.bytes) ^ (std::hash<std::string>{}(display.locale) << 1);
    }
};
