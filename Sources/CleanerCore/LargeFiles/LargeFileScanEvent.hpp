#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/LargeFiles/LargeFile.hpp"

#include <cstdint>
#include <variant>

namespace CleanerCore {

// What a large-file scan reports while it walks: an area (a folder right below a root) entered,
// a file found, or the number of entries visited so far.
struct LargeFileScanEvent {
    struct Entered {
        URL area;
        bool operator==(const Entered&) const = default;
    };
    struct Found {
        LargeFile file;
        bool operator==(const Found&) const = default;
    };
    struct Visited {
        std::int64_t count = 0;
        bool operator==(const Visited&) const = default;
    };

    std::variant<Entered, Found, Visited> value;

    static LargeFileScanEvent entered(URL area) { return {Entered{std::move(area)}}; }
    static LargeFileScanEvent found(LargeFile file) { return {Found{std::move(file)}}; }
    static LargeFileScanEvent visited(std::int64_t count) { return {Visited{count}}; }

    template <class Case> const Case* as() const { return std::get_if<Case>(&value); }

    bool operator==(const LargeFileScanEvent&) const = default;
};

} // namespace CleanerCore
