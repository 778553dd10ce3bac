#include "CleanerCore/Display/ByteDisplay.hpp"

#include <gtest/gtest.h>

using namespace CleanerCore;

namespace {

struct Row {
    std::int64_t bytes;
    const char* locale;
    const char* number;
    const char* integer;
    const char* fraction; // nullptr: none
    const char* unit;
    const char* spoken;
};

class ByteDisplayRows : public testing::TestWithParam<Row> {};

} // namespace

TEST_P(ByteDisplayRows, SplitsNumberAndUnitForTheLocale) {
    const Row& row = GetParam();
    const ByteDisplay display(row.bytes, row.locale);
    EXPECT_EQ(display.number, row.number);
    EXPECT_EQ(display.integerPart, row.integer);
    EXPECT_EQ(display.fractionPart, row.fraction ? std::optional<std::string>(row.fraction) : std::nullopt);
    EXPECT_EQ(display.unit, row.unit);
    EXPECT_EQ(display.spoken, row.spoken);
    EXPECT_TRUE(display.formatted.starts_with(display.number));
    EXPECT_TRUE(display.formatted.ends_with(display.unit));
}

INSTANTIATE_TEST_SUITE_P(English, ByteDisplayRows,
                         testing::Values(Row{0, "en", "0", "0", nullptr, "bytes", "0 bytes"},
                                         Row{1, "en", "1", "1", nullptr, "byte", "1 byte"},
                                         Row{999, "en", "999", "999", nullptr, "bytes", "999 bytes"},
                                         Row{1'000, "en", "1", "1", nullptr, "kB", "1 kilobyte"},
                                         Row{1'500, "en", "2", "2", nullptr, "kB", "2 kilobytes"},
                                         Row{999'499, "en", "999", "999", nullptr, "kB", "999 kilobytes"},
                                         Row{999'500, "en", "1", "1", nullptr, "MB", "1 megabyte"},
                                         Row{1'234'567, "en", "1.2", "1", "2", "MB", "1.2 megabytes"},
                                         Row{2'000'000, "en", "2", "2", nullptr, "MB", "2 megabytes"},
                                         Row{1'234'567'890, "en", "1.23", "1", "23", "GB", "1.23 gigabytes"},
                                         Row{999'999'999'999, "en", "1", "1", nullptr, "TB", "1 terabyte"},
                                         Row{4'560'000'000'000'000, "en", "4.56", "4", "56", "PB",
                                             "4.56 petabytes"},
                                         Row{9'223'372'036'854'775'807, "en", "9,223.37", "9,223", "37", "PB",
                                             "9,223.37 petabytes"},
                                         Row{1'234'567, "en_US", "1.2", "1", "2", "MB", "1.2 megabytes"}));

INSTANTIATE_TEST_SUITE_P(Portuguese, ByteDisplayRows,
                         testing::Values(Row{0, "pt-BR", "0", "0", nullptr, "byte", "0 byte"},
                                         Row{1'234'567, "pt-BR", "1,2", "1", "2", "MB", "1,2 megabyte"},
                                         Row{12'500'000'000, "pt-BR", "12,5", "12", "5", "GB",
                                             "12,5 gigabytes"},
                                         Row{1'234'560'000'000'000'000, "pt_BR", "1.234,56", "1.234", "56",
                                             "PB", "1.234,56 petabytes"}));

TEST(ByteDisplay, KnowsTheLocalesDecimalSeparatorAndTrimsNoBreakSpaces) {
    EXPECT_EQ(ByteDisplay(1, "en").decimalSeparator, ".");
    EXPECT_EQ(ByteDisplay(1, "pt-BR").decimalSeparator, ",");
    // French puts a narrow no-break space between number and unit, and groups with one as well.
    const ByteDisplay french(1'234'500'000'000'000'000, "fr");
    EXPECT_EQ(french.unit, "Po");
    EXPECT_EQ(french.fractionPart, "5");
    EXPECT_EQ(french.integerPart, "1\u202f234");
}
