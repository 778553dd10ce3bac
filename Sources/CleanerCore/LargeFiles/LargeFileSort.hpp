#pragma once

#include "CleanerCore/LargeFiles/LargeFile.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

// The order of the large-file list. There is no direction: each mode has the one that helps.
enum class LargeFileSort { size, lastUsed, name };

inline constexpr std::array<LargeFileSort, 3> allLargeFileSorts{LargeFileSort::size, LargeFileSort::lastUsed,
                                                                LargeFileSort::name};

// "size", "lastUsed", "name".
std::string_view rawValue(LargeFileSort sort);

template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);
template <> std::optional<LargeFileSort> fromRaw<LargeFileSort>(std::string_view raw);

// `size`: larger first; `lastUsed`: least recently used first, undated files before all; `name`:
// natural order of the names. Ties go by the names in natural order, then by the full paths as
// plain text, so the order never depends on the input's. Names compare in `locale` (the engine's
// language when absent).
std::vector<LargeFile> sorted(LargeFileSort sort, std::vector<LargeFile> files,
                              const std::optional<std::string>& locale = std::nullopt);

} // namespace CleanerCore
