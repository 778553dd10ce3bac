#include "App/Preferences.hpp"

#include <QSettings>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class PreferencesStore : public ::testing::Test {
protected:
    void SetUp() override { clear(); }
    void TearDown() override {
        clear();
        QSettings().setValue(QLatin1String(Preferences::onboardingDoneKey), true); // as the test program left it
    }
    static void clear() {
        QSettings settings;
        for (const char* key : {Preferences::showMenuBarAgentKey, Preferences::launchAtLoginKey,
                                Preferences::notifyOutdatedAppsKey, Preferences::cleanDestinationKey,
                                Preferences::accentKey, Preferences::onboardingDoneKey})
            settings.remove(QLatin1String(key));
    }
};

} // namespace

TEST_F(PreferencesStore, NeverWrittenKeysReadAsDefaultsAndWritesLandUnderTheirKeysNotifyingOnlyOnChange) {
    Preferences preferences;
    EXPECT_TRUE(preferences.showMenuBarAgent());
    EXPECT_EQ(preferences.cleanDestinationRaw(), "trash");
    EXPECT_FALSE(preferences.onboardingDone());
    QSignalSpy destination(&preferences, &Preferences::cleanDestinationChanged);
    QSignalSpy accent(&preferences, &Preferences::accentChanged);
    preferences.setShowMenuBarAgent(false);
    preferences.setNotifyOutdatedApps(true);
    preferences.setCleanDestinationRaw("delete");
    preferences.setAccentRaw("lime");
    preferences.setOnboardingDone(true);
    EXPECT_EQ(destination.count(), 1);
    EXPECT_EQ(accent.count(), 1);

    const QSettings raw;
    EXPECT_EQ(raw.value("showMenuBarAgent").toBool(), false);
    EXPECT_EQ(raw.value("notifyOutdatedApps").toBool(), true);
    EXPECT_EQ(raw.value("cleanDestination").toString(), "delete");
    EXPECT_EQ(raw.value("accent").toString(), "lime");
    EXPECT_EQ(raw.value("onboardingDone").toBool(), true);

    preferences.setAccentRaw("lime");
    EXPECT_EQ(accent.count(), 1) << "an unchanged value wakes nobody";
}

TEST_F(PreferencesStore, UnknownRawValuesAreNeitherWrittenNorRead) {
    Preferences preferences;
    preferences.setCleanDestinationRaw("shred");
    preferences.setAccentRaw("purple");
    EXPECT_FALSE(QSettings().contains("cleanDestination"));
    EXPECT_FALSE(QSettings().contains("accent"));

    QSettings().setValue("cleanDestination", "Delete");
    QSettings().setValue("accent", "teal");
    EXPECT_EQ(preferences.cleanDestination(), CleanDestination::trash);
    EXPECT_EQ(preferences.accent(), PainelAccent::orange);
}
