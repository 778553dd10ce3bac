#include "App/AppModel.hpp"
#include "App/FullDiskAccessMonitor.hpp"
#include "JunkHome.hpp"
#include "Onboarding/OnboardingFlow.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;

namespace {

using QmlTestSupport::shown;
using QmlTestSupport::testHome;

// Tab until the named control holds the focus, as a keyboard user would.
bool tabTo(QQuickWindow* window, const QString& name) {
    for (int presses = 0; presses < 30; ++presses) {
        QQuickItem* focused = window->activeFocusItem();
        if (focused && focused->objectName() == name)
            return true;
        QTest::keyClick(window, Qt::Key_Tab);
        QmlTestSupport::settle();
    }
    return false;
}

void press(QQuickWindow* window, const QString& name, Qt::Key key = Qt::Key_Return) {
    ASSERT_TRUE(tabTo(window, name)) << name.toStdString();
    QTest::keyClick(window, key);
    QmlTestSupport::settle(120);
}

} // namespace

TEST(OnboardingFlow, StepsWalkInOrderAndEachMoveIsAnnounced) {
    QmlTestSupport::AnnouncementLog announced;
    const QStringList& spoken = announced.said;
    OnboardingFlow flow;
    EXPECT_EQ(flow.step(), OnboardingStep::power);
    flow.back();
    EXPECT_EQ(flow.step(), OnboardingStep::power) << "power has nothing before it";
    EXPECT_TRUE(spoken.isEmpty());
    for (int i = 0; i < 6; ++i)
        flow.next();
    EXPECT_EQ(flow.step(), OnboardingStep::ready) << "ready has nothing after it";
    EXPECT_EQ(spoken.size(), 4);
    EXPECT_TRUE(spoken.back().contains(qtTrId("onboarding.ready.a11yTitle")));
}

namespace {

// The whole first run by keyboard alone, in the real window, down to the first smart scan's results;
// then the welcome is reopened and finished without a scan.
void walkOnboarding(const QString& language) {
    TestSupport::removeJunkHome(testHome());
    TestSupport::buildJunkHome(testHome());
    QmlTestSupport::useLanguage(language);
    FullDiskAccessMonitor::shared().refresh();
    QmlTestSupport::WarningCollector warnings;
    {
        AppModel model;
        model.junk()->setRunningBundleIDs([] { return std::set<std::string>{}; });
        model.preferences()->setOnboardingDone(false);
        model.preferences()->setShowMenuBarAgent(true);
        model.open(Channel::trash);
        QQmlApplicationEngine engine;
        QQuickWindow* window = QmlTestSupport::showMainWindow(engine, model);
        ASSERT_NE(window, nullptr);
        QmlTestSupport::settle(120);
        const QString shot = QStringLiteral("onboarding-%1-").arg(language);

        EXPECT_TRUE(shown(window, "powerKey"));
        QmlTestSupport::saveScreenshot(*window, shot + "1-power");
        press(window, "powerKey", Qt::Key_Space);
        ASSERT_TRUE(QTest::qWaitFor([&] { return shown(window, "introCard0"); }, 5000));
        QmlTestSupport::settle(2400); // the cards come on one by one
        QmlTestSupport::saveScreenshot(*window, shot + "2-channels");

        press(window, "onboardingContinue");
        EXPECT_TRUE(shown(window, "diskSkipKey")) << "the skip key stays after the grant";
        QmlTestSupport::saveScreenshot(*window, shot + "3-disk");
        press(window, "onboardingContinue");

        // The destination and the menu bar switch are stored the moment they change.
        ASSERT_TRUE(shown(window, "destination-delete"));
        press(window, "destination-delete", Qt::Key_Space);
        EXPECT_EQ(model.preferences()->cleanDestinationRaw(), "delete");
        EXPECT_EQ(QSettings().value(Preferences::cleanDestinationKey).toString(), "delete");
        QQuickItem* menuBar = QmlTestSupport::findItem(window->contentItem(), "toggle-showMenuBarAgent", true);
        ASSERT_NE(menuBar, nullptr);
        menuBar->childItems().last()->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Space);
        QmlTestSupport::settle(120);
        EXPECT_FALSE(model.preferences()->showMenuBarAgent());
        QmlTestSupport::saveScreenshot(*window, shot + "4-preferences");
        press(window, "onboardingContinue");

        EXPECT_TRUE(shown(window, "readyScanKey"));
        QmlTestSupport::saveScreenshot(*window, shot + "5-ready");
        ASSERT_TRUE(tabTo(window, "readyScanKey"));
        QTest::keyClick(window, Qt::Key_Return);
        EXPECT_TRUE(model.preferences()->onboardingDone());
        EXPECT_EQ(model.selection(), Channel::home);
        EXPECT_EQ(model.home()->snapshot().stage, HomeSnapshot::Stage::scanning);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !model.isSmartScanning(); }, 20000));
        QmlTestSupport::settle(500);
        EXPECT_FALSE(shown(window, "powerKey"));
        EXPECT_TRUE(shown(window, "visorTotal")) << "the first scan's results on Home";
        QmlTestSupport::saveScreenshot(*window, shot + "6-home-results");

        // The welcome key of the settings clears the flag: the flow comes back dark, at power.
        model.preferences()->setOnboardingDone(false);
        QmlTestSupport::settle(500);
        EXPECT_TRUE(shown(window, "powerKey"));
        press(window, "powerKey", Qt::Key_Space);
        ASSERT_TRUE(QTest::qWaitFor([&] { return shown(window, "introCard0"); }, 5000));
        for (int step = 0; step < 3; ++step)
            press(window, "onboardingContinue");
        press(window, "readyHomeKey");
        EXPECT_TRUE(model.preferences()->onboardingDone());
        EXPECT_FALSE(model.isSmartScanning()) << "going home scans nothing";
        window->close();
    }
    QSettings().remove(Preferences::cleanDestinationKey);
    QSettings().remove(Preferences::showMenuBarAgentKey);
    QSettings().setValue(Preferences::onboardingDoneKey, true);
    warnings.expectNone();
    TestSupport::removeJunkHome(testHome());
}

} // namespace

TEST(OnboardingWindow, WalkedByKeyboardToTheFirstSmartScan) {
    walkOnboarding("en");
}

// The junk rules keep the language of their first use, so Portuguese gets a process of its own.
TEST(OnboardingWindow, PortugueseInAProcessOfItsOwn) {
    QmlTestSupport::inPortugueseProcess([] { walkOnboarding("pt-BR"); });
}
