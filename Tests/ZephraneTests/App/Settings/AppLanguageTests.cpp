#include "App/AppLanguage.hpp"
#include "App/LanguageChoice.hpp"
#include "Support/QmlTestSupport.hpp"

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
    // A one-element list comes back from the settings file as plain text; only the first element
    // counts, and a value of another type is no choice.
    const std::vector<std::pair<QVariant, AppLanguage>> rows{
        {QStringList{"en", "pt-BR"}, AppLanguage::english},
        {QStringList{"pt-BR"}, AppLanguage::portuguese},
        {QStringLiteral("en"), AppLanguage::english},
        {QStringList{"fr", "en"}, AppLanguage::system},
        {QStringList{"pt"}, AppLanguage::system},
        {QStringList{"system"}, AppLanguage::system},
        {QStringList{}, AppLanguage::system},
        {QByteArray("en"), AppLanguage::system},
        {7, AppLanguage::system}};
    for (const auto& [value, expected] : rows) {
        store(value);
        EXPECT_EQ(AppLanguages::stored(), expected) << value.toStringList().join(',').toStdString();
    }
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
    LanguageChoice launchedInEnglish(AppLanguage::english, {"pt-BR"});
    {
        QmlTestSupport::AnnouncementLog announced;
        EXPECT_FALSE(launchedInEnglish.needsRelaunch());
        launchedInEnglish.choose(AppLanguage::portuguese);
        EXPECT_TRUE(launchedInEnglish.needsRelaunch());
        launchedInEnglish.choose(AppLanguage::system);
        EXPECT_TRUE(launchedInEnglish.needsRelaunch()) << "the desktop is Portuguese too";
        EXPECT_EQ(announced.said, QStringList{qtTrId("settings.language.relaunchNotice")})
            << "announced when it appears, not again while it stays";
    }
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

    // A stored choice that already differs from the launch shows the notice at once.
    LanguageChoice launchedInPortuguese(AppLanguage::portuguese, {"pt-BR"});
    EXPECT_EQ(launchedInPortuguese.choice(), AppLanguage::english);
    EXPECT_TRUE(launchedInPortuguese.needsRelaunch());
    launchedInPortuguese.chooseRaw("klingon");
    EXPECT_EQ(launchedInPortuguese.choice(), AppLanguage::english);
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
