#pragma once

#include "CleanerCore/LargeFiles/FileKind.hpp"

#include <array>
#include <optional>
#include <set>

namespace CleanerCore {

// One choice of the kind filter: every kind (`kind` absent) or one of them.
struct KindOption {
    std::optional<FileKind> kind;

    bool isAll() const { return !kind; }
    // The kinds a filter with this choice lets through; empty means all.
    std::set<FileKind> kinds() const { return kind ? std::set<FileKind>{*kind} : std::set<FileKind>{}; }

    bool operator==(const KindOption&) const = default;

    // "All", then every kind in its own order.
    static constexpr std::array<KindOption, 1 + allFileKinds.size()> options() {
        std::array<KindOption, 1 + allFileKinds.size()> out{};
        for (std::size_t i = 0; i < allFileKinds.size(); ++i)
            out[i + 1].kind = allFileKinds[i];
        return out;
    }
};

} // namespace CleanerCore
