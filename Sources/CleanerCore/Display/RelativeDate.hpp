#pragma once

#include <chrono>
#include <string>

// "2 days ago", "in 3 hours": a date said relative to another, with numbers and full unit names.
namespace CleanerCore::RelativeDate {

using Clock = std::chrono::system_clock;

// The largest calendar unit (year, month, week, day, hour, minute, second) that separates `date`
// from `reference`, in the given locale ("en", "pt-BR"...).
std::string string(Clock::time_point date, Clock::time_point reference, const std::string& locale);

} // namespace CleanerCore::RelativeDate
