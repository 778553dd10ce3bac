#include "App/LaunchAtLogin.hpp"
#include "App/Preferences.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>

#include <gtest/gtest.h>

namespace {

// XDG_CONFIG_HOME in a temporary folder for one test.
class LoginItem : public ::testing::Test {
protected:
    void SetUp() override { QSettings().remove(Preferences::launchAtLoginKey); }
    void TearDown() override { QSettings().remove(Preferences::launchAtLoginKey); }
    QString entry() const { return config + "/autostart/zephrane.desktop"; }

    TestSupport::TempTree tree;
    QString config = QString::fromStdString(tree.path("config").string());
    TestSupport::ScopedEnvironment configHome{"XDG_CONFIG_HOME", config.toStdString()};
};

} // namespace

TEST_F(LoginItem, OnWritesAnAutostartEntryForThisProgramAndOffRemovesIt) {
    ASSERT_EQ(LaunchAtLogin::entryPath(), entry());
    EXPECT_FALSE(LaunchAtLogin::isEnabled());
    EXPECT_TRUE(LaunchAtLogin::set(true));
    const QString text = QString::fromStdString(TestSupport::readText(entry().toStdString()));
    EXPECT_TRUE(text.startsWith("[Desktop Entry]\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("\nType=Application\n"));
    EXPECT_TRUE(text.contains("\nExec=" + QCoreApplication::applicationFilePath() + "\n"))
        << text.toStdString();
    EXPECT_TRUE(LaunchAtLogin::isEnabled());

    EXPECT_TRUE(LaunchAtLogin::set(true)) << "asking twice is harmless";
    EXPECT_FALSE(LaunchAtLogin::set(false));
    EXPECT_FALSE(QFile::exists(entry()));
    EXPECT_FALSE(LaunchAtLogin::set(false)) << "removing what is not there";
}

TEST_F(LoginItem, AnEntrySwitchedOffByTheDesktopCountsAsOff) {
    ASSERT_TRUE(QDir().mkpath(config + "/autostart"));
    for (const char* off : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        QFile file(entry());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(QByteArray("[Desktop Entry]\nType=Application\nExec=zephrane\n") + off);
        file.close();
        EXPECT_FALSE(LaunchAtLogin::isEnabled()) << off;
    }
}

TEST_F(LoginItem, WithoutAnAbsoluteConfigHomeTheEntryGoesUnderHome) {
    qunsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(LaunchAtLogin::entryPath(), QDir::homePath() + "/.config/autostart/zephrane.desktop");
    qputenv("XDG_CONFIG_HOME", "relative/config");
    EXPECT_EQ(LaunchAtLogin::entryPath(), QDir::homePath() + "/.config/autostart/zephrane.desktop");
}

TEST_F(LoginItem, TheSwitchKeepsWhatReallyHappenedNotWhatWasAsked) {
    // A file where the autostart folder should be: the entry can't be written.
    QFile blocker(config + "/autostart");
    ASSERT_TRUE(QDir().mkpath(config));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();

    Preferences preferences;
    preferences.setLaunchAtLogin(true);
    EXPECT_FALSE(preferences.launchAtLogin());
    EXPECT_FALSE(LaunchAtLogin::isEnabled());

    ASSERT_TRUE(QFile::remove(config + "/autostart"));
    preferences.setLaunchAtLogin(true);
    EXPECT_TRUE(preferences.launchAtLogin());
    EXPECT_TRUE(QSettings().value(Preferences::launchAtLoginKey).toBool());

    // Removed behind the program's back: the next look at the desktop says so.
    ASSERT_TRUE(QFile::remove(entry()));
    preferences.refreshLaunchAtLogin();
    EXPECT_FALSE(preferences.launchAtLogin());
}
