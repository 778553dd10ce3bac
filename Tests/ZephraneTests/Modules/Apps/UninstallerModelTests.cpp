#include "App/Preferences.hpp"
#include "CleanerCore/Apps/AppIcon.hpp"
#include "CleanerCore/Apps/AppImageIntegration.hpp"
#include "CleanerCore/Display/CoreL10n.hpp"
#include "Modules/Apps/InstalledAppList.hpp"
#include "Modules/Apps/UninstallerModel.hpp"
#include "Modules/Shared/CleanupItemList.hpp"
#include "TempTree.hpp"

#include "Support/QmlTestSupport.hpp"
#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

using CleanerCore::AppKind;
using CleanerCore::InstalledApp;
using CleanerCore::RemovalMode;
using CleanerCore::URL;
using testing::ElementsAre;
namespace fs = std::filesystem;

namespace {

using QmlTestSupport::finish;

std::vector<std::string> names(const std::vector<InstalledApp>& apps) {
    std::vector<std::string> result;
    for (const InstalledApp& app : apps)
        result.push_back(app.name);
    return result;
}

// Three AppImages in a temporary home, with files of their own in the XDG folders: Writer has
// 3 MB of data and a shared group container, Player 1 MB, Notes nothing but itself.
struct Uninstaller : testing::Test {
    TestSupport::TempTree tree;
    Preferences preferences;
    UninstallerModel model{preferences};
    QAbstractItemModelTester tester{model.appList(), QAbstractItemModelTester::FailureReportingMode::Fatal};
    std::set<std::string> running;
    std::vector<InstalledApp> apps;

    InstalledApp app(const std::string& file, const std::string& name, const std::string& id, std::size_t bytes,
                     std::optional<int> daysAgo) {
        InstalledApp made;
        made.url = URL::file(tree.file("Applications/" + file, bytes).string());
        made.name = name;
        made.bundleID = id;
        made.kind = AppKind::appImage;
        if (daysAgo)
            made.lastUsed = std::chrono::system_clock::now() - std::chrono::hours(24 * *daysAgo);
        return made;
    }

    void SetUp() override {
        apps = {app("Notes.AppImage", "Notes", "org.example.Notes", 200 * 1024, std::nullopt),
                app("Player.AppImage", "Player", "net.vendor.Player", 100 * 1024, 2),
                app("Writer.AppImage", "Writer", "com.vendor.Writer", 100 * 1024, 30)};
        tree.file(".var/app/com.vendor.Writer/data/big", 3 * 1024 * 1024);
        tree.file(".config/com.vendor.Writer/settings", 100);
        tree.file("Library/Group Containers/group.com.vendor.Writer/shared", 1000);
        tree.file(".var/app/net.vendor.Player/data/one", 1024 * 1024);
        tree.file("Library/Group Containers/group.net.vendor.Player/shared", 1000);
        model.setHome(URL::file(tree.root().string()));
        model.setAppSource([this] { return apps; });
        model.setRunningSource([this] { return running; });
    }

    const InstalledApp& named(const std::string& name) const {
        return *std::ranges::find(model.apps(), name, &InstalledApp::name);
    }
    void select(const std::string& name) { model.selectApp(named(name).url); }
    std::vector<std::string> tickedNames() const {
        std::vector<std::string> ticked;
        for (const auto& item : model.selectedItems())
            ticked.push_back(item.name());
        return ticked;
    }
};

} // namespace

TEST_F(Uninstaller, SearchesByNameOrIdAndSortsThreeWays) {
    finish(model.scan());
    ASSERT_EQ(model.phase(), ModulePhase::ready);
    // Sizes were measured during the scan: Writer's leftovers make it the largest.
    EXPECT_THAT(names(model.visibleApps()), ElementsAre("Writer", "Player", "Notes"));

    model.setSearch("   ");
    EXPECT_EQ(model.visibleApps().size(), 3u) << "spaces alone filter nothing";
    model.setSearch(" com.VENDOR ");
    EXPECT_THAT(names(model.visibleApps()), ElementsAre("Writer")) << "matched by id though not by name";
    model.setSearch("play");
    EXPECT_THAT(names(model.visibleApps()), ElementsAre("Player"));
    EXPECT_EQ(model.appList()->rowCount(), 1);
    model.setSearch("");

    model.setSortRaw("lastUsed");
    EXPECT_THAT(names(model.visibleApps()), ElementsAre("Writer", "Player", "Notes"))
        << "longest unused first, never used last";
    model.setSortRaw("name");
    EXPECT_THAT(names(model.visibleApps()), ElementsAre("Notes", "Player", "Writer")) << "the inventory's order";
}

TEST_F(Uninstaller, TicksStartOnTheAppAndPlainLeftoversOnly) {
    finish(model.scan());
    EXPECT_EQ(model.selectedApp()->name, "Writer") << "the first visible app is shown after a scan";
    EXPECT_THAT(tickedNames(), ElementsAre("Writer.AppImage", "com.vendor.Writer", "com.vendor.Writer"));
    const auto files = model.files(named("Writer"));
    ASSERT_EQ(files.size(), 4u);
    EXPECT_EQ(files[0].name(), "Writer.AppImage");
    EXPECT_EQ(files[1].url.path(), tree.path(".var/app/com.vendor.Writer").string()) << "largest leftover first";
    const auto shared = std::ranges::find(files, URL::file(tree.path("Library/Group Containers/group.com.vendor.Writer").string()),
                                          &CleanerCore::CleanupItem::url);
    ASSERT_NE(shared, files.end());
    EXPECT_EQ(shared->note, CleanerCore::note(CleanerCore::LeftoverCaution::shared));
    EXPECT_FALSE(model.selection()->contains(shared->url)) << "a shared leftover waits for a hand";

    // Another app: its bundle and plain data ticked, its shared container not.
    select("Player");
    EXPECT_THAT(tickedNames(), ElementsAre("Player.AppImage", "net.vendor.Player"));
    model.selection()->setSelected(QString::fromStdString(tree.path(".var/app/net.vendor.Player").string()), false);
    EXPECT_THAT(tickedNames(), ElementsAre("Player.AppImage"));
    select("Notes");
    select("Player");
    EXPECT_THAT(tickedNames(), ElementsAre("Player.AppImage", "net.vendor.Player"))
        << "changing the app resets the ticks";

    // Nothing ticked: asking to uninstall does nothing.
    model.selection()->set({});
    model.askToUninstall();
    EXPECT_FALSE(model.confirming());
    model.selection()->setSelected(QString::fromStdString(named("Player").url.path()), true);
    model.askToUninstall();
    EXPECT_TRUE(model.confirming());
}

TEST_F(Uninstaller, RunningStateIsReadAgainBeforeEveryUninstall) {
    running = {"net.vendor.player"};
    finish(model.scan());
    select("Player");
    EXPECT_EQ(model.blockerRaw(), "running");
    EXPECT_FALSE(model.blockerMessage().isEmpty());
    model.askToUninstall();
    EXPECT_FALSE(model.confirming()) << "a running app is not offered for removal";

    // Quit after the scan: no rescan needed.
    running.clear();
    model.askToUninstall();
    EXPECT_TRUE(model.confirming());
    EXPECT_EQ(model.blockerRaw(), "");

    // Launched again just before the confirmation: the last-moment test refuses.
    running = {"net.vendor.player"};
    model.confirm();
    QCoreApplication::processEvents();
    EXPECT_EQ(model.phase(), ModulePhase::ready);
    EXPECT_TRUE(fs::exists(named("Player").url.path()));
    EXPECT_EQ(model.blockerRaw(), "running") << "the banner shows what stopped it";
}

TEST_F(Uninstaller, QuitAsksPolitelyAndStopsLookingWhenTheAppIsGone) {
    running = {"net.vendor.player"};
    finish(model.scan());
    select("Player");
    std::vector<std::string> asked;
    model.setQuitRequest([&](const std::string& id) {
        asked.push_back(id);
        running.clear(); // the app answers the request
    });
    model.quitSelectedApp();
    EXPECT_THAT(asked, ElementsAre("net.vendor.Player"));
    EXPECT_TRUE(model.quitting());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model.quitting(); }, 5000));
    EXPECT_EQ(model.blockerRaw(), "");

    // An app that stays open is asked once, looked at for 3 s at most, and stays blocked.
    running = {"net.vendor.player"};
    model.refreshRunning();
    model.setQuitRequest([&](const std::string& id) { asked.push_back(id); });
    QElapsedTimer clock;
    clock.start();
    model.quitSelectedApp();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model.quitting(); }, 6000));
    EXPECT_LE(clock.elapsed(), 3500);
    EXPECT_EQ(asked.size(), 2u);
    EXPECT_EQ(model.blockerRaw(), "running");
}

TEST_F(Uninstaller, RemovingAnAppSelectsItsNeighbourAndARescanKeepsTheChoice) {
    finish(model.scan());
    select("Player");
    finish(model.scan());
    EXPECT_EQ(model.selectedApp()->name, "Player") << "a rescan keeps the selected app";

    // Player is in the middle: the app now at its place (Notes) follows.
    finish(model.uninstall(RemovalMode::permanent));
    ASSERT_EQ(model.phase(), ModulePhase::done);
    EXPECT_TRUE(model.outcome()->failures.empty());
    EXPECT_FALSE(fs::exists(tree.path("Applications/Player.AppImage")));
    EXPECT_FALSE(fs::exists(tree.path(".var/app/net.vendor.Player")));
    EXPECT_TRUE(fs::exists(tree.path("Library/Group Containers/group.net.vendor.Player"))) << "left unticked";
    EXPECT_THAT(names(model.visibleApps()), ElementsAre("Writer", "Notes"));
    EXPECT_EQ(model.selectedApp()->name, "Notes");
    EXPECT_THAT(tickedNames(), ElementsAre("Notes.AppImage"));
    EXPECT_EQ(model.successBody(), "") << "only a Flatpak gets words of its own";
    model.done();

    // Notes is the last row: the row before it follows.
    finish(model.uninstall(RemovalMode::permanent));
    EXPECT_EQ(model.selectedApp()->name, "Writer");
    model.done();
    finish(model.uninstall(RemovalMode::permanent));
    EXPECT_EQ(model.selectedApp(), nullptr);
    EXPECT_EQ(model.painelPhase(), PainelPhase::success);
    model.done();
    EXPECT_EQ(model.painelPhase(), PainelPhase::empty);
}

TEST_F(Uninstaller, AnAppImageTakesItsDesktopIntegrationAlong) {
    const URL writer = apps[2].url;
    const std::string stem = CleanerCore::AppImageIntegration::stem(writer);
    const fs::path data = CleanerCore::AppIcon::dataHome(URL::file(tree.root().string()));
    ASSERT_EQ(data.string().rfind(fs::temp_directory_path().string(), 0), 0u);
    const fs::path entry = data / "applications" / (stem + "-writer.desktop");
    const fs::path icon = data / "icons/hicolor/256x256/apps" / (stem + "_writer.png");
    const fs::path small = data / "icons/hicolor/32x32/apps" / (stem + "_writer.png");
    const fs::path other = data / "applications/appimagekit_0123-other.desktop";
    for (const fs::path& path : {entry, icon, small, other}) {
        fs::create_directories(path.parent_path());
        std::ofstream(path) << "x";
    }
    finish(model.scan());
    EXPECT_EQ(model.iconOf(named("Writer")), URL::file(icon.string())) << "the largest icon shows";
    EXPECT_TRUE(model.selectedIcon().startsWith("image://appicon/"));

    finish(model.uninstall(RemovalMode::permanent));
    EXPECT_FALSE(fs::exists(entry));
    EXPECT_FALSE(fs::exists(icon));
    EXPECT_FALSE(fs::exists(small));
    EXPECT_TRUE(fs::exists(other)) << "another AppImage's entry stays";
    fs::remove(other);
}

TEST_F(Uninstaller, AFlatpakThatWillNotGoKeepsItsFiles) {
    apps[1].kind = AppKind::flatpakUser;
    std::vector<std::string> uninstalled;
    std::optional<std::string> refusal = CleanerCore::CoreL10n::string("core.uninstall.failure.password");
    model.setFlatpakUninstaller([&](const InstalledApp& app) {
        uninstalled.push_back(*app.bundleID);
        return refusal;
    });
    finish(model.scan());
    select("Player");
    finish(model.uninstall(RemovalMode::permanent));
    ASSERT_EQ(model.phase(), ModulePhase::done);
    ASSERT_EQ(model.outcome()->failures.size(), 2u);
    EXPECT_EQ(model.outcome()->failures[0].reason, *refusal);
    EXPECT_TRUE(fs::exists(tree.path(".var/app/net.vendor.Player"))) << "its data stays with the app";
    EXPECT_EQ(model.selectedApp()->name, "Player");
    EXPECT_EQ(model.successBody(), "");
    model.done();

    // Uninstalled by its installation (never deleted by hand); its data then goes through Cleaner.
    refusal.reset();
    finish(model.uninstall(RemovalMode::permanent));
    EXPECT_THAT(uninstalled, ElementsAre("net.vendor.Player", "net.vendor.Player"));
    EXPECT_TRUE(model.outcome()->failures.empty());
    EXPECT_TRUE(fs::exists(tree.path("Applications/Player.AppImage")));
    EXPECT_FALSE(fs::exists(tree.path(".var/app/net.vendor.Player")));
    EXPECT_THAT(names(model.visibleApps()), ElementsAre("Writer", "Notes"));
    EXPECT_EQ(model.successBody(), qtTrId("apps.success.flatpak.delete"));
}
