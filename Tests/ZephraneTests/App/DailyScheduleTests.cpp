#include "App/DailySchedule.hpp"

#include <QSettings>

#include <gtest/gtest.h>

namespace {

TEST(DailySchedule, RunsOnceADayAndNotAgainWhenTheClockIsTurnedBackALittle) {
    const QString key = QStringLiteral("test.daily.lastRun");
    QSettings().remove(key);
    QDateTime now(QDate(2026, 6, 10), QTime(9, 0), Qt::UTC);
    DailySchedule daily(key, [&] { return now; });
    int runs = 0;
    auto runAfter = [&](qint64 seconds, bool counts = true) {
        QSettings().setValue(key, now.addSecs(-seconds));
        return daily.runIfDue([&] { return ++runs, counts; });
    };

    EXPECT_TRUE(daily.runIfDue([&] { return ++runs, true; })); // never run
    EXPECT_EQ(daily.lastRun(), now);
    EXPECT_FALSE(runAfter(86'399));
    EXPECT_TRUE(runAfter(86'400));
    EXPECT_FALSE(runAfter(-86'399));
    EXPECT_TRUE(runAfter(-86'400));
    // A run that does not count leaves the day due.
    EXPECT_TRUE(runAfter(2 * 86'400, false));
    EXPECT_EQ(daily.lastRun(), now.addSecs(-2 * 86'400));
    EXPECT_EQ(runs, 4);
    QSettings().remove(key);
}

} // namespace
