#pragma once

#include <QString>

#include <chrono>

// The trash channel's words for counts and dates, in the interface's language.
namespace TrashText {

// "3 items"
QString items(int count);
// "today" for a date of the local calendar day of `now`, else "2 days ago".
QString when(std::chrono::system_clock::time_point date, std::chrono::system_clock::time_point now);

} // namespace TrashText
