#include "CleanerCore/LargeFiles/LargeFileAge.hpp"

#include <unicode/gregocal.h>

namespace CleanerCore {

std::string_view rawValue(LargeFileAge age) {
    switch (age) {
    case LargeFileAge::any:
        return "any";
    case LargeFileAge::threeMonths:
        return "threeMonths";
    case LargeFileAge::sixMonths:
        return "sixMonths";
    case LargeFileAge::oneYear:
        break;
    }
    return "oneYear";
}

template <> std::optional<LargeFileAge> fromRaw<LargeFileAge>(std::string_view raw) {
    for (LargeFileAge age : allLargeFileAges)
        if (rawValue(age) == raw)
            return age;
    return std::nullopt;
}

std::optional<std::chrono::system_clock::time_point>
cutoff(LargeFileAge age, std::chrono::system_clock::time_point from, const icu::Calendar& calendar) {
    using namespace std::chrono;
    UCalendarDateFields field = UCAL_DATE;
    int32_t amount = 0;
    switch (age) {
    case LargeFileAge::any:
        return std::nullopt;
    case LargeFileAge::threeMonths:
        field = UCAL_DATE;
        amount = -90;
        break;
    case LargeFileAge::sixMonths:
        field = UCAL_MONTH;
        amount = -6;
        break;
    case LargeFileAge::oneYear:
        field = UCAL_YEAR;
        amount = -1;
        break;
    }
    // The calendar works in whole milliseconds; what lies below is carried over unchanged.
    const auto millis = floor<milliseconds>(from);
    const auto rest = from - millis;
    const std::unique_ptr<icu::Calendar> moved(calendar.clone());
    UErrorCode status = U_ZERO_ERROR;
    moved->setTime(static_cast<UDate>(millis.time_since_epoch().count()), status);
    moved->add(field, amount, status);
    const UDate back = moved->getTime(status);
    if (U_FAILURE(status))
        return std::nullopt;
    return system_clock::time_point(
               duration_cast<system_clock::duration>(milliseconds(static_cast<std::int64_t>(back)))) +
           rest;
}

std::unique_ptr<icu::Calendar> currentCalendar() {
    UErrorCode status = U_ZERO_ERROR;
    auto calendar = std::make_unique<icu::GregorianCalendar>(status);
    if (U_FAILURE(status))
        return nullptr;
    return calendar;
}

} // namespace CleanerCore
