#include "Agent/TrayAgent.hpp"
#include "App/AppModel.hpp"
#include "App/MainWindow.hpp"
#include "App/Preferences.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using CleanerCore::RunningAppInfo;

namespace {

class Agent : public ::testing::Test {
protected:
    void SetUp() override {
        QSettings().remove(Preferences::showMenuBarAgentKey);
        window = MainWindow::load(engine, model);
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    }
    void TearDown() override {
        agent.reset();
        QSettings().remove(Preferences::showMenuBarAgentKey);
        QGuiApplication::setQuitOnLastWindowClosed(true);
        // Qt's tray item looks for the X11 tray window, which the offscreen platform lacks; nothing else may warn.
        for (const QString& message : warnings.take())
            EXPECT_TRUE(message.contains("systemTrayWindowChanged")) << message.toStdString();
    }

    // No tray item is shown here: the offscreen platform has no tray, so the tests that need one
    // say a tray is present and look at what the agent decides.
    TrayAgent& start(bool trayAvailable) {
        MenuBarModel::Sources sources;
        sources.apps = [] {
            return std::vector<RunningAppInfo>{{301, "Darktable", "org.darktable.Darktable", std::nullopt, true},
                                               {302, "Firefox", "org.mozilla.firefox", std::nullopt, true},
                                               {303, "Inkscape", "org.inkscape.Inkscape", std::nullopt, true}};
        };
        sources.footprint = [](std::int32_t pid) { return std::optional<std::uint64_t>((400 - pid) * 10'000'000ull); };
        sources.intervalMilliseconds = 60'000;
        agent = std::make_unique<TrayAgent>(model, engine, *window, trayAvailable, sources);
        return *agent;
    }

    QmlTestSupport::WarningCollector warnings;
    AppModel model;
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
    std::unique_ptr<TrayAgent> agent;
};

} // namespace

TEST_F(Agent, ClosingKeepsTheProcessOnlyWithTheAgentOnAndATray) {
    EXPECT_TRUE(model.preferences()->showMenuBarAgent()) << "a key never written means on";

    start(false);
    EXPECT_FALSE(agent->active());
    EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed()) << "no tray: closing must quit";

    start(true);
    EXPECT_TRUE(agent->active());
    EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());

    // Turned off while the window is hidden: it comes back, since nothing else could bring it.
    window->close();
    EXPECT_FALSE(window->isVisible());
    model.preferences()->setShowMenuBarAgent(false);
    EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(agent->trayIcon(), nullptr);
}

TEST_F(Agent, ThePopupSamplesWhileShownAsksBeforeAQuitAndItsKeysOpenTheWindowOnTheirChannel) {
    window->close();
    for (const QString& language : {QStringLiteral("en"), QStringLiteral("pt-BR")}) {
        QmlTestSupport::useLanguage(language);
        start(true);
        agent->showPopup(QPoint(200, 200));
        QQuickWindow* popup = agent->popup();
        ASSERT_NE(popup, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(popup));
        QTRY_VERIFY(agent->menu()->isLive());
        EXPECT_EQ(agent->menu()->hogs().size(), 3u);
        QmlTestSupport::settle(100);
        QmlTestSupport::saveScreenshot(*popup, "tray-popup-" + language);

        QmlTestSupport::click(popup, QmlTestSupport::find(popup, "hogQuit"), 100);
        EXPECT_EQ(agent->menu()->pendingQuit(), 301);
        QQuickItem* confirm = QmlTestSupport::findItem(popup->contentItem(), "hogConfirm", true);
        ASSERT_NE(confirm, nullptr);
        EXPECT_TRUE(confirm->hasActiveFocus());
        QmlTestSupport::saveScreenshot(*popup, "tray-popup-confirm-" + language);

        agent->hidePopup();
        EXPECT_EQ(agent->menu()->pendingQuit(), 0) << "closing drops the question";
        EXPECT_FALSE(agent->menu()->isLive());
    }
    QmlTestSupport::useLanguage("en");

    agent->showPopup(QPoint(200, 200));
    QQuickWindow* popup = agent->popup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup));
    QmlTestSupport::settle();
    QmlTestSupport::click(popup, QmlTestSupport::find(popup, "emptyTrashAction"));
    EXPECT_EQ(model.selection(), Channel::trash);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(popup->isVisible());
    EXPECT_FALSE(agent->menu()->isLive());
}

TEST_F(Agent, SettingsSayWhyTheSwitchDoesNothingWithoutATray) {
    auto* settings = window->findChild<QQuickWindow*>("settings");
    ASSERT_NE(settings, nullptr);
    settings->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(settings));
    QQuickItem* note = QmlTestSupport::findItem(settings->contentItem(), "noTrayNote");
    ASSERT_NE(note, nullptr);
    model.setTrayAvailable(false);
    EXPECT_TRUE(note->isVisible());
    model.setTrayAvailable(true);
    EXPECT_FALSE(note->isVisible());
    settings->close();
}
