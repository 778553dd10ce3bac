#include "App/Preferences.hpp"

#include <QSettings>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class PreferencesStore : public ::testing::Test {
protected:
    void SetUp() override { clear(); }
    void TearDown() override { clear(); }
    static void clear() {
        QSettings settings;
        for (const char* key : {Preferences::showMenuBarAgentKey, Preferences::launchAtLoginKey,
                                Preferences::notifyOutdatedAppsKey, Preferences::cleanDestinationKey,
                                Preferences::accentKey, Preferences::onboardingDoneKey})
            settings.remove(QLatin1String(key));
    }
};

} // namespace

TEST_F(PreferencesStore, NeverWrittenKeysReadAsTheirDefaults) {
    const Preferences preferences;
    EXPECT_TRUE(preferences.showMenuBarAgent());
    EXPECT_FALSE(preferences.launchAtLogin());
    EXPECT_FALSE(preferences.notifyOutdatedApps());
    EXPECT_EQ(preferences.cleanDestination(), "trash");
    EXPECT_EQ(preferences.accent(), "orange");
    EXPECT_FALSE(preferences.onboardingDone());
}

TEST_F(PreferencesStore, WritesLandUnderTheirKeysAndWakeEveryInstance) {
    Preferences writer;
    const Preferences reader;
    QSignalSpy woken(&reader, &Preferences::changed);
    writer.setShowMenuBarAgent(false);
    writer.setNotifyOutdatedApps(true);
    writer.setCleanDestination("delete");
    writer.setAccent("lime");
    writer.setOnboardingDone(true);
    EXPECT_EQ(woken.count(), 5);

    EXPECT_FALSE(reader.showMenuBarAgent());
    EXPECT_TRUE(reader.notifyOutdatedApps());
    EXPECT_EQ(reader.cleanDestination(), "delete");
    EXPECT_EQ(reader.accent(), "lime");
    EXPECT_TRUE(reader.onboardingDone());

    const QSettings raw;
    EXPECT_EQ(raw.value("showMenuBarAgent").toBool(), false);
    EXPECT_EQ(raw.value("notifyOutdatedApps").toBool(), true);
    EXPECT_EQ(raw.value("cleanDestination").toString(), "delete");
    EXPECT_EQ(raw.value("accent").toString(), "lime");
    EXPECT_EQ(raw.value("onboardingDone").toBool(), true);

    writer.setAccent("lime");
    EXPECT_EQ(woken.count(), 5) << "an unchanged value wakes nobody";
}

TEST_F(PreferencesStore, UnknownRawValuesAreNeitherWrittenNorRead) {
    Preferences preferences;
    preferences.setCleanDestination("shred");
    preferences.setAccent("purple");
    EXPECT_FALSE(QSettings().contains("cleanDestination"));
    EXPECT_FALSE(QSettings().contains("accent"));

    QSettings().setValue("cleanDestination", "Delete");
    QSettings().setValue("accent", "teal");
    EXPECT_EQ(preferences.cleanDestination(), "trash");
    EXPECT_EQ(preferences.accent(), "orange");
}
