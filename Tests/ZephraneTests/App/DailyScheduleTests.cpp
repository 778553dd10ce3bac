#include "App/DailySchedule.hpp"

#include <QSettings>

#include <gtest/gtest.h>

namespace {

struct Daily : testing::Test {
    const QString key = QStringLiteral("test.daily.lastRun");
    QDateTime now = QDateTime(QDate(2026, 6, 10), QTime(9, 0), Qt::UTC);
    DailySchedule daily{key, [this] { return now; }};
    int runs = 0;

    void SetUp() override { QSettings().remove(key); }
    void TearDown() override { QSettings().remove(key); }

    bool runAfter(qint64 secondsSinceLastRun, bool counts = true) {
        QSettings().setValue(key, now.addSecs(-secondsSinceLastRun));
        return daily.runIfDue([&] {
            ++runs;
            return counts;
        });
    }
};

TEST_F(Daily, IsDueWithoutAStoredDateAndRemembersTheRun) {
    EXPECT_FALSE(daily.lastRun());
    EXPECT_TRUE(daily.runIfDue([&] { return ++runs, true; }));
    EXPECT_EQ(daily.lastRun(), now);
    // The same moment again: a day has not passed.
    EXPECT_FALSE(daily.runIfDue([&] { return ++runs, true; }));
    EXPECT_EQ(runs, 1);
}

TEST_F(Daily, TurnsDueExactlyOnceADayHasPassedInEitherDirection) {
    EXPECT_FALSE(runAfter(86'399));
    EXPECT_TRUE(runAfter(86'400));
    // A clock turned back a little must not run it again early, but a full day back does.
    EXPECT_FALSE(runAfter(-86'399));
    EXPECT_TRUE(runAfter(-86'400));
    EXPECT_EQ(runs, 2);
}

TEST_F(Daily, ARunThatDoesNotCountLeavesTheDayDue) {
    EXPECT_TRUE(runAfter(2 * 86'400, false));
    EXPECT_EQ(daily.lastRun(), now.addSecs(-2 * 86'400));
    EXPECT_TRUE(daily.runIfDue([&] { return ++runs, true; }));
    EXPECT_EQ(runs, 2);
}

TEST_F(Daily, TheDateOutlivesTheSchedule) {
    daily.markRun();
    const DailySchedule later(key, [this] { return now.addSecs(3600); });
    EXPECT_EQ(later.lastRun(), now);
}

} // namespace
