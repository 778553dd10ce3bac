#include "App/AppModel.hpp"
#include "App/GoCommands.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class ShellWindow : public ::testing::Test {
protected:
    void SetUp() override {
        window = QmlTestSupport::showMainWindow(engine, model);
        ASSERT_NE(window, nullptr);
        QmlTestSupport::settle();
    }
    void TearDown() override { warnings.expectNone(); }

    QmlTestSupport::WarningCollector warnings;
    AppModel model;
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
};

} // namespace

TEST_F(ShellWindow, EveryChannelLoadsWithoutWarningsAndIsPhotographed) {
    EXPECT_GE(window->width(), window->minimumWidth());
    for (Channel channel : Channels::allCases) {
        model.open(channel);
        QmlTestSupport::settle();
        warnings.expectNone(Channels::title(channel) + ": ");
        QmlTestSupport::saveScreenshot(*window, QStringLiteral("shell-%1").arg(Channels::rawValue(channel)));
    }
}

TEST_F(ShellWindow, ControlDigitsOpenChannelsAndThereIsNoEight) {
    QTest::keyClick(window, Qt::Key_7, Qt::ControlModifier);
    EXPECT_EQ(model.selection(), Channel::updates);
    QTest::keyClick(window, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(model.selection(), Channel::large);
    QTest::keyClick(window, Qt::Key_8, Qt::ControlModifier);
    EXPECT_EQ(model.selection(), Channel::large);
    QTest::keyClick(window, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(model.selection(), Channel::home);
}

TEST_F(ShellWindow, ControlCommaAndTheColumnKeyOpenTheSettingsWindow) {
    QmlTestSupport::useLanguage("pt-BR");
    auto* settings = window->findChild<QQuickWindow*>("settings");
    ASSERT_NE(settings, nullptr);
    EXPECT_FALSE(settings->isVisible());
    QTest::keyClick(window, Qt::Key_Comma, Qt::ControlModifier);
    QmlTestSupport::settle();
    EXPECT_TRUE(settings->isVisible());
    settings->close();
    QmlTestSupport::click(window, QmlTestSupport::find(window, "settingsKey"));
    EXPECT_TRUE(settings->isVisible());
    QmlTestSupport::saveScreenshot(*window, "shell-with-settings-key-pt-BR");
    settings->close();
    QmlTestSupport::useLanguage("en");
}

TEST(GoCommands, ChoosingTheChannelOnShowKeepsItSelected) {
    AppModel model;
    GoCommands commands;
    commands.setModel(&model);
    model.open(Channel::junk);
    commands.choose(Channels::rawValue(Channel::junk));
    EXPECT_EQ(model.selection(), Channel::junk);
    EXPECT_TRUE(commands.isChecked(1));
    EXPECT_FALSE(commands.isChecked(0));
}
