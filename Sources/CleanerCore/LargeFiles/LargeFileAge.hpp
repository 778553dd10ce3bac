#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string_view>

#include <unicode/calendar.h>

namespace CleanerCore {

// How long ago a file must have been last used to be shown.
enum class LargeFileAge { any, threeMonths, sixMonths, oneYear };

inline constexpr std::array<LargeFileAge, 4> allLargeFileAges{LargeFileAge::any, LargeFileAge::threeMonths,
                                                              LargeFileAge::sixMonths, LargeFileAge::oneYear};

// "any", "threeMonths", "sixMonths", "oneYear".
std::string_view rawValue(LargeFileAge age);

template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);
template <> std::optional<LargeFileAge> fromRaw<LargeFileAge>(std::string_view raw);

// The moment a file must have been last used before: none for `any`; 90 days back for three months
// (counted in days on purpose), 6 months and 1 year back for the others, by the calendar's own
// rules in its time zone (29 February less a year is the 28th in the Gregorian calendar).
std::optional<std::chrono::system_clock::time_point>
cutoff(LargeFileAge age, std::chrono::system_clock::time_point from, const icu::Calendar& calendar);

// The Gregorian calendar of the system's time zone, for callers that have none of their own.
std::unique_ptr<icu::Calendar> currentCalendar();

} // namespace CleanerCore
