#include "CleanerCore/Display/PercentText.hpp"

#include <unicode/locid.h>
#include <unicode/numfmt.h>
#include <unicode/unistr.h>

#include <memory>

namespace CleanerCore::PercentText {

std::string percent(double fraction, const std::string& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createPercentInstance(icu::Locale::forLanguageTag(locale, status), status));
    if (U_FAILURE(status) || !format) {
        status = U_ZERO_ERROR;
        format.reset(icu::NumberFormat::createPercentInstance(icu::Locale::getRoot(), status));
        if (U_FAILURE(status) || !format)
            return std::to_string(static_cast<long long>(fraction * 100 + 0.5)) + "%";
    }
    format->setMaximumFractionDigits(0);
    icu::UnicodeString text;
    format->format(fraction, text);
    std::string out;
    text.toUTF8String(out);
    return out;
}

std::string share(std::int64_t part, std::int64_t whole, const std::string& locale) {
    if (whole < 1)
        return percent(0, locale);
    const double fraction = static_cast<double>(part) / static_cast<double>(whole);
    if (fraction > 0 && fraction < 0.01)
        return "<" + percent(0.01, locale);
    return percent(fraction, locale);
}

} // namespace CleanerCore::PercentText
