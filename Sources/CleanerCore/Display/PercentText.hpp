#pragma once

#include <cstdint>
#include <string>

namespace CleanerCore::PercentText {

// `fraction` as a whole percent in `locale` (ICU or BCP 47 identifier): "37%", "37 %".
std::string percent(double fraction, const std::string& locale);

// What share `part` is of `whole`: 0 percent for a whole below 1, "<1%" for any share that is not
// zero but would round to it, so a small item never reads as nothing.
std::string share(std::int64_t part, std::int64_t whole, const std::string& locale);

} // namespace CleanerCore::PercentText
