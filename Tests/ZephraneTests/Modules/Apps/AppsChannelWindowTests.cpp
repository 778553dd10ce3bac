#include "App/AppModel.hpp"
#include "FlatpakFixture.hpp"
#include "Modules/Apps/UninstallerModel.hpp"
#include "Modules/Leftovers/LeftoversModel.hpp"
#include "Support/QmlTestSupport.hpp"
#include "TempTree.hpp"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using TestSupport::FlatpakFixture;

namespace {

using QmlTestSupport::click;
using QmlTestSupport::find;
using QmlTestSupport::homeTrash;
using QmlTestSupport::press;
using QmlTestSupport::testHome;
using QmlTestSupport::waitFor;

constexpr const char* appID = "org.zephrane.Test.Gone";

void write(const fs::path& path, std::size_t bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << std::string(bytes, 'x');
}

std::string installedUserApps() {
    std::string output;
    FlatpakFixture::run({"flatpak", "list", "--user", "--app", "--columns=application"}, output);
    return output;
}

// The apps channel over a real Flatpak installation: find the app by its id, see it blocked while
// it runs, uninstall it through the window; then the leftovers channel over what removed apps left.
void runAppsChannels(const QString& language, FlatpakFixture& fixture) {
    fixture.exportApp({appID, "Gone Editor", "2.1", "stable", 32 * 1024});
    fixture.install(appID);
    ASSERT_NE(installedUserApps().find(appID), std::string::npos);
    const fs::path home = testHome();
    write(home / ".var/app" / appID / "config/settings.ini", 2048);
    fs::remove_all(homeTrash());

    QmlTestSupport::WarningCollector warnings;
    {
        AppModel model;
        UninstallerModel& apps = *model.uninstaller();
        std::set<std::string> running;
        apps.setRunningSource([&] { return running; });
        QQmlApplicationEngine engine;
        QQuickWindow* window = QmlTestSupport::showMainWindow(engine, model);
        ASSERT_NE(window, nullptr);
        const QString shot = QStringLiteral("apps-%1-").arg(language);

        apps.scanOnFirstVisit();
        apps.stop();
        waitFor([&] { return apps.phase() == ModulePhase::idle; }, 60000, 150);
        model.open(Channel::apps);
        QmlTestSupport::settle(150);
        QmlTestSupport::saveScreenshot(*window, shot + "1-idle");

        press(window, find(window, "scanKey"));
        QmlTestSupport::saveScreenshot(*window, shot + "2-scanning");
        waitFor([&] { return apps.phase() == ModulePhase::ready; }, 60000, 150);

        // Found by its id from the keyboard: type, then Down picks the first match.
        QQuickItem* search = find(window, "searchField");
        ASSERT_NE(search, nullptr);
        search->forceActiveFocus();
        for (const char letter : std::string("test.gone"))
            QTest::keyClick(window, letter);
        QTest::keyClick(window, Qt::Key_Down);
        QmlTestSupport::settle(300);
        ASSERT_NE(apps.selectedApp(), nullptr);
        EXPECT_EQ(apps.selectedApp()->bundleID, appID);
        EXPECT_EQ(apps.selectedApp()->kind, CleanerCore::AppKind::flatpakUser);
        EXPECT_EQ(apps.selection()->count(), 2) << "the app and its sandbox data start ticked";
        QmlTestSupport::saveScreenshot(*window, shot + "3-results");

        running = {"org.zephrane.test.gone"};
        apps.refreshRunning();
        QmlTestSupport::settle(150);
        EXPECT_NE(find(window, "blockerBanner"), nullptr);
        EXPECT_FALSE(find(window, "uninstallKey")->isEnabled());
        QmlTestSupport::saveScreenshot(*window, shot + "4-blocked");
        running.clear();
        apps.refreshRunning();
        QmlTestSupport::settle(150);

        click(window, find(window, "uninstallKey"), 150);
        EXPECT_EQ(apps.painelPhase(), PainelPhase::confirm);
        EXPECT_EQ(apps.confirmQuestion(), qtTrId("apps.confirm.question.flatpak").arg("Gone Editor"))
            << "an uninstall is not asked as a move to the trash";
        QmlTestSupport::saveScreenshot(*window, shot + "5-confirm");
        press(window, find(window, "confirmKey"));
        waitFor([&] { return apps.phase() == ModulePhase::done; }, 60000, 150);
        QmlTestSupport::saveScreenshot(*window, shot + "6-success");

        ASSERT_TRUE(apps.outcome());
        for (const auto& failure : apps.outcome()->failures)
            ADD_FAILURE() << failure.url.path() << ": " << failure.reason;
        EXPECT_EQ(installedUserApps().find(appID), std::string::npos) << "flatpak no longer lists it";
        EXPECT_FALSE(fs::exists(home / ".var/app" / appID));
        EXPECT_TRUE(fs::exists(homeTrash() / "files" / appID / "config/settings.ini"));
        EXPECT_EQ(apps.successBody(), qtTrId("apps.success.flatpak.trash"));
        click(window, find(window, "doneKey"), 150);

        // What two removed apps left behind.
        write(home / ".var/app/org.gone.Writer/data/big", 512 * 1024);
        write(home / ".cache/org.gone.Writer/c", 8192);
        write(home / ".config/org.gone.Writer/settings", 100);
        write(home / ".var/app/net.old.Viewer/data/x", 4096);
        LeftoversModel& leftovers = *model.leftovers();
        model.open(Channel::leftovers);
        const QString leftShot = QStringLiteral("leftovers-%1-").arg(language);
        waitFor([&] { return leftovers.phase() == ModulePhase::ready; }, 60000, 150);
        ASSERT_NE(leftovers.group("org.gone.writer"), nullptr);
        EXPECT_EQ(leftovers.selection()->count(), 0);

        QQuickItem* writer = find(window, "leftoverRow-org.gone.writer");
        ASSERT_NE(writer, nullptr);
        writer->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Return);
        QmlTestSupport::settle(150);
        QQuickItem* firstItem = QmlTestSupport::findItem(writer, "itemCheck", true);
        ASSERT_NE(firstItem, nullptr) << "Return opens the group";
        click(window, firstItem, 150);
        EXPECT_TRUE(leftovers.selection()->stateOf(leftovers.group("org.gone.writer")->items).isMixed);
        QmlTestSupport::saveScreenshot(*window, leftShot + "1-mixed");
        writer->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Space);
        QmlTestSupport::settle(150);
        EXPECT_TRUE(leftovers.selection()->stateOf(leftovers.group("org.gone.writer")->items).isOn);
        QmlTestSupport::saveScreenshot(*window, leftShot + "2-ticked");

        click(window, find(window, "cleanKey"), 150);
        EXPECT_EQ(leftovers.painelPhase(), PainelPhase::confirm);
        QmlTestSupport::saveScreenshot(*window, leftShot + "3-confirm");
        press(window, find(window, "confirmKey"));
        waitFor([&] { return leftovers.phase() == ModulePhase::done; }, 60000, 150);
        QmlTestSupport::saveScreenshot(*window, leftShot + "4-success");
        EXPECT_FALSE(fs::exists(home / ".config/org.gone.Writer"));
        EXPECT_TRUE(fs::exists(home / ".var/app/net.old.Viewer")) << "left unticked";
        click(window, find(window, "doneKey"), 150);
        EXPECT_EQ(leftovers.group("org.gone.writer"), nullptr) << "the emptied group is gone";

        // Nothing left, read without access: the empty screen says it may not be everything.
        fs::remove_all(home / ".var/app/net.old.Viewer");
        leftovers.setAccessProbe([] { return false; });
        leftovers.startScan();
        waitFor([&] { return leftovers.phase() == ModulePhase::ready; }, 60000, 150);
        EXPECT_EQ(leftovers.painelPhase(), PainelPhase::empty);
        QmlTestSupport::saveScreenshot(*window, leftShot + "5-empty-partial");
        window->close();
    }
    warnings.expectNone();
}

} // namespace

TEST(AppsChannelWindow, UninstallAFlatpakThenClearLeftovers) {
    REQUIRE_FLATPAK(fixture);
    QmlTestSupport::useLanguage("en");
    runAppsChannels("en", *fixture);
}

// The engine's texts keep the language of their first use, so Portuguese gets a process of its own.
TEST(AppsChannelWindow, PortugueseInAProcessOfItsOwn) {
    QmlTestSupport::inPortugueseProcess([] {
        REQUIRE_FLATPAK(fixture);
        runAppsChannels("pt-BR", *fixture);
    });
}
