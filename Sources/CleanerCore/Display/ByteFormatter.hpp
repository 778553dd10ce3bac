#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace CleanerCore {

// The text of a byte count in one locale ("1.2 MB", "500 bytes"): 1,000-based units, bytes and kB
// whole, MB with one decimal, GB and above with two, each rounded half up; the largest unit whose
// rounded value stays below 1,000. The number formatters of the locale are built once, when a unit
// is first needed, so a report of a million sizes does not set them up a million times. One
// formatter serves one thread.
class ByteFormatter {
public:
    explicit ByteFormatter(const std::string& locale);
    ~ByteFormatter();
    ByteFormatter(const ByteFormatter&) = delete;
    ByteFormatter& operator=(const ByteFormatter&) = delete;

    std::string formatted(std::int64_t bytes) const;

    // The unit `bytes` is shown in (0 bytes, 1 kB, ... 5 PB) and its value in that unit.
    static std::size_t unitIndex(std::int64_t bytes);
    static double valueIn(std::int64_t bytes, std::size_t unit);

private:
    struct Formatters;
    std::unique_ptr<Formatters> formatters;
};

} // namespace CleanerCore
