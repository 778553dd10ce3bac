#pragma once

#include <optional>
#include <string>
#include <string_view>

// Names in the order people expect in a file list: by the locale's collation, digits compared as
// numbers ("file 9" before "file 10"), letters first regardless of case, case only breaking ties.
namespace CleanerCore::NaturalOrder {

// Negative, zero or positive as `a` sorts before, with or after `b` in `locale` (the engine's
// current language when absent). Bytes that are not UTF-8 compare as replacement characters.
int compare(std::string_view a, std::string_view b, const std::optional<std::string>& locale = std::nullopt);

} // namespace CleanerCore::NaturalOrder
