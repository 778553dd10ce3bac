#include "App/Preferences.hpp"
#include "Modules/Leftovers/LeftoverGroupList.hpp"
#include "Modules/Leftovers/LeftoversModel.hpp"
#include "TempTree.hpp"

#include "Support/QmlTestSupport.hpp"
#include <QAbstractItemModelTester>
#include <QTest>

#include <gtest/gtest.h>

using CleanerCore::RemovalMode;
using CleanerCore::URL;
namespace fs = std::filesystem;

namespace {

using State = CleanupSelection::State;

using QmlTestSupport::finish;

// What two removed apps left in a temporary home: three things of org.gone.Editor (its sandbox data
// makes the group believable) and one of net.old.Viewer; an installed app's files beside them.
struct Leftovers : testing::Test {
    TestSupport::TempTree tree;
    Preferences preferences;
    LeftoversModel model{preferences};
    QAbstractItemModelTester tester{model.groupList(), QAbstractItemModelTester::FailureReportingMode::Fatal};
    bool granted = true;

    void SetUp() override {
        tree.file(".var/app/org.gone.Editor/data/big", 2 * 1024 * 1024);
        tree.file(".cache/org.gone.Editor/c", 4096);
        tree.file(".config/org.gone.Editor/settings", 100);
        tree.file(".var/app/net.old.Viewer/data/x", 4096);
        tree.file(".var/app/org.here.Player/data/x", 4096);
        model.setHome(URL::file(tree.root().string()));
        model.setKnownSource([] { return std::unordered_set<std::string>{"org.here.player"}; });
        model.setAccessProbe([this] { return granted; });
    }
    const CleanerCore::OrphanGroup& group(const char* id) const { return *model.group(id); }
    State state(const char* id) const { return model.selection()->stateOf(group(id).items); }
};

} // namespace

TEST_F(Leftovers, NothingStartsTickedAndGroupBoxesGoMixedThenFull) {
    finish(model.scan());
    ASSERT_EQ(model.phase(), ModulePhase::ready);
    ASSERT_EQ(model.groups().size(), 2u);
    EXPECT_EQ(model.groups()[0].bundleID, "org.gone.editor") << "largest group first";
    EXPECT_EQ(model.groupList()->rowCount(), 2);
    EXPECT_EQ(model.selection()->count(), 0);

    const auto& editor = group("org.gone.editor");
    ASSERT_EQ(editor.items.size(), 3u);
    model.selection()->setSelected(editor.items[1].url, true);
    EXPECT_EQ(state("org.gone.editor"), (State{false, true}));
    EXPECT_TRUE(model.groupList()->data(model.groupList()->index(0), LeftoverGroupList::IsMixedRole).toBool());
    model.toggleGroup("org.gone.editor");
    EXPECT_EQ(state("org.gone.editor"), (State{true, false})) << "a mixed box ticks all";
    model.toggleGroup("org.gone.editor");
    EXPECT_EQ(state("org.gone.editor"), (State{false, false}));

    // One line for the whole selection, across groups.
    model.toggleGroup("org.gone.editor");
    model.toggleGroup("net.old.viewer");
    ASSERT_EQ(model.summary().lines.size(), 1u);
    EXPECT_EQ(model.summary().count(), 4);
}

TEST_F(Leftovers, GroupsThatLoseTheirLastItemDisappear) {
    finish(model.scan());
    const auto& viewer = group("net.old.viewer");
    model.selection()->setSelected(viewer.items, true);
    model.selection()->setSelected(group("org.gone.editor").items[0].url, true);
    finish(model.clean(RemovalMode::permanent));
    ASSERT_EQ(model.phase(), ModulePhase::done);
    EXPECT_FALSE(fs::exists(tree.path(".var/app/net.old.Viewer")));
    EXPECT_TRUE(fs::exists(tree.path(".var/app/org.here.Player"))) << "an installed app's data is no leftover";
    ASSERT_EQ(model.groups().size(), 1u);
    EXPECT_EQ(group("org.gone.editor").items.size(), 2u);
    EXPECT_EQ(model.groupList()->rowCount(), 1);
    EXPECT_EQ(model.selection()->count(), 0);
    model.done();

    model.toggleGroup("org.gone.editor");
    finish(model.clean(RemovalMode::permanent));
    model.done();
    EXPECT_TRUE(model.groups().empty());
    EXPECT_EQ(model.painelPhase(), PainelPhase::empty);
}

TEST_F(Leftovers, AScanWithoutAccessIsPartialNotFailed) {
    granted = false;
    model.setKnownSource([] { return std::unordered_set<std::string>{"org.gone.editor", "net.old.viewer", "org.here.player"}; });
    finish(model.scan());
    EXPECT_TRUE(model.isPartial());
    EXPECT_EQ(model.painelPhase(), PainelPhase::empty);
    granted = true;
    finish(model.scan());
    EXPECT_FALSE(model.isPartial());
}
