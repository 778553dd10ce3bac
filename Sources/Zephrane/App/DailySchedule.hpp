#pragma once

#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>

// A once-a-day gate over a date kept in the settings. The clock is a parameter so that the gate
// can be driven by a fixed one.
class DailySchedule {
public:
    static constexpr qint64 interval = 86'400;

    explicit DailySchedule(QString key, std::function<QDateTime()> now = &QDateTime::currentDateTimeUtc);

    std::optional<QDateTime> lastRun() const;
    void markRun();
    // Runs `body` unless the last run is less than a day away in either direction, so a clock
    // turned back does not run it again early. The day counts only when `body` says so.
    bool runIfDue(const std::function<bool()>& body);

private:
    QString key;
    std::function<QDateTime()> now;
};
