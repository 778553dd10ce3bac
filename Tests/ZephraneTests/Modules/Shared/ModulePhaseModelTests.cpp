#include "Modules/Shared/FakeChannelModel.hpp"

#include "App/Preferences.hpp"
#include "Support/QmlTestSupport.hpp"

#include "TempTree.hpp"

#include <QSignalSpy>
#include <QTest>

#include <filesystem>

#include <gtest/gtest.h>

using CleanerCore::RemovalMode;
using CleanerCore::URL;

namespace {

using QmlTestSupport::finishes;

class ModulePhaseLife : public ::testing::Test {
protected:
    void SetUp() override { model.setRemovalHome(URL::file(tree.root().string())); }

    std::string inHome(const std::string& relative) const { return tree.path(relative).string(); }

    // Two units: caches (two items, one not preselected) and logs (one item).
    void planTwoCategories() {
        model.plan = {{"caches", "Caches", {fakeCategory("caches", inHome("c"), {"a", "b"}, 1000)}},
                      {"logs", "Logs", {fakeCategory("logs", inHome("l"), {"x"}, 500)}}};
        model.plan[0].found[0].items[1].selectedByDefault = false;
    }

    TestSupport::TempTree tree;
    Preferences preferences;
    FakeChannelModel model{preferences};
};

} // namespace

TEST_F(ModulePhaseLife, AChannelWithItsOwnWayOfRemovalIgnoresTheStoredChoiceAndTakesCompanionsAlong) {
    // As the trash channel: empty for good whatever is stored, and an index entry goes with its item.
    tree.file("bin/files/a", 10);
    tree.file("bin/info/a.entry", 1);
    tree.file("bin/info/b.entry", 1);
    tree.folder(".ssh");
    tree.file("bin/info/ssh.entry", 1);
    model.plan = {{"bin", "Bin", {fakeCategory("bin", inHome("bin/files"), {"a", "b"})}},
                  {"keys", "Keys", {fakeCategory("keys", inHome(""), {".ssh"})}}};
    model.fixedWay = CleanDestination::deleteForGood;
    model.companions[inHome("bin/files/a")] = {{URL::file(inHome("bin/info/a.entry")), 1}};
    model.companions[inHome("bin/files/b")] = {{URL::file(inHome("bin/info/b.entry")), 1}};
    model.companions[inHome(".ssh")] = {{URL::file(inHome("bin/info/ssh.entry")), 1}};
    preferences.setCleanDestination(CleanDestination::trash);
    ASSERT_TRUE(finishes(model.scan()));

    EXPECT_EQ(model.destination(), CleanDestination::deleteForGood);
    model.setDestinationRaw("trash");
    EXPECT_EQ(model.destination(), CleanDestination::deleteForGood) << "a fixed way cannot be changed";
    model.setConfirming(true);
    model.actions()->confirm();
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.phase() == ModulePhase::done; }, 5000));
    EXPECT_EQ(model.lastReport()->mode, RemovalMode::permanent);
    EXPECT_FALSE(std::filesystem::exists(inHome("bin/files/a")));
    EXPECT_FALSE(std::filesystem::exists(inHome("bin/info/a.entry"))) << "the companion of a removed item goes";
    EXPECT_FALSE(std::filesystem::exists(inHome("bin/info/b.entry"))) << "an item already gone counts as removed";
    EXPECT_TRUE(std::filesystem::exists(inHome("bin/info/ssh.entry"))) << "a refused item keeps its companion";
    EXPECT_FALSE(std::filesystem::exists(tree.root() / ".local/share/Trash/files/a"));
}

TEST_F(ModulePhaseLife, AScanWithNoFindingsLandsInEmptyAndTheRescanFindsWhatAppeared) {
    model.plan = {{"caches", "Caches", {}}};
    ASSERT_TRUE(finishes(model.scan()));
    EXPECT_EQ(model.phase(), ModulePhase::ready);
    EXPECT_EQ(model.painelPhase(), PainelPhase::empty);
    EXPECT_TRUE(model.hasScanned());
    EXPECT_EQ(model.progress().steps.at(0).state, ScanStep::State::done(0));

    planTwoCategories();
    ASSERT_TRUE(finishes(model.scan()));
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);
    EXPECT_EQ(model.allItems().size(), 3u);
    EXPECT_EQ(model.progress().itemCount, 3);
    EXPECT_EQ(model.progress().doneCount(), 2);
    EXPECT_FALSE(model.progress().currentPath.has_value());
    // Only what the scan preselects is selected.
    EXPECT_EQ(model.selection()->urls(), (std::unordered_set{URL::file(inHome("c/a")), URL::file(inHome("l/x"))}));
    const CleanupSummary summary = model.summary();
    ASSERT_EQ(summary.lines.size(), 2u);
    EXPECT_EQ(summary.lines[0], (CleanupLine{"caches", "Category caches", 1, 1000}));
    EXPECT_EQ(summary.count(), 2);
    EXPECT_EQ(summary.bytes(), 1500);
}

TEST_F(ModulePhaseLife, StepsRunOneAtATimeAndShowWhatIsBeingRead) {
    planTwoCategories();
    model.gate = std::make_shared<FakeChannelModel::Gate>();
    QFuture<void> scan = model.scan();
    EXPECT_EQ(model.phase(), ModulePhase::scanning);
    const ScanProgress& progress = model.progress();
    ASSERT_EQ(progress.steps.size(), 2u);
    EXPECT_EQ(progress.steps[0].state, ScanStep::State::scanning());
    EXPECT_EQ(progress.steps[1].state, ScanStep::State::waiting());
    EXPECT_EQ(progress.currentPath, "~/fake/caches");
    EXPECT_TRUE(progress.startedAt.isValid());
    EXPECT_FALSE(scan.isFinished());

    QSignalSpy finished(&model, &ModulePhaseModel::stepFinished);
    model.gate->open();
    ASSERT_TRUE(finishes(scan));
    EXPECT_EQ(finished.count(), 2);
    EXPECT_EQ(finished.at(0).at(0).toString(), "Caches");
    EXPECT_EQ(model.progress().steps[0].state, ScanStep::State::done(2000));
    EXPECT_EQ(model.progress().steps[1].state, ScanStep::State::done(500));
}

TEST_F(ModulePhaseLife, OneWalkOverSeveralAreasShowsATilePerAreaEachWithWhatItFound) {
    model.plan = {{"first", "First", {}}, {"walk", "Walk", {}, {{"docs", 300}, {"music", 0}, {"other", 20}}}};
    QStringList finished;
    QObject::connect(&model, &ModulePhaseModel::stepFinished, [&](const QString& title) { finished << title; });
    ASSERT_TRUE(finishes(model.scan()));
    ASSERT_EQ(model.progress().stepCount(), 4) << "the walk's own tile gives way to its areas";
    EXPECT_EQ(model.progress().steps[1].id, "docs");
    EXPECT_EQ(model.progress().steps[1].state, ScanStep::State::done(300));
    EXPECT_EQ(model.progress().steps[3].state, ScanStep::State::done(20));
    EXPECT_EQ(model.progress().doneCount(), 4);
    EXPECT_EQ(finished, (QStringList{"First", "Tile docs", "Tile music", "Tile other"}));
}

TEST_F(ModulePhaseLife, StopInAFirstScanReturnsToIdleWithNothingShown) {
    planTwoCategories();
    model.gate = std::make_shared<FakeChannelModel::Gate>();
    model.scanOnFirstVisit();
    ASSERT_EQ(model.phase(), ModulePhase::scanning);
    model.stop();
    // The unit under way runs to its end, then the scan gives up.
    EXPECT_EQ(model.phase(), ModulePhase::scanning);
    model.gate->open();
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.phase() != ModulePhase::scanning; }, 5000));
    EXPECT_EQ(model.phase(), ModulePhase::idle);
    EXPECT_FALSE(model.hasScanned());
    EXPECT_TRUE(model.allItems().empty());
    EXPECT_EQ(model.progress().steps[1].state, ScanStep::State::waiting());

    // The automatic scan was made; only the user starts the next one.
    model.scanOnFirstVisit();
    EXPECT_EQ(model.phase(), ModulePhase::idle);
}

TEST_F(ModulePhaseLife, StopInARescanKeepsTheEarlierResultsAndTheirSelection) {
    planTwoCategories();
    ASSERT_TRUE(finishes(model.scan()));
    model.selection()->setSelected(QString::fromStdString(inHome("c/b")), true);
    model.selection()->setSelected(QString::fromStdString(inHome("l/x")), false);
    const auto chosen = model.selection()->urls();
    const auto items = model.allItems();

    model.plan = {{"other", "Other", {fakeCategory("other", inHome("o"), {"q"})}}};
    model.gate = std::make_shared<FakeChannelModel::Gate>();
    QFuture<void> rescan = model.scan();
    model.stop();
    model.gate->open();
    ASSERT_TRUE(finishes(rescan));
    EXPECT_EQ(model.phase(), ModulePhase::ready);
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);
    EXPECT_EQ(model.allItems(), items);
    EXPECT_EQ(model.selection()->urls(), chosen);
}

TEST_F(ModulePhaseLife, ScanAndCleanAreRefusedWhileARemovalRuns) {
    planTwoCategories();
    ASSERT_TRUE(finishes(model.scan()));
    QFuture<void> cleaning = model.clean(RemovalMode::permanent);
    ASSERT_EQ(model.phase(), ModulePhase::cleaning);
    const ScanProgress before = model.progress();

    QFuture<void> refusedScan = model.scan();
    EXPECT_TRUE(refusedScan.isFinished());
    EXPECT_EQ(model.phase(), ModulePhase::cleaning);
    EXPECT_EQ(model.progress(), before);
    EXPECT_TRUE(model.clean(RemovalMode::permanent).isFinished());
    ASSERT_TRUE(finishes(cleaning));
    EXPECT_EQ(model.phase(), ModulePhase::done);
    // A scan also refuses to start twice.
    model.done();
    model.gate = std::make_shared<FakeChannelModel::Gate>();
    QFuture<void> first = model.scan();
    EXPECT_TRUE(model.scan().isFinished());
    model.gate->open();
    EXPECT_TRUE(finishes(first));
}

TEST_F(ModulePhaseLife, WhenEveryItemFailsTheReportStillComesAndTheItemsStaySelected) {
    // The home's own top folders are protected, so the guard refuses each of them.
    tree.folder("Documents");
    tree.folder("Desktop");
    model.plan = {
        {"docs", "Docs", {fakeCategory("docs", tree.root().string(), {"Documents", "Desktop"}, 4096)}}};
    ASSERT_TRUE(finishes(model.scan()));
    const auto selected = model.selection()->urls();
    ASSERT_EQ(selected.size(), 2u);

    ASSERT_TRUE(finishes(model.clean(RemovalMode::permanent)));
    EXPECT_EQ(model.painelPhase(), PainelPhase::success);
    ASSERT_TRUE(model.outcome().has_value());
    EXPECT_EQ(model.outcome()->bytes, 0);
    EXPECT_TRUE(model.outcome()->lines.empty());
    EXPECT_EQ(model.outcome()->failures.size(), 2u);
    EXPECT_EQ(model.outcome()->destination, CleanDestination::deleteForGood);
    EXPECT_TRUE(std::filesystem::exists(tree.path("Documents")));

    model.done();
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);
    EXPECT_EQ(model.allItems().size(), 2u);
    EXPECT_EQ(model.selection()->urls(), selected);
}

TEST_F(ModulePhaseLife, CleaningReportsPerCategoryAtScanSizesAndAGoneItemCountsAsRemoved) {
    tree.file("c/a", 10);
    tree.file("keep/k", 10);
    // "l/x" was never made: it is gone before the removal.
    model.plan = {{"caches", "Caches", {fakeCategory("caches", inHome("c"), {"a"}, 1000)}},
                  {"logs", "Logs", {fakeCategory("logs", inHome("l"), {"x"}, 500)}},
                  {"keep", "Keep", {fakeCategory("keep", inHome("keep"), {"k"}, 700, false)}}};
    ASSERT_TRUE(finishes(model.scan()));

    // When the phase turns done, the results, selection, report and outcome are all in place.
    bool consistentAtDone = false;
    QObject::connect(&model, &ModulePhaseModel::phaseChanged, [&] {
        if (model.phase() == ModulePhase::done)
            consistentAtDone = model.outcome() && model.lastReport() && model.allItems().size() == 1 &&
                               model.selection()->count() == 0;
    });
    ASSERT_TRUE(finishes(model.clean(RemovalMode::permanent)));
    EXPECT_TRUE(consistentAtDone);
    EXPECT_FALSE(std::filesystem::exists(tree.path("c/a")));
    EXPECT_TRUE(std::filesystem::exists(tree.path("keep/k")));

    const CleanupOutcome& outcome = *model.outcome();
    // The gone item adds nothing to the freed bytes, yet its line counts its scan-time size.
    EXPECT_EQ(outcome.bytes, 1000);
    EXPECT_EQ(outcome.lines, (std::vector<CleanupLine>{{"caches", "Category caches", 1, 1000},
                                                       {"logs", "Category logs", 1, 500}}));
    EXPECT_TRUE(outcome.failures.empty());
    EXPECT_EQ(model.lastReport()->removed.size(), 2u);

    model.done();
    EXPECT_EQ(model.phase(), ModulePhase::ready);
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);
    ASSERT_EQ(model.allItems().size(), 1u);
    EXPECT_EQ(model.allItems()[0].url, URL::file(inHome("keep/k")));
    // With nothing selected there is nothing to confirm or clean.
    model.setConfirming(true);
    EXPECT_FALSE(model.confirming());
    EXPECT_TRUE(model.clean(RemovalMode::permanent).isFinished());
    EXPECT_EQ(model.phase(), ModulePhase::ready);
}

TEST_F(ModulePhaseLife, ConfirmingShowsTheSheetAndConfirmCleansToTheStoredDestination) {
    tree.file("c/a", 10);
    model.plan = {{"caches", "Caches", {fakeCategory("caches", inHome("c"), {"a"})}}};
    ASSERT_TRUE(finishes(model.scan()));
    preferences.setCleanDestination(CleanDestination::deleteForGood);
    model.setConfirming(true);
    EXPECT_EQ(model.painelPhase(), PainelPhase::confirm);
    EXPECT_EQ(model.destination(), CleanDestination::deleteForGood);
    model.actions()->cancelConfirm();
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);

    model.setConfirming(true);
    std::vector<PainelPhase> screens;
    QObject::connect(&model, &ModulePhaseModel::painelPhaseChanged,
                     [&] { screens.push_back(model.painelPhase()); });
    model.actions()->confirm();
    EXPECT_FALSE(model.confirming());
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.phase() == ModulePhase::done; }, 5000));
    // The sheet closes straight into cleaning, never showing the results in between.
    EXPECT_EQ(screens, (std::vector{PainelPhase::cleaning, PainelPhase::success}));
    EXPECT_EQ(model.lastReport()->mode, RemovalMode::permanent);
    preferences.setCleanDestination(CleanDestination::trash);
}

TEST(ModulePhaseModel, AModelDestroyedDuringAScanLeavesItsFutureFinished) {
    Preferences preferences;
    auto doomed = std::make_unique<FakeChannelModel>(preferences);
    doomed->plan = {{"caches", "Caches", {fakeCategory("caches", "/nowhere", {"a"})}}};
    doomed->gate = std::make_shared<FakeChannelModel::Gate>();
    auto gate = doomed->gate;
    QFuture<void> orphan = doomed->scan();
    doomed.reset();
    gate->open();
    EXPECT_TRUE(finishes(orphan));
}
