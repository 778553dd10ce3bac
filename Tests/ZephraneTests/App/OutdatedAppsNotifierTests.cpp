#include "App/OutdatedAppsNotifier.hpp"
#include "App/Preferences.hpp"
#include "Modules/Updates/UpdatesModel.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>

using CleanerCore::AppUpdate;
using CleanerCore::AppUpdateSource;

namespace {

const QString notificationsName = QStringLiteral("org.freedesktop.Notifications");
const QString notificationsPath = QStringLiteral("/org/freedesktop/Notifications");

// A session bus of the test's own, so neither the desktop's notices nor its services are touched.
struct PrivateBus {
    QProcess daemon;
    QString address;

    PrivateBus() {
        daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                     QStringLiteral("--print-address")});
        if (daemon.waitForStarted(5000) && daemon.waitForReadyRead(5000))
            address = QString::fromUtf8(daemon.readLine()).trimmed();
    }
    ~PrivateBus() {
        daemon.kill();
        daemon.waitForFinished(5000);
    }
    QDBusConnection connect(const QString& name) const {
        return QDBusConnection::connectToBus(address, name);
    }
};

// Stands in for the desktop's notification service: answers Notify with an id, keeping the id
// it was asked to replace, and records every notice.
struct FakeNotifications : QDBusVirtualObject {
    struct Notice {
        uint replacesId;
        QString summary;
        QStringList actions;
    };
    std::vector<Notice> notices;
    uint nextId = 41;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != QLatin1String("Notify"))
            return false;
        const QList<QVariant> args = message.arguments();
        const uint replaces = args.value(1).toUInt();
        notices.push_back({replaces, args.value(3).toString(), args.value(5).toStringList()});
        connection.send(message.createReply(QVariant::fromValue(replaces ? replaces : nextId++)));
        return true;
    }
};

AppUpdate offer(const std::string& name) {
    AppUpdate update;
    update.appURL = CleanerCore::URL::file("/Applications/" + name + ".app");
    update.name = name;
    update.caskToken = name;
    update.currentVersion = "1.0";
    update.newVersion = "2.0";
    update.source = AppUpdateSource::homebrew;
    return update;
}

struct Notifier : testing::Test {
    PrivateBus bus;
    QDBusConnection client = bus.connect(QStringLiteral("notifier-client"));
    QDBusConnection service = bus.connect(QStringLiteral("notifier-service"));
    FakeNotifications fake;
    Preferences preferences;
    std::vector<AppUpdate> offered;
    std::atomic<int> scans = 0;
    QDateTime now = QDateTime(QDate(2026, 6, 10), QTime(9, 0), Qt::UTC);
    std::unique_ptr<UpdatesModel> updates;
    std::unique_ptr<OutdatedAppsNotifier> notifier;
    QmlTestSupport::AnnouncementLog announced;

    void SetUp() override {
        ASSERT_FALSE(bus.address.isEmpty());
        ASSERT_TRUE(client.isConnected());
        QSettings().clear();
        UpdatesModel::Engine engine;
        engine.apps = [this] {
            ++scans;
            return std::vector<CleanerCore::InstalledApp>(1);
        };
        engine.find = [this](AppUpdateSource source, const auto&, std::stop_token) {
            return source == AppUpdateSource::homebrew ? offered : std::vector<AppUpdate>{};
        };
        engine.now = [this] { return now; };
        updates = std::make_unique<UpdatesModel>(preferences, engine);
        notifier = std::make_unique<OutdatedAppsNotifier>(
            preferences, *updates, client,
            DailySchedule(QString::fromLatin1(OutdatedAppsNotifier::lastRunKey), [this] { return now; }));
    }
    void TearDown() override {
        notifier.reset();
        updates.reset();
        service.unregisterService(notificationsName);
        QDBusConnection::disconnectFromBus(QStringLiteral("notifier-client"));
        QDBusConnection::disconnectFromBus(QStringLiteral("notifier-service"));
        QSettings().clear();
    }

    void runService() {
        ASSERT_TRUE(service.registerVirtualObject(notificationsPath, &fake));
        ASSERT_TRUE(service.registerService(notificationsName));
    }
    void waitForScan() {
        ASSERT_TRUE(QTest::qWaitFor([&] { return updates->pendingCount().has_value(); }, 20000));
    }
};

TEST_F(Notifier, WithoutAServiceTurningOnRevertsWithAPlainMessage) {
    notifier->start();
    EXPECT_FALSE(notifier->canNotify());
    preferences.setNotifyOutdatedApps(true);
    EXPECT_FALSE(preferences.notifyOutdatedApps());
    EXPECT_FALSE(notifier->isScheduled());
    EXPECT_EQ(announced.said, QStringList{qtTrId("updates.notify.unavailable")});
}

TEST_F(Notifier, ANewNoticeReplacesThePreviousAndAClickAsksToOpen) {
    runService();
    QSignalSpy posted(notifier.get(), &OutdatedAppsNotifier::posted);
    notifier->post(3);
    ASSERT_TRUE(posted.wait(5000));
    notifier->post(5);
    ASSERT_TRUE(posted.wait(5000));
    ASSERT_EQ(fake.notices.size(), 2u);
    EXPECT_EQ(fake.notices[0].replacesId, 0u);
    EXPECT_EQ(fake.notices[1].replacesId, 41u);
    EXPECT_EQ(fake.notices[1].summary, qtTrId("menubar.notify.title").arg(5));
    EXPECT_TRUE(fake.notices[1].actions.contains(QStringLiteral("default")));

    QSignalSpy open(notifier.get(), &OutdatedAppsNotifier::openRequested);
    auto invoked = [&](uint id) {
        service.send(
            QDBusMessage::createSignal(notificationsPath, notificationsName, QStringLiteral("ActionInvoked"))
            << id << QStringLiteral("default"));
    };
    invoked(7); // another program's notice
    invoked(41);
    ASSERT_TRUE(open.wait(5000));
    EXPECT_EQ(open.size(), 1);
}

TEST_F(Notifier, ChecksScanOnceADayAndPostOnlyWithSomethingPending) {
    runService();
    notifier->start();
    EXPECT_FALSE(notifier->checkIfDue()); // the setting is off
    preferences.setNotifyOutdatedApps(true);
    EXPECT_TRUE(preferences.notifyOutdatedApps());
    EXPECT_TRUE(notifier->isScheduled());
    // Turning on checks at once; with nothing pending no notice goes out, yet the day counts.
    waitForScan();
    EXPECT_FALSE(notifier->checkIfDue());
    EXPECT_EQ(scans, 1);
    EXPECT_TRUE(fake.notices.empty());

    now = now.addSecs(DailySchedule::interval);
    offered = {offer("Alpha"), offer("Beta")};
    QSignalSpy posted(notifier.get(), &OutdatedAppsNotifier::posted);
    EXPECT_TRUE(notifier->checkIfDue());
    ASSERT_TRUE(posted.wait(20000));
    EXPECT_EQ(scans, 2);
    ASSERT_EQ(fake.notices.size(), 1u);
    EXPECT_EQ(fake.notices[0].summary, qtTrId("menubar.notify.title").arg(2));
    preferences.setNotifyOutdatedApps(false);
    EXPECT_FALSE(notifier->isScheduled());
}

} // namespace
