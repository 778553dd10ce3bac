#include "CleanerCore/Display/RelativeDate.hpp"

#include <array>
#include <memory>

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/reldatefmt.h>

namespace CleanerCore::RelativeDate {

std::string string(Clock::time_point date, Clock::time_point reference, const std::string& locale) {
    const icu::Locale icuLocale = icu::Locale::createCanonical(locale.c_str());
    UErrorCode status = U_ZERO_ERROR;
    const auto millis = [](Clock::time_point when) {
        return static_cast<UDate>(
            std::chrono::duration_cast<std::chrono::milliseconds>(when.time_since_epoch()).count());
    };
    std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(icuLocale, status));
    icu::RelativeDateTimeFormatter formatter(icuLocale, nullptr, UDAT_STYLE_LONG,
                                             UDISPCTX_CAPITALIZATION_NONE, status);
    if (U_FAILURE(status))
        return {};
    calendar->setTime(millis(reference), status);

    struct Step {
        UCalendarDateFields field;
        URelativeDateTimeUnit unit;
    };
    constexpr std::array<Step, 7> steps{{{UCAL_YEAR, UDAT_REL_UNIT_YEAR},
                                         {UCAL_MONTH, UDAT_REL_UNIT_MONTH},
                                         {UCAL_WEEK_OF_YEAR, UDAT_REL_UNIT_WEEK},
                                         {UCAL_DATE, UDAT_REL_UNIT_DAY},
                                         {UCAL_HOUR_OF_DAY, UDAT_REL_UNIT_HOUR},
                                         {UCAL_MINUTE, UDAT_REL_UNIT_MINUTE},
                                         {UCAL_SECOND, UDAT_REL_UNIT_SECOND}}};
    // Each difference moves the calendar on by that amount, so the first one that is not zero is
    // the largest whole unit between the two dates.
    int32_t amount = 0;
    URelativeDateTimeUnit unit = UDAT_REL_UNIT_SECOND;
    for (const Step& step : steps) {
        amount = calendar->fieldDifference(millis(date), step.field, status);
        if (U_FAILURE(status))
            return {};
        if (amount != 0) {
            unit = step.unit;
            break;
        }
    }
    icu::UnicodeString text;
    formatter.formatNumeric(static_cast<double>(amount), unit, text, status);
    std::string out;
    if (U_SUCCESS(status))
        text.toUTF8String(out);
    return out;
}

} // namespace CleanerCore::RelativeDate
