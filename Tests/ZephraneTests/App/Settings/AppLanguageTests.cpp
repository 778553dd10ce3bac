#include "App/Announcer.hpp"
#include "App/AppLanguage.hpp"
#include "App/LanguageChoice.hpp"

#include <QSettings>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <vector>

namespace {

const QString key = QString::fromLatin1(AppLanguages::overrideKey);

class Language : public ::testing::Test {
protected:
    void SetUp() override { clear(); }
    void TearDown() override { clear(); }
    static void clear() {
        QSettings().remove(key);
        QSettings(QCoreApplication::organizationName()).remove(key);
    }
    static void store(const QVariant& value) { QSettings().setValue(key, value); }
};

} // namespace

TEST_F(Language, StoredReadsOnlyOurTwoLanguagesFirstInTheList) {
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::system) << "no override written";
    store(QStringList{"en", "pt-BR"});
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::english);
    store(QStringList{"pt-BR"});
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::portuguese);
    // A one-element list read back from the settings file is plain text.
    store(QStringLiteral("en"));
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::english);

    store(QStringList{"fr", "en"});
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::system) << "only the first element counts";
    store(QStringList{"pt"});
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::system);
    store(QStringList{"system"});
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::system);
    store(QStringList{});
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::system);
    store(QByteArray("en"));
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::system) << "a value of another type";
    store(7);
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::system);
}

TEST_F(Language, StoredIgnoresTheOrganisationWideFallback) {
    QSettings(QCoreApplication::organizationName()).setValue(key, QStringList{"en"});
    ASSERT_EQ(QSettings().value(key).toStringList(), QStringList{"en"}) << "the merged view does see it";
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::system);
}

TEST_F(Language, ApplyWritesOrClearsTheOverrideAndNeverMovesTheLaunchLanguage) {
    const AppLanguage launch = AppLanguages::atLaunch();
    AppLanguages::apply(AppLanguage::english);
    EXPECT_EQ(QSettings().value(key).toStringList(), QStringList{"en"});
    EXPECT_EQ(AppLanguages::stored(), AppLanguage::english);
    AppLanguages::apply(AppLanguage::portuguese);
    EXPECT_EQ(QSettings().value(key).toStringList(), QStringList{"pt-BR"});
    AppLanguages::apply(AppLanguage::system);
    EXPECT_FALSE(QSettings().contains(key));
    EXPECT_EQ(AppLanguages::atLaunch(), launch);
}

TEST(LanguageResolution, PortugueseIsTheFallbackNotEnglish) {
    using AppLanguages::resolvedLocalization;
    EXPECT_EQ(resolvedLocalization(AppLanguage::system, {"fr-FR", "de"}), "pt-BR");
    EXPECT_EQ(resolvedLocalization(AppLanguage::system, {}), "pt-BR");
    EXPECT_EQ(resolvedLocalization(AppLanguage::system, {"fr", "en-GB", "pt-BR"}), "en");
    EXPECT_EQ(resolvedLocalization(AppLanguage::system, {"pt_PT"}), "pt-BR");
    EXPECT_EQ(resolvedLocalization(AppLanguage::system, {"EN-us"}), "en");
    EXPECT_EQ(resolvedLocalization(AppLanguage::english, {"pt-BR"}), "en");
    EXPECT_EQ(resolvedLocalization(AppLanguage::portuguese, {"en-US"}), "pt-BR");
}

TEST_F(Language, TheNoticeFollowsTheLanguageOfTheLaunch) {
    // Launched in English on a Portuguese desktop: Portuguese needs a restart, English again doesn't.
    store(QStringList{"en"});
    QStringList announced;
    const Announcer::Sink previous = Announcer::installSink([&](const QString& text) { announced.append(text); });
    LanguageChoice launchedInEnglish(AppLanguage::english, {"pt-BR"});
    EXPECT_FALSE(launchedInEnglish.needsRelaunch());
    launchedInEnglish.choose(AppLanguage::portuguese);
    EXPECT_TRUE(launchedInEnglish.needsRelaunch());
    launchedInEnglish.choose(AppLanguage::system);
    EXPECT_TRUE(launchedInEnglish.needsRelaunch()) << "the desktop is Portuguese too";
    ASSERT_EQ(announced.count(), 1) << "announced when it appears, not again while it stays";
    EXPECT_EQ(announced.first(), qtTrId("settings.language.relaunchNotice"));
    Announcer::installSink(previous);
    launchedInEnglish.choose(AppLanguage::english);
    EXPECT_FALSE(launchedInEnglish.needsRelaunch());
    EXPECT_EQ(launchedInEnglish.choice(), AppLanguage::english);

    // Launched following a Portuguese desktop: choosing Portuguese outright changes nothing shown.
    AppLanguages::apply(AppLanguage::system);
    LanguageChoice launchedInSystem(AppLanguage::system, {"pt-BR"});
    launchedInSystem.choose(AppLanguage::portuguese);
    EXPECT_FALSE(launchedInSystem.needsRelaunch());
    launchedInSystem.choose(AppLanguage::english);
    EXPECT_TRUE(launchedInSystem.needsRelaunch());
}

TEST_F(Language, TheNoticeShowsAtOnceWhenTheStoredChoiceAlreadyDiffers) {
    store(QStringList{"en"});
    LanguageChoice choice(AppLanguage::portuguese, {"pt-BR"});
    EXPECT_EQ(choice.choice(), AppLanguage::english);
    EXPECT_TRUE(choice.needsRelaunch());
    choice.chooseRaw("klingon");
    EXPECT_EQ(choice.choice(), AppLanguage::english);
}

TEST(LanguageRelaunch, StartsTheNewProcessBeforeTheOldOneGoesAndStaysWhenItCannot) {
    std::vector<QString> steps;
    QString program;
    const bool relaunched = AppLanguages::relaunch(
        [&](const QString& path, const QStringList&) {
            program = path;
            steps.push_back("start");
            return true;
        },
        [&] { steps.push_back("quit"); });
    EXPECT_TRUE(relaunched);
    EXPECT_EQ(steps, (std::vector<QString>{"start", "quit"}));
    EXPECT_EQ(program, QCoreApplication::applicationFilePath());

    steps.clear();
    EXPECT_FALSE(AppLanguages::relaunch([&](const QString&, const QStringList&) { return false; },
                                        [&] { steps.push_back("quit"); }));
    EXPECT_TRUE(steps.empty());
}
