#include "App/OutdatedAppsNotifier.hpp"

#include "App/Announcer.hpp"
#include "App/Preferences.hpp"
#include "Modules/Updates/UpdatesModel.hpp"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFutureWatcher>

namespace {
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString interface = QStringLiteral("org.freedesktop.Notifications");
const QString openAction = QStringLiteral("default");
} // namespace

OutdatedAppsNotifier::OutdatedAppsNotifier(Preferences& preferences, UpdatesModel& updates,
                                           QDBusConnection bus, DailySchedule daily, QObject* parent)
    : QObject(parent), preferences(preferences), updates(&updates), bus(std::move(bus)),
      daily(std::move(daily)) {
    // An hourly question needs no precision; a coarse timer lets the system batch the wake-up.
    timer.setTimerType(Qt::VeryCoarseTimer);
    timer.setInterval(checkIntervalMs);
    connect(&timer, &QTimer::timeout, this, [this] { checkIfDue(); });
}

void OutdatedAppsNotifier::start() {
    connect(&preferences, &Preferences::notifyOutdatedAppsChanged, this,
            [this] { settingChanged(preferences.notifyOutdatedApps()); });
    schedule(preferences.notifyOutdatedApps());
}

void OutdatedAppsNotifier::schedule(bool on) {
    timer.stop();
    if (on) {
        timer.start();
        // A program started once a day would otherwise never reach its first hourly tick.
        QTimer::singleShot(0, this, [this] { checkIfDue(); });
    }
}

void OutdatedAppsNotifier::settingChanged(bool on) {
    if (on && !canNotify()) {
        preferences.setNotifyOutdatedApps(false);
        Announcer::announce(qtTrId("updates.notify.unavailable"));
        schedule(false);
        return;
    }
    schedule(on);
}

bool OutdatedAppsNotifier::canNotify() const {
    if (!bus.isConnected() || !bus.interface())
        return false;
    return bus.interface()->isServiceRegistered(service).value();
}

bool OutdatedAppsNotifier::checkIfDue() {
    if (!updates || !preferences.notifyOutdatedApps() || !canNotify())
        return false;
    return daily.runIfDue([this] {
        auto* watcher = new QFutureWatcher<void>(this);
        connect(watcher, &QFutureWatcher<void>::finished, this, [this, watcher] {
            watcher->deleteLater();
            if (!updates)
                return;
            if (const auto pending = updates->pendingCount(); pending && *pending > 0)
                post(*pending);
        });
        watcher->setFuture(updates->scan());
        // The day counts as looked at whatever the scan finds.
        return true;
    });
}

void OutdatedAppsNotifier::post(int count) {
    if (!listening) {
        listening = bus.connect(service, path, interface, QStringLiteral("ActionInvoked"), this,
                                SLOT(actionInvoked(uint, QString)));
    }
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Notify"));
    call << QStringLiteral("Zephrane") << noticeId << QStringLiteral("zephrane")
         << qtTrId("menubar.notify.title").arg(count) << qtTrId("menubar.notify.body")
         << QStringList{openAction, qtTrId("menubar.notify.action")} << QVariantMap{} << -1;
    // Asynchronous: a slow or hung notification service must not stall the window.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        const QDBusPendingReply<uint> reply = *done;
        if (!reply.isError())
            noticeId = reply.value();
        emit posted();
    });
}

void OutdatedAppsNotifier::actionInvoked(uint id, const QString& action) {
    if (id == noticeId && noticeId != 0 && action == openAction)
        emit openRequested();
}
