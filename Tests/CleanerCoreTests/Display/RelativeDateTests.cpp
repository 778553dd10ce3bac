#include "CleanerCore/Display/RelativeDate.hpp"

#include <gtest/gtest.h>

using namespace CleanerCore;
using namespace std::chrono;

TEST(RelativeDate, SaysTheLargestWholeUnitWithNumbersInBothLanguages) {
    // Noon, mid-month: no day or month boundary interferes with the steps below.
    const RelativeDate::Clock::time_point now = sys_days{year{2026} / 3 / 15} + hours{12};
    struct Row {
        RelativeDate::Clock::duration offset;
        const char* english;
        const char* portuguese;
    };
    const Row rows[] = {
        {seconds{0}, "in 0 seconds", "em 0 segundo"},
        {-seconds{30}, "30 seconds ago", "há 30 segundos"},
        {-minutes{5}, "5 minutes ago", "há 5 minutos"},
        {hours{3}, "in 3 hours", "em 3 horas"},
        {-days{1}, "1 day ago", "há 1 dia"},
        {-days{2}, "2 days ago", "há 2 dias"},
        {-days{15}, "2 weeks ago", "há 2 semanas"},
        {-days{62}, "2 months ago", "há 2 meses"},
        {days{800}, "in 2 years", "em 2 anos"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(RelativeDate::string(now + row.offset, now, "en"), row.english);
        EXPECT_EQ(RelativeDate::string(now + row.offset, now, "pt-BR"), row.portuguese);
    }
}
