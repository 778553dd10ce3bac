#include "CleanerCore/Display/CoreL10n.hpp"
#include "JunkHome.hpp"
#include "App/Preferences.hpp"
#include "Modules/Junk/JunkCategoryList.hpp"
#include "Modules/Shared/CleanupItemList.hpp"
#include "Modules/Junk/SystemJunkModel.hpp"
#include "TempTree.hpp"

#include "Support/QmlTestSupport.hpp"
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using CleanerCore::JunkGroup;
using CleanerCore::JunkRule;
using CleanerCore::URL;
using testing::ElementsAre;
namespace fs = std::filesystem;

namespace {

using State = CleanupSelection::State;

using QmlTestSupport::finish;

QVariant role(const JunkCategoryList& rows, int row, JunkCategoryList::Role which) {
    return rows.data(rows.index(row), which);
}

int rowOf(const JunkCategoryList& rows, const QString& ruleId) {
    for (int row = 0; row < rows.rowCount(); ++row)
        if (role(rows, row, JunkCategoryList::RuleIdRole).toString() == ruleId)
            return row;
    return -1;
}

struct JunkModel : testing::Test {
    TestSupport::TempTree tree;
    Preferences preferences;
    SystemJunkModel model{preferences};
    JunkCategoryList& rows = *model.categoryList();
    QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
    int runningReads = 0;

    void SetUp() override {
        TestSupport::buildJunkHome(tree.root());
        model.setHome(URL::file(tree.root().string()));
        model.setRunningBundleIDs([this] {
            ++runningReads;
            return std::set<std::string>{"com.example.app"};
        });
    }
    const JunkGroup& group(const std::string& id) const {
        return *std::ranges::find(model.groups(), id, &JunkGroup::id);
    }
};

} // namespace

TEST_F(JunkModel, ScanTicksOffEachRuleAndPreselectsWhatTheRulesSay) {
    fs::remove_all(tree.path("Library/Logs"));
    finish(model.scan());

    EXPECT_EQ(model.phase(), ModulePhase::ready);
    EXPECT_EQ(runningReads, 1) << "the running applications are read once per scan";
    ASSERT_EQ(model.groups().size(), 6u);
    const auto& steps = model.progress().steps;
    ASSERT_EQ(steps.size(), 6u);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        EXPECT_EQ(steps[i].id.toStdString(), JunkRule::defaults()[i].id);
        EXPECT_EQ(steps[i].state, ScanStep::State::done(model.groups()[i].totalSize()));
    }
    // A rule with nothing found keeps its tile, done with 0 bytes, but gets no row.
    EXPECT_EQ(steps[1].state, ScanStep::State::done(0));
    EXPECT_EQ(rows.rowCount(), 5);
    EXPECT_EQ(rowOf(rows, "user-logs"), -1);

    // The open application's cache is listed with its note, off, and its category shows mixed.
    const JunkGroup& caches = group("user-caches");
    EXPECT_EQ(caches.items[0].note, CleanerCore::CoreL10n::string("core.note.appOpen"));
    EXPECT_FALSE(model.selection()->contains(caches.items[0].url));
    EXPECT_TRUE(model.selection()->contains(caches.items[1].url));
    EXPECT_EQ(model.selection()->stateOf(caches.items), (State{false, true}));
    const int cacheRow = rowOf(rows, "user-caches");
    EXPECT_TRUE(role(rows, cacheRow, JunkCategoryList::IsMixedRole).toBool());
    const auto* items = role(rows, cacheRow, JunkCategoryList::ItemsRole).value<CleanupItemList*>();
    ASSERT_NE(items, nullptr);
    EXPECT_EQ(items->data(items->index(0), CleanupItemList::SubtitleRole), QString::fromStdString(*caches.items[0].note));
    EXPECT_EQ(items->data(items->index(1), CleanupItemList::SubtitleRole), "~/Library/Caches/com.example.tool");

    // The largest category fills its meter; the others are measured against it.
    const JunkGroup& largest = *std::ranges::max_element(model.groups(), {}, &JunkGroup::totalSize);
    EXPECT_DOUBLE_EQ(
        role(rows, rowOf(rows, QString::fromStdString(largest.id())), JunkCategoryList::FractionRole)
            .toDouble(),
        1.0);
    EXPECT_DOUBLE_EQ(role(rows, rowOf(rows, "dev-caches"), JunkCategoryList::FractionRole).toDouble(),
                     double(group("dev-caches").totalSize()) / double(largest.totalSize()));
}

TEST_F(JunkModel, RulesLeftOffStartOffWithTheirTagAndTurnOnWhole) {
    finish(model.scan());
    const JunkGroup& dot = group("dot-cache");
    EXPECT_EQ(model.selection()->stateOf(dot.items), (State{false, false}));
    const int dotRow = rowOf(rows, "dot-cache");
    EXPECT_EQ(role(rows, dotRow, JunkCategoryList::TagRole), "junk.tag.review");
    EXPECT_EQ(role(rows, rowOf(rows, "xcode"), JunkCategoryList::TagRole), "");

    model.toggleGroup("dot-cache");
    EXPECT_EQ(model.selection()->stateOf(dot.items), (State{true, false}));
    EXPECT_TRUE(role(rows, dotRow, JunkCategoryList::IsOnRole).toBool());
    model.toggleGroup("dot-cache");
    EXPECT_EQ(model.selection()->stateOf(dot.items), (State{false, false}));

    // A mixed category turns on whole; one item turned off makes it mixed again.
    model.toggleGroup("user-caches");
    EXPECT_EQ(model.selection()->stateOf(group("user-caches").items), (State{true, false}));
    const auto* items = role(rows, rowOf(rows, "user-caches"), JunkCategoryList::ItemsRole).value<CleanupItemList*>();
    ASSERT_NE(items, nullptr);
    QSignalSpy lamps(items, &QAbstractItemModel::dataChanged);
    QSignalSpy resets(items, &QAbstractItemModel::modelReset);
    model.selection()->setSelected(QString::fromStdString(group("user-caches").items[2].url.path()), false);
    EXPECT_EQ(model.selection()->stateOf(group("user-caches").items), (State{false, true}));
    EXPECT_FALSE(items->data(items->index(2), CleanupItemList::SelectedRole).toBool());
    EXPECT_EQ(lamps.count(), 1) << "the item's lamp changes in place";
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(role(rows, rowOf(rows, "user-caches"), JunkCategoryList::ItemsRole).value<CleanupItemList*>(), items)
        << "the rows keep their item lists, so an open list and its focus stay";
}

TEST(JunkModelCleaning, AfterAPartialFailureTheRowsShowWhatRemains) {
    TestSupport::TempTree tree;
    tree.file("Stuff/a.tmp", 40000);
    tree.file("Stuff/b.tmp", 20000);
    tree.file("Library/Preferences/keep.plist", 4000);
    const std::vector<JunkRule> rules{
        {"stuff", "Stuff", "", "", {JunkRule::Source::contents("Stuff")}, true},
        // The home's own Library folder: proposed by this rule, refused by the guard at removal.
        {"library", "Library", "", "", {JunkRule::Source::folder("Library")}, true},
    };
    Preferences preferences;
    SystemJunkModel model(preferences, rules);
    model.setHome(URL::file(tree.root().string()));
    model.setRunningBundleIDs([] { return std::set<std::string>{}; });
    finish(model.scan());
    ASSERT_EQ(model.selectedItems().size(), 3u);
    const std::int64_t stuffBytes = model.groups()[0].totalSize();

    finish(model.clean(CleanerCore::RemovalMode::trash));
    EXPECT_EQ(model.phase(), ModulePhase::done);
    ASSERT_TRUE(model.outcome());
    EXPECT_EQ(model.outcome()->lines, (std::vector<CleanupLine>{{"stuff", "Stuff", 2, stuffBytes}}));
    EXPECT_EQ(model.outcome()->failures.size(), 1u);
    EXPECT_TRUE(fs::exists(tree.path("Library/Preferences/keep.plist")));
    EXPECT_FALSE(fs::exists(tree.path("Stuff/a.tmp")));

    // Both groups stay; the emptied one loses its row, the refused item stays listed and selected.
    ASSERT_EQ(model.groups().size(), 2u);
    EXPECT_TRUE(model.groups()[0].items.empty());
    model.done();
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);
    const JunkCategoryList& rows = *model.categoryList();
    ASSERT_EQ(rows.rowCount(), 1);
    EXPECT_EQ(role(rows, 0, JunkCategoryList::RuleIdRole), "library");
    EXPECT_EQ(model.selection()->stateOf(model.groups()[1].items), (State{true, false}));
    EXPECT_EQ(model.selection()->count(), 1);
}
