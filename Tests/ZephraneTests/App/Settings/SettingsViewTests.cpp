#include "App/AppLanguage.hpp"
#include "App/FullDiskAccess.hpp"
#include "App/FullDiskAccessMonitor.hpp"
#include "App/Preferences.hpp"
#include "App/ZephraneModule.hpp"
#include "Modules/Junk/SystemJunkModel.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

// The first visible item whose `name` property holds `value`, nearest the top of the tree first.
QQuickItem* findBy(QQuickWindow& window, const char* name, const QString& value) {
    QList<QQuickItem*> items{window.contentItem()};
    for (int i = 0; i < items.size(); ++i) {
        if (items[i]->property(name).toString() == value && items[i]->isVisible())
            return items[i];
        items += items[i]->childItems();
    }
    return nullptr;
}

// Keys and rows are found by what they say, as a user finds them.
QQuickItem* findItem(QQuickWindow& window, const QString& text) {
    return findBy(window, "text", text);
}

class SettingsWindow : public ::testing::Test {
protected:
    void SetUp() override {
        QSettings().remove(AppLanguages::overrideKey);
        QSettings().remove(Preferences::onboardingDoneKey);
        QSettings().remove(Preferences::accentKey);
    }
    void TearDown() override {
        window.reset();
        QmlTestSupport::useLanguage("en");
        QSettings().remove(AppLanguages::overrideKey);
        QSettings().setValue(Preferences::onboardingDoneKey, true);
        auto& monitor = FullDiskAccessMonitor::shared();
        monitor.setProbes(FullDiskAccess::probes());
        monitor.resetForTesting();
        monitor.refresh();
        warnings.expectNone();
    }

    QQuickWindow& load(const QByteArray& source = {}) {
        QQmlComponent component(&engine);
        if (source.isEmpty())
            component.loadUrl(QUrl(QString::fromLatin1(ZephraneModule::root) + "App/Settings/SettingsView.qml"));
        else
            component.setData(source, QUrl(QStringLiteral("qrc:/Zephrane/TestHost.qml")));
        if (!component.isReady())
            ADD_FAILURE() << component.errorString().toStdString();
        window.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
            source.isEmpty() ? QVariantMap{{"preferences", QVariant::fromValue(&preferences)}} : QVariantMap{})));
        EXPECT_NE(window, nullptr) << component.errorString().toStdString();
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        QmlTestSupport::settle(150);
        return *window;
    }

    QmlTestSupport::WarningCollector warnings;
    Preferences preferences;
    QQmlEngine engine;
    std::unique_ptr<QQuickWindow> window;
};

} // namespace

TEST_F(SettingsWindow, LoadsInBothLanguagesWithEveryStateShown) {
    for (const QString& language : {QStringLiteral("en"), QStringLiteral("pt-BR")}) {
        QmlTestSupport::useLanguage(language);
        QQuickWindow& view = load();
        EXPECT_EQ(view.title(), qtTrId("settings.title"));
        EXPECT_NE(findItem(view, qtTrId("settings.disk.granted")), nullptr);
        EXPECT_EQ(findItem(view, qtTrId("settings.language.relaunchNotice")), nullptr);
        QmlTestSupport::saveScreenshot(view, "settings-" + language);

        // A language other than the one the process runs in: the notice and its restart key appear.
        const bool runsInEnglish = AppLanguages::resolvedLocalization(AppLanguages::atLaunch()) == "en";
        QmlTestSupport::click(&view, findItem(view, qtTrId(runsInEnglish ? "settings.language.portuguese"
                                                                          : "settings.language.english")));
        EXPECT_NE(findItem(view, qtTrId("settings.language.relaunchNotice")), nullptr);
        EXPECT_NE(findItem(view, qtTrId("settings.language.relaunch")), nullptr);
        QSettings().remove(AppLanguages::overrideKey);

        // No grant: the lamp goes out and the key to the settings shows.
        FullDiskAccessMonitor::shared().setProbes({QStringLiteral("/nonexistent/zephrane-probe")});
        FullDiskAccessMonitor::shared().refresh();
        QmlTestSupport::settle();
        EXPECT_NE(findItem(view, qtTrId("settings.disk.off")), nullptr);
        EXPECT_NE(findItem(view, qtTrId("fda.action.openSettings")), nullptr);
        QmlTestSupport::saveScreenshot(view, "settings-notice-nogrant-" + language);
        FullDiskAccessMonitor::shared().setProbes(FullDiskAccess::probes());
        FullDiskAccessMonitor::shared().refresh();

        warnings.expectNone(language + ": ");
        window.reset();
    }
}

TEST_F(SettingsWindow, TheAccentRecoloursAtOnceAndIsKept) {
    QQuickWindow& view = load();
    QmlTestSupport::click(&view, findBy(view, "modelData", "blue"));
    EXPECT_EQ(preferences.accent(), PainelAccent::blue);
    EXPECT_EQ(QSettings().value("accent").toString(), "blue");
    QmlTestSupport::saveScreenshot(view, "settings-accent-blue");
}

TEST_F(SettingsWindow, TheWelcomeKeyStartsTheOnboardingOverAndAsksForTheMainWindow) {
    preferences.setOnboardingDone(true);
    QQuickWindow& view = load();
    QSignalSpy asked(&view, SIGNAL(welcomeRequested()));
    // The key sits at the foot of the window; make sure it is in view before clicking.
    view.resize(view.width(), 1000);
    QmlTestSupport::settle();
    QmlTestSupport::click(&view, findItem(view, qtTrId("settings.about.welcome")));
    EXPECT_FALSE(preferences.onboardingDone());
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(SettingsWindow, TheDestinationIsOneSettingForTheWindowAndEveryChannel) {
    SystemJunkModel junk(preferences);
    QQuickWindow& view = load();
    QmlTestSupport::click(&view, findItem(view, qtTrId("settings.cleaning.delete")));
    EXPECT_EQ(preferences.cleanDestination(), CleanDestination::deleteForGood);
    EXPECT_EQ(junk.destination(), CleanDestination::deleteForGood) << "the channel follows the window at once";

    // And the open window follows a choice made in a channel.
    junk.setDestination(CleanDestination::trash);
    QmlTestSupport::settle();
    QQuickItem* choice = findBy(view, "accessibleName", qtTrId("settings.cleaning.title"));
    ASSERT_NE(choice, nullptr);
    EXPECT_EQ(choice->property("current").toString(), "trash");
}

TEST_F(SettingsWindow, TheBannerShowsWhileTheGrantIsMissing) {
    FullDiskAccessMonitor::shared().setProbes({QStringLiteral("/nonexistent/zephrane-probe")});
    FullDiskAccessMonitor::shared().resetForTesting(true);
    FullDiskAccessMonitor::shared().refresh();
    for (const QString& language : {QStringLiteral("en"), QStringLiteral("pt-BR")}) {
        QmlTestSupport::useLanguage(language);
        QQuickWindow& host = load("import QtQuick\nimport Zephrane\n"
                                  "Window { width: 760; height: 110; color: PainelTheme.bg\n"
                                  "  FullDiskAccessBanner { x: 16; y: 16; width: parent.width - 32 } }");
        EXPECT_TRUE(FullDiskAccessMonitor::shared().watching());
        EXPECT_NE(findItem(host, qtTrId("fda.banner.title")), nullptr);
        QmlTestSupport::saveScreenshot(host, "fda-banner-" + language);
        window.reset();
        EXPECT_FALSE(FullDiskAccessMonitor::shared().watching()) << "the banner gone, nobody watches";
    }
}
