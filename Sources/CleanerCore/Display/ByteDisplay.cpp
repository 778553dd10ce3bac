#include "CleanerCore/Display/ByteDisplay.hpp"

#include "CleanerCore/Display/ByteFormatter.hpp"

#include <array>
#include <cmath>
#include <cstdlib>

#include <unicode/dcfmtsym.h>
#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <unicode/uchar.h>

namespace CleanerCore {
namespace {

struct Unit {
    icu::MeasureUnit (*measure)();
    int fractionDigits;
};

const std::array<Unit, 6> kUnits{{{icu::MeasureUnit::getByte, 0},
                                  {icu::MeasureUnit::getKilobyte, 0},
                                  {icu::MeasureUnit::getMegabyte, 1},
                                  {icu::MeasureUnit::getGigabyte, 2},
                                  {icu::MeasureUnit::getTerabyte, 2},
                                  {icu::MeasureUnit::getPetabyte, 2}}};

std::string utf8(const icu::UnicodeString& text) {
    std::string out;
    text.toUTF8String(out);
    return out;
}

std::string format(const icu::Locale& locale, double value, const Unit& unit, UNumberUnitWidth width) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text = icu::number::NumberFormatter::withLocale(locale)
                                        .unit(unit.measure())
                                        .unitWidth(width)
                                        .precision(icu::number::Precision::maxFraction(unit.fractionDigits))
                                        .roundingMode(UNUM_ROUND_HALFUP)
                                        .formatDouble(value, status)
                                        .toString(status);
    return U_SUCCESS(status) ? utf8(text) : std::string{};
}

bool isSpaceToTrim(UChar32 c) {
    return u_isWhitespace(c) || c == 0x00A0 || c == 0x202F || c == 0x2009;
}

// The number as a plain double: grouping dropped, the decimal separator made a point, and digits of
// any script read by their value.
std::optional<double> plainValue(const icu::UnicodeString& integer, const icu::UnicodeString& fraction,
                                 const icu::UnicodeString& grouping) {
    std::string text;
    const auto append = [&](const icu::UnicodeString& part) {
        for (int32_t i = 0; i < part.length();) {
            const UChar32 c = part.char32At(i);
            if (!grouping.isEmpty() && part.compare(i, grouping.length(), grouping) == 0) {
                i += grouping.length();
                continue;
            }
            const int32_t digit = u_charDigitValue(c);
            if (digit < 0 || digit > 9)
                return false;
            text += char('0' + digit);
            i += U16_LENGTH(c);
        }
        return true;
    };
    if (!append(integer))
        return std::nullopt;
    if (!fraction.isEmpty()) {
        text += '.';
        if (!append(fraction))
            return std::nullopt;
    }
    if (text.empty() || text == ".")
        return std::nullopt;
    return std::strtod(text.c_str(), nullptr);
}

} // namespace

ByteDisplay::ByteDisplay(std::int64_t byteCount, std::string localeIdentifier)
    : bytes(byteCount), locale(std::move(localeIdentifier)) {
    const icu::Locale icuLocale = icu::Locale::createCanonical(locale.c_str());
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols(icuLocale, status);
    const icu::UnicodeString decimal =
        symbols.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol);
    const icu::UnicodeString grouping =
        symbols.getConstSymbol(icu::DecimalFormatSymbols::kGroupingSeparatorSymbol);
    decimalSeparator = utf8(decimal);

    const std::size_t index = ByteFormatter::unitIndex(bytes);
    const Unit& chosen = kUnits[index];
    formatted = ByteFormatter(locale).formatted(bytes);

    const icu::UnicodeString text = icu::UnicodeString::fromUTF8(formatted);
    // A separator belongs to the number only when a digit follows it: French groups with the same
    // narrow no-break space that it puts before the unit.
    const auto separatorAt = [&](int32_t at, const icu::UnicodeString& separator) {
        return !separator.isEmpty() && text.compare(at, separator.length(), separator) == 0 &&
               at + separator.length() < text.length() && u_isdigit(text.char32At(at + separator.length()));
    };
    int32_t end = 0;
    while (end < text.length()) {
        if (separatorAt(end, decimal))
            end += decimal.length();
        else if (separatorAt(end, grouping))
            end += grouping.length();
        else if (u_isdigit(text.char32At(end)))
            end += U16_LENGTH(text.char32At(end));
        else
            break;
    }
    const icu::UnicodeString numberText = text.tempSubString(0, end);
    int32_t unitStart = end, unitEnd = text.length();
    while (unitStart < unitEnd && isSpaceToTrim(text.char32At(unitStart)))
        unitStart += U16_LENGTH(text.char32At(unitStart));
    while (unitEnd > unitStart && isSpaceToTrim(text.char32At(unitEnd - 1)))
        --unitEnd;
    number = utf8(numberText);
    unit = utf8(text.tempSubString(unitStart, unitEnd - unitStart));

    const int32_t decimalAt = decimal.isEmpty() ? -1 : numberText.indexOf(decimal);
    icu::UnicodeString integerText = numberText, fractionText;
    if (decimalAt >= 0) {
        integerText = numberText.tempSubString(0, decimalAt);
        fractionText = numberText.tempSubString(decimalAt + decimal.length());
        fractionPart = utf8(fractionText);
    }
    integerPart = utf8(integerText);

    spoken = formatted;
    if (const auto plain = plainValue(integerText, fractionText, grouping)) {
        const std::string words =
            format(icuLocale, bytes < 0 ? -*plain : *plain, chosen, UNUM_UNIT_WIDTH_FULL_NAME);
        if (!words.empty())
            spoken = words;
    }
}

} // namespace CleanerCore
