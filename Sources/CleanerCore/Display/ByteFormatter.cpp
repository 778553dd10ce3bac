#include "CleanerCore/Display/ByteFormatter.hpp"

#include <cmath>
#include <optional>

#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>

namespace CleanerCore {
namespace {

struct Unit {
    icu::MeasureUnit (*measure)();
    int fractionDigits;
};

const std::array<Unit, 6> units{{{icu::MeasureUnit::getByte, 0},
                                 {icu::MeasureUnit::getKilobyte, 0},
                                 {icu::MeasureUnit::getMegabyte, 1},
                                 {icu::MeasureUnit::getGigabyte, 2},
                                 {icu::MeasureUnit::getTerabyte, 2},
                                 {icu::MeasureUnit::getPetabyte, 2}}};

double roundedHalfUp(double value, int fractionDigits) {
    const double scale = std::pow(10.0, fractionDigits);
    return std::floor(value * scale + 0.5) / scale;
}

} // namespace

struct ByteFormatter::Formatters {
    icu::Locale locale;
    std::array<std::optional<icu::number::LocalizedNumberFormatter>, units.size()> byUnit;
};

ByteFormatter::ByteFormatter(const std::string& locale)
    : formatters(std::make_unique<Formatters>(Formatters{icu::Locale::createCanonical(locale.c_str()), {}})) {}

ByteFormatter::~ByteFormatter() = default;

std::size_t ByteFormatter::unitIndex(std::int64_t bytes) {
    const double magnitude = std::fabs(static_cast<double>(bytes));
    std::size_t index = 0;
    while (index + 1 < units.size() &&
           roundedHalfUp(magnitude / std::pow(1000.0, double(index)), units[index].fractionDigits) >= 1000.0)
        ++index;
    return index;
}

double ByteFormatter::valueIn(std::int64_t bytes, std::size_t unit) {
    return static_cast<double>(bytes) / std::pow(1000.0, double(unit));
}

std::string ByteFormatter::formatted(std::int64_t bytes) const {
    const std::size_t index = unitIndex(bytes);
    auto& formatter = formatters->byUnit[index];
    if (!formatter)
        // Bytes take their full word ("500 bytes"), the larger units their symbol.
        formatter = icu::number::NumberFormatter::withLocale(formatters->locale)
                        .unit(units[index].measure())
                        .unitWidth(index == 0 ? UNUM_UNIT_WIDTH_FULL_NAME : UNUM_UNIT_WIDTH_SHORT)
                        .precision(icu::number::Precision::maxFraction(units[index].fractionDigits))
                        .roundingMode(UNUM_ROUND_HALFUP);
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text = formatter->formatDouble(valueIn(bytes, index), status).toString(status);
    std::string out;
    if (U_SUCCESS(status))
        text.toUTF8String(out);
    return out;
}

} // namespace CleanerCore
