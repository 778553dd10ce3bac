#include "App/DailySchedule.hpp"

#include <QSettings>

#include <cstdlib>

DailySchedule::DailySchedule(QString key, std::function<QDateTime()> now)
    : key(std::move(key)), now(std::move(now)) {}

std::optional<QDateTime> DailySchedule::lastRun() const {
    const QDateTime stored = QSettings().value(key).toDateTime();
    if (!stored.isValid())
        return std::nullopt;
    return stored;
}

void DailySchedule::markRun() {
    QSettings().setValue(key, now());
}

bool DailySchedule::runIfDue(const std::function<bool()>& body) {
    if (const auto last = lastRun(); last && std::abs(last->secsTo(now())) < interval)
        return false;
    if (body())
        markRun();
    return true;
}
