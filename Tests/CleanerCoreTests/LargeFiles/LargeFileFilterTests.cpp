#include "CleanerCore/LargeFiles/KindOption.hpp"
#include "CleanerCore/LargeFiles/LargeFileFilter.hpp"
#include "CleanerCore/LargeFiles/LargeFileSort.hpp"
#include "CleanerCore/LargeFiles/SizeOption.hpp"
#include "Mapped.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unicode/gregocal.h>
#include <unicode/timezone.h>

using namespace CleanerCore;
using namespace std::chrono;
using Clock = system_clock;

namespace {

std::unique_ptr<icu::Calendar> calendarIn(const char* zone) {
    UErrorCode status = U_ZERO_ERROR;
    auto calendar = std::make_unique<icu::GregorianCalendar>(icu::TimeZone::createTimeZone(zone), status);
    EXPECT_TRUE(U_SUCCESS(status));
    return calendar;
}

Clock::time_point at(int year, unsigned month, unsigned day, hours hour = hours(12)) {
    return sys_days(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day)) + hour;
}

LargeFile file(std::string path, std::int64_t size, std::optional<Clock::time_point> used = std::nullopt,
               FileKind kind = FileKind::other) {
    return LargeFile{URL::file(std::move(path)), size, used, kind, false};
}

std::vector<std::string> names(const std::vector<LargeFile>& files) {
    return TestSupport::mapped(files, [](const LargeFile& file) { return file.url.path(); });
}

} // namespace

TEST(LargeFileAge, CutoffsGoBackByTheCalendar) {
    const auto utc = calendarIn("UTC");
    const Clock::time_point leapDay = at(2024, 2, 29);
    EXPECT_EQ(cutoff(LargeFileAge::any, leapDay, *utc), std::nullopt);
    EXPECT_EQ(cutoff(LargeFileAge::oneYear, leapDay, *utc), at(2023, 2, 28));
    EXPECT_EQ(cutoff(LargeFileAge::sixMonths, leapDay, *utc), at(2023, 8, 29));
    EXPECT_EQ(cutoff(LargeFileAge::threeMonths, leapDay, *utc), at(2023, 12, 1));
    EXPECT_EQ(cutoff(LargeFileAge::sixMonths, at(2024, 8, 31), *utc), at(2024, 2, 29));

    // Ninety calendar days across a change to summer time are one hour short of 90 × 24 hours.
    const auto berlin = calendarIn("Europe/Berlin");
    const Clock::time_point april = at(2024, 4, 15, hours(10)); // noon in Berlin
    EXPECT_EQ(cutoff(LargeFileAge::threeMonths, april, *berlin), at(2024, 1, 16, hours(11)));

    // Below the calendar's milliseconds nothing is lost, so "exactly at the cutoff" stays exact.
    const Clock::time_point fine = leapDay + nanoseconds(123456789);
    EXPECT_EQ(cutoff(LargeFileAge::oneYear, fine, *utc), at(2023, 2, 28) + nanoseconds(123456789));
}

TEST(LargeFileFilter, SizeKindAndAgeAllDecide) {
    const auto utc = calendarIn("UTC");
    const Clock::time_point now = at(2024, 2, 29);
    const Clock::time_point yearAgo = at(2023, 2, 28);

    const LargeFileFilter bySize{100, LargeFileAge::any, {}};
    EXPECT_TRUE(bySize.matches(file("/h/exact", 100), now, *utc));
    EXPECT_FALSE(bySize.matches(file("/h/below", 99), now, *utc));

    const LargeFileFilter videos{0, LargeFileAge::any, KindOption{FileKind::video}.kinds()};
    EXPECT_TRUE(videos.matches(file("/h/a", 1, std::nullopt, FileKind::video), now, *utc));
    EXPECT_FALSE(videos.matches(file("/h/a", 1, std::nullopt, FileKind::audio), now, *utc));
    for (FileKind kind : allFileKinds)
        EXPECT_TRUE(bySize.matches(file("/h/a", 100, std::nullopt, kind), now, *utc)) << rawValue(kind);

    const LargeFileFilter old{0, LargeFileAge::oneYear, {}};
    EXPECT_TRUE(old.matches(file("/h/undated", 1), now, *utc));
    EXPECT_FALSE(old.matches(file("/h/atCutoff", 1, yearAgo), now, *utc));
    EXPECT_TRUE(old.matches(file("/h/justBefore", 1, yearAgo - nanoseconds(1)), now, *utc));
    EXPECT_FALSE(old.matches(file("/h/recent", 1, now - hours(1)), now, *utc));

    const std::vector<LargeFile> files{file("/h/c", 300, yearAgo - hours(1)), file("/h/a", 50),
                                       file("/h/b", 200, now), file("/h/d", 400)};
    EXPECT_THAT(names(LargeFileFilter{100, LargeFileAge::oneYear, {}}.apply(files, now, *utc)),
                testing::ElementsAre("/h/c", "/h/d"));
}

TEST(LargeFileSort, EachModeThenNamesThenPaths) {
    const Clock::time_point t = at(2024, 1, 1);
    const std::vector<LargeFile> files{file("/h/x/file 10", 5, t), file("/h/y/file 9", 5, t + hours(1)),
                                       file("/h/b/same", 5),       file("/h/a/same", 5, t - hours(1)),
                                       file("/h/z/Big", 9, t),     file("/h/z/apple", 1, t)};

    EXPECT_THAT(names(sorted(LargeFileSort::size, files, "en")),
                testing::ElementsAre("/h/z/Big", "/h/y/file 9", "/h/x/file 10", "/h/a/same", "/h/b/same",
                                     "/h/z/apple"));
    EXPECT_THAT(names(sorted(LargeFileSort::lastUsed, files, "en")),
                testing::ElementsAre("/h/b/same", "/h/a/same", "/h/z/apple", "/h/z/Big", "/h/x/file 10",
                                     "/h/y/file 9"));
    EXPECT_THAT(names(sorted(LargeFileSort::name, files, "en")),
                testing::ElementsAre("/h/z/apple", "/h/z/Big", "/h/y/file 9", "/h/x/file 10", "/h/a/same",
                                     "/h/b/same"));
    // The input's order never shows through.
    std::vector<LargeFile> reversed(files.rbegin(), files.rend());
    for (LargeFileSort sort : allLargeFileSorts)
        EXPECT_EQ(sorted(sort, reversed, "en"), sorted(sort, files, "en")) << rawValue(sort);
}
