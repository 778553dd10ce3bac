#pragma once

#include "CleanerCore/LargeFiles/FileKind.hpp"
#include "CleanerCore/LargeFiles/LargeFile.hpp"

#include <cstdint>
#include <span>
#include <vector>

namespace CleanerCore {

// How many files of one kind, and their bytes: one line of a removal's outcome.
struct KindTotal {
    FileKind kind = FileKind::other;
    std::int64_t count = 0;
    std::int64_t bytes = 0;

    bool operator==(const KindTotal&) const = default;
};

// One total per kind that occurs among `files`, in the kinds' own order.
std::vector<KindTotal> totalsByKind(std::span<const LargeFile> files);

} // namespace CleanerCore
