#include "App/AppModel.hpp"
#include "JunkHome.hpp"
#include "Modules/Home/HomeModel.hpp"
#include "Painel/ByteFormat.hpp"
#include "TempTree.hpp"

#include "Support/QmlTestSupport.hpp"
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

using CleanerCore::URL;
using Kind = HomeSnapshot::Step::Kind;
using Stage = HomeSnapshot::Stage;

namespace {

using QmlTestSupport::finish;

// The application's model over a temporary home: junk from the shared fixture, and what a removed
// app left behind for the leftovers. The leftovers scan can be held on its worker thread.
struct Home : testing::Test {
    TestSupport::TempTree tree;
    AppModel app;
    HomeModel& home = *app.home();
    std::atomic<bool> holdLeftovers = false;
    QmlTestSupport::AnnouncementLog announced;
    QStringList& spoken = announced.said;

    void SetUp() override {
        app.junk()->setRunningBundleIDs([] { return std::set<std::string>{}; });
        app.leftovers()->setKnownSource([this] {
            while (holdLeftovers)
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            return std::unordered_set<std::string>{};
        });
        app.leftovers()->setAccessProbe([] { return true; });
        pointAt(tree.root());
    }
    void TearDown() override { holdLeftovers = false; }
    void pointAt(const std::filesystem::path& root) {
        app.junk()->setHome(URL::file(root.string()));
        app.leftovers()->setHome(URL::file(root.string()));
    }
    void fillHome() {
        TestSupport::buildJunkHome(tree.root());
        tree.file(".var/app/org.gone.Editor/data/big", 3 * 1024 * 1024);
    }
};

} // namespace

TEST_F(Home, NothingRunsUntilAskedAndTheDiskIsReadOnRequest) {
    EXPECT_EQ(home.snapshot().stage, Stage::before);
    for (ModulePhaseModel* model : std::initializer_list<ModulePhaseModel*>{
             app.junk(), app.spaceLens(), app.large(), app.uninstaller(), app.leftovers(), app.trash()})
        EXPECT_EQ(model->phase(), ModulePhase::idle);
    EXPECT_TRUE(home.disk().name.isEmpty()) << "making the model reads nothing";
    EXPECT_FALSE(home.snapshot().finishedAt);

    home.setDiskPath(QString::fromStdString(tree.root().string()));
    home.refreshDisk();
    EXPECT_FALSE(home.disk().name.isEmpty());
    EXPECT_LE(home.disk().free, home.disk().total);
    EXPECT_GT(home.disk().usedFraction(), 0.0);
    EXPECT_LE(home.disk().usedFraction(), 1.0);
    EXPECT_EQ(HomeDisk{}.usedFraction(), 0.0) << "an unknown size leaves the meter dark";
}

TEST_F(Home, SmartScanRunsBothSidesOnceAndSumsWhatTheyFound) {
    fillHome();
    QFuture<void> first = app.smartScan();
    EXPECT_TRUE(app.isSmartScanning());
    HomeSnapshot during = home.snapshot();
    EXPECT_EQ(during.stage, Stage::scanning);
    EXPECT_EQ(during.junk.kind, Kind::running);
    EXPECT_EQ(during.leftovers.kind, Kind::running) << "both scans run side by side";
    const QDateTime started = app.smartScanStartedAt();

    QFuture<void> second = app.smartScan();
    EXPECT_TRUE(second.isFinished()) << "a second smart scan returns at once";
    EXPECT_EQ(app.smartScanStartedAt(), started);

    finish(first);
    EXPECT_FALSE(app.isSmartScanning());
    const HomeSnapshot after = home.snapshot();
    EXPECT_EQ(after.stage, Stage::after);
    ASSERT_EQ(after.junk.kind, Kind::done);
    ASSERT_EQ(after.leftovers.kind, Kind::done);
    EXPECT_EQ(after.stepsDone(), 2);
    EXPECT_GT(after.junk.bytes, 0);
    EXPECT_GE(after.leftovers.bytes, 3 * 1024 * 1024);
    EXPECT_EQ(after.itemCount, app.junk()->itemCount() + app.leftovers()->itemCount());
    ASSERT_TRUE(after.finishedAt);
    EXPECT_FALSE(after.startedAt);

    // Junk groups largest first, then the leftovers, and together they make the total.
    ASSERT_GE(after.parts.size(), 2u);
    EXPECT_EQ(after.parts.back().title, qtTrId("channel.leftovers.short"));
    EXPECT_EQ(after.parts.back().bytes, after.leftovers.bytes);
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < after.parts.size(); ++i) {
        sum += after.parts[i].bytes;
        EXPECT_GT(after.parts[i].bytes, 0) << "an empty group has no line";
        if (i + 1 < after.parts.size() - 1) {
            EXPECT_GE(after.parts[i].bytes, after.parts[i + 1].bytes);
        }
    }
    EXPECT_EQ(sum, after.totalBytes());

    EXPECT_TRUE(home.reading(Channel::junk).lit);
    EXPECT_FALSE(home.reading(Channel::large).lit) << "the large files take no part";
    EXPECT_EQ(app.large()->phase(), ModulePhase::idle);
}

TEST_F(Home, TheAnnouncementAndTheReviewKeySayWhetherAnythingWasFound) {
    home.review();
    EXPECT_EQ(app.selection(), Channel::leftovers) << "never scanned";
    home.runSmartScan();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !spoken.isEmpty(); }, 20000));
    EXPECT_EQ(spoken, QStringList{qtTrId("home.scan.done.none")}) << "an empty home";
    EXPECT_EQ(home.snapshot().stage, Stage::after);
    EXPECT_EQ(home.reading(Channel::junk).text, qtTrId("home.reading.nothing"));
    EXPECT_FALSE(home.reading(Channel::junk).lit);
    app.open(Channel::home);
    home.review();
    EXPECT_EQ(app.selection(), Channel::leftovers) << "nothing anywhere still opens the leftovers";

    fillHome();
    spoken.clear();
    home.runSmartScan();
    EXPECT_EQ(home.snapshot().stage, Stage::scanning) << "a rescan goes back to scanning";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !spoken.isEmpty(); }, 20000));
    ASSERT_EQ(spoken.size(), 1);
    EXPECT_NE(spoken.front(), qtTrId("home.scan.done.none"));
    EXPECT_TRUE(spoken.front().contains(ByteFormat::spoken(static_cast<double>(home.snapshot().totalBytes()))));
    app.open(Channel::home);
    home.review();
    EXPECT_EQ(app.selection(), Channel::junk);
}

TEST_F(Home, AModelAlreadyScanningIsNotWaitedFor) {
    fillHome();
    holdLeftovers = true;
    app.leftovers()->startScan();
    QFuture<void> smart = app.smartScan();
    EXPECT_EQ(home.snapshot().leftovers.kind, Kind::running);

    finish(smart);
    EXPECT_EQ(app.junk()->phase(), ModulePhase::ready);
    EXPECT_EQ(app.leftovers()->phase(), ModulePhase::scanning) << "the smart scan ended without it";
    HomeSnapshot shot = home.snapshot();
    EXPECT_EQ(shot.stage, Stage::after);
    EXPECT_EQ(shot.junk.kind, Kind::done);
    EXPECT_EQ(shot.leftovers.kind, Kind::running) << "shown running until its own scan ends";
    EXPECT_EQ(home.reading(Channel::leftovers).text, qtTrId("home.reading.scanning"));

    holdLeftovers = false;
    ASSERT_TRUE(QTest::qWaitFor([&] { return app.leftovers()->phase() == ModulePhase::ready; }, 20000));
    EXPECT_EQ(home.snapshot().leftovers.kind, Kind::done);
}

TEST_F(Home, CleaningJunkLowersTheFigureAtOnce) {
    fillHome();
    finish(app.junk()->scan());
    HomeSnapshot before = home.snapshot();
    EXPECT_EQ(before.stage, Stage::after) << "a scan by hand counts too";
    EXPECT_EQ(before.leftovers.kind, Kind::idle) << "a model never scanned stays idle";
    ASSERT_GT(before.junk.bytes, 0);

    int changes = 0;
    QObject::connect(&home, &HomeModel::changed, [&] { ++changes; });
    app.junk()->setRemovalHome(URL::file(tree.root().string()));
    ASSERT_GT(app.junk()->selectedItems().size(), 0u);
    finish(app.junk()->clean(CleanerCore::RemovalMode::permanent));
    ASSERT_EQ(app.junk()->phase(), ModulePhase::done);
    EXPECT_GT(changes, 0) << "the screen hears of the clean";
    HomeSnapshot after = home.snapshot();
    EXPECT_EQ(after.stage, Stage::after);
    EXPECT_EQ(after.junk.kind, Kind::done);
    EXPECT_LT(after.junk.bytes, before.junk.bytes);
    EXPECT_LT(after.itemCount, before.itemCount);
}
