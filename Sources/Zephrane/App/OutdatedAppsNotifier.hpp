#pragma once

#include "App/DailySchedule.hpp"

#include <QDBusConnection>
#include <QObject>
#include <QPointer>
#include <QTimer>

class Preferences;
class UpdatesModel;

// While the setting is on, asks hourly whether a day has passed since the last look for outdated
// apps; when it has, scans the Updates channel and, with anything pending, posts one desktop
// notice through org.freedesktop.Notifications. The notice always replaces the previous one.
class OutdatedAppsNotifier : public QObject {
    Q_OBJECT

public:
    static constexpr const char* lastRunKey = "menubar.outdatedApps.lastRun";
    static constexpr int checkIntervalMs = 3'600'000;

    OutdatedAppsNotifier(Preferences& preferences, UpdatesModel& updates, QDBusConnection bus,
                         DailySchedule daily = DailySchedule(QString::fromLatin1(lastRunKey)),
                         QObject* parent = nullptr);

    // Reads the setting, follows its changes and schedules the hourly check.
    void start();
    void schedule(bool on);
    bool isScheduled() const { return timer.isActive(); }
    uint lastNoticeId() const { return noticeId; }
    // Turning on without a notification service reverts the setting and says why.
    void settingChanged(bool on);
    // Returns whether a scan was started.
    bool checkIfDue();
    // Whether a notification service is on the session bus.
    bool canNotify() const;
    void post(int count);

signals:
    // The user clicked the notice.
    void openRequested();
    // The notification service answered a post.
    void posted();

private slots:
    void actionInvoked(uint id, const QString& action);

private:
    Preferences& preferences;
    QPointer<UpdatesModel> updates;
    QDBusConnection bus;
    DailySchedule daily;
    QTimer timer;
    uint noticeId = 0;
    bool listening = false;
};
