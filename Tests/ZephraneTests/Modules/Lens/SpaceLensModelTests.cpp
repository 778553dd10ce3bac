#include "App/Preferences.hpp"
#include "DiskTreeChecks.hpp"
#include "Modules/Lens/LensMarks.hpp"
#include "Modules/Lens/LensRowsModel.hpp"
#include "Modules/Lens/LensText.hpp"
#include "Modules/Lens/SpaceLensModel.hpp"
#include "Painel/ByteFormat.hpp"
#include "Support/QmlTestSupport.hpp"
#include "TempTree.hpp"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using CleanerCore::DiskNode;
using CleanerCore::URL;
using Node = DiskNode::Pointer;

namespace {

using DiskTreeChecks::folder;
const auto file = DiskTreeChecks::leaf;

URL url(const std::string& path) {
    return URL::file(path);
}

// The model with its results handed in directly, so that navigation, marks and the rebuild after a
// removal can be tested on a tree of known shape.
struct OwnPreferences {
    Preferences preferences;
};
class LensUnderTest : private OwnPreferences, public SpaceLensModel {
public:
    LensUnderTest() : SpaceLensModel(OwnPreferences::preferences) {}
    using SpaceLensModel::categories;
    using SpaceLensModel::dropRemoved;
    void adopt(Node tree) { navigation()->show(std::move(tree)); }
};

//  /r (1000)
//    docs (600): big.pdf 400, notes (200): a.txt 150, b.txt 50
//    music (300): song 300
//    small (100): .zephrane-small-items 100
Node sampleTree() {
    const Node small = DiskTreeChecks::aggregate("/r", 100, 4);
    return folder("/r", {folder("/r/docs", {file("/r/docs/big.pdf", 400),
                                            folder("/r/docs/notes", {file("/r/docs/notes/a.txt", 150),
                                                                     file("/r/docs/notes/b.txt", 50)})}),
                         folder("/r/music", {file("/r/music/song", 300)}), small});
}

std::vector<std::string> paths(const std::vector<Node>& nodes) {
    std::vector<std::string> out;
    for (const Node& node : nodes)
        out.push_back(node->path());
    return out;
}

using QmlTestSupport::finishes;

} // namespace

TEST(SpaceLensMarks, AnEnclosingMarkWinsWhicheverComesFirst) {
    LensUnderTest lens;
    lens.adopt(sampleTree());
    lens.toggleMark(url("/r/docs"));
    lens.toggleMark(url("/r/docs/notes/a.txt"));
    EXPECT_EQ(lens.selection()->urls(), (std::unordered_set<URL>{url("/r/docs")}));
    EXPECT_TRUE(lens.isMarked(url("/r/docs/notes/a.txt")));

    lens.toggleMark(url("/r/docs"));
    EXPECT_TRUE((lens.selection()->count() == 0));

    lens.toggleMark(url("/r/docs/notes/a.txt"));
    lens.toggleMark(url("/r/music/song"));
    EXPECT_TRUE(LensMarks::hasInside(lens.selection()->urls(), url("/r/docs")));
    EXPECT_FALSE(lens.isMarked(url("/r/docs")));
    lens.toggleMark(url("/r/docs"));
    EXPECT_EQ(lens.selection()->urls(), (std::unordered_set<URL>{url("/r/docs"), url("/r/music/song")}));

    // The aggregate stands for many items and is never marked.
    lens.toggleMark(url("/r/.zephrane-small-items"));
    EXPECT_EQ(lens.selection()->urls().size(), 2u);

    EXPECT_EQ(paths(lens.markedNodes()), (std::vector<std::string>{"/r/docs", "/r/music/song"}));
    EXPECT_EQ(lens.markedCount(), 2);
    EXPECT_EQ(lens.markedBytes(), 900);
    const auto categories = lens.categories();
    ASSERT_EQ(categories.size(), 2u);
    EXPECT_EQ(categories[0].title, "docs");
    EXPECT_EQ(categories[0].items.front().size, 600);

    // Marked nodes skip what the tree no longer holds.
    lens.selection()->set({url("/r/music"), url("/r/gone")});
    EXPECT_EQ(paths(lens.markedNodes()), (std::vector<std::string>{"/r/music"}));
}

TEST(SpaceLensNavigation, OpensFoldersGoesUpAndKeepsTheFolderLeftBehindLit) {
    QmlTestSupport::AnnouncementLog announced;
    LensUnderTest lens;
    lens.adopt(sampleTree());
    lens.navigation()->goUp();
    EXPECT_EQ(lens.navigation()->path().size(), 1u);
    EXPECT_FALSE(lens.navigation()->canGoUp());

    lens.navigation()->open(url("/r/music/song")); // a file
    lens.navigation()->open(url("/r/.zephrane-small-items"));
    EXPECT_EQ(lens.navigation()->path().size(), 1u);

    lens.navigation()->setCursor(url("/r/music"));
    lens.navigation()->open(url("/r/docs"));
    EXPECT_EQ(paths(lens.navigation()->path()), (std::vector<std::string>{"/r", "/r/docs"}));
    EXPECT_FALSE(lens.navigation()->cursor());
    EXPECT_EQ(lens.navigation()->segments().front().path, "/r/docs/big.pdf");
    lens.navigation()->open(url("/r/docs/notes"));
    EXPECT_EQ(lens.navigation()->pathNames(), (QStringList{"r", "docs", "notes"}));

    lens.navigation()->goUp();
    EXPECT_EQ(lens.navigation()->focusNode()->path(), "/r/docs");
    EXPECT_EQ(lens.navigation()->cursor(), url("/r/docs/notes"));
    EXPECT_EQ(lens.navigation()->highlightedRowIndex(), 1);
    EXPECT_EQ(lens.navigation()->centreTitle(), "notes");
    EXPECT_EQ(lens.navigation()->centreLine(), "33% of docs");

    lens.navigation()->goToLevel(0);
    lens.navigation()->open(url("/r/docs/notes")); // a ring deeper than the rows: the way down is kept
    EXPECT_EQ(lens.navigation()->pathNames(), (QStringList{"r", "docs", "notes"}));
    lens.navigation()->goToLevel(2); // already there
    EXPECT_EQ(lens.navigation()->path().size(), 3u);
    lens.navigation()->goToLevel(0);
    EXPECT_EQ(lens.navigation()->path().size(), 1u);
    EXPECT_EQ(lens.navigation()->cursor(), url("/r/docs"));
    EXPECT_EQ(lens.navigation()->centreLine(), "60% of r");
    EXPECT_EQ(announced.said, (QStringList{"Showing docs", "Showing notes", "Showing docs", "Showing r",
                                           "Showing notes", "Showing r"}));
}

TEST(SpaceLensNavigation, TheCursorStartsAtAnEndAndStopsAtTheEdgesAndHoverWins) {
    LensUnderTest lens;
    lens.navigation()->moveCursor(1); // no tree, no rows
    EXPECT_FALSE(lens.navigation()->cursor());
    lens.adopt(sampleTree());
    lens.navigation()->moveCursor(-1);
    EXPECT_EQ(lens.navigation()->cursor(), url("/r/.zephrane-small-items"));
    lens.navigation()->moveCursor(1);
    EXPECT_EQ(lens.navigation()->highlightedRowIndex(), 2);
    lens.navigation()->moveCursor(-5);
    EXPECT_EQ(lens.navigation()->cursor(), url("/r/docs"));
    lens.navigation()->setCursor(std::nullopt);
    lens.navigation()->moveCursor(1);
    EXPECT_EQ(lens.navigation()->cursor(), url("/r/docs"));

    // A pointer over a deep arc lights the row that holds it.
    lens.navigation()->setHovered(url("/r/music/song"));
    EXPECT_EQ(lens.navigation()->highlightedRow(), url("/r/music"));
    EXPECT_EQ(lens.navigation()->highlightedNode()->path(), "/r/music/song");
    lens.navigation()->moveCursor(-1);
    EXPECT_FALSE(lens.navigation()->hovered());
    EXPECT_EQ(lens.navigation()->cursor(), url("/r/docs"));
    lens.navigation()->moveCursor(2);
    EXPECT_EQ(lens.navigation()->centreTitle(), "4 small items");
    EXPECT_EQ(lens.navigation()->centreLine(), "10% of r");
}

// The window test walks the arrows; here, what it leaves out: Return, Alt, right to left, other keys.
TEST(SpaceLensNavigation, KeysMoveOpenMarkAndMirrorRightToLeft) {
    LensUnderTest lens;
    lens.adopt(sampleTree());
    const auto focus = [&] { return lens.navigation()->focusNode()->path(); };
    EXPECT_TRUE(lens.handleKey(Qt::Key_Down, Qt::NoModifier, false));
    lens.handleKey(Qt::Key_Return, Qt::NoModifier, false);
    EXPECT_EQ(focus(), "/r/docs");
    lens.handleKey(Qt::Key_Up, Qt::AltModifier, false);
    EXPECT_EQ(focus(), "/r");
    // Right to left, the left arrow opens and the right one goes back.
    lens.handleKey(Qt::Key_Left, Qt::NoModifier, true);
    EXPECT_EQ(focus(), "/r/docs");
    lens.handleKey(Qt::Key_Right, Qt::NoModifier, true);
    EXPECT_EQ(focus(), "/r");
    lens.handleKey(Qt::Key_Space, Qt::NoModifier, false);
    EXPECT_TRUE(lens.isMarked(url("/r/docs")));
    EXPECT_FALSE(lens.handleKey(Qt::Key_A, Qt::NoModifier, false));
}

TEST(SpaceLensRemoval, TheTreeShrinksUpToTheRootAndThePathHoldsWhereItCan) {
    LensUnderTest lens;
    lens.adopt(sampleTree());
    lens.navigation()->open(url("/r/docs"));
    lens.navigation()->open(url("/r/docs/notes"));
    lens.toggleMark(url("/r/docs/notes/a.txt"));
    lens.toggleMark(url("/r/music"));
    lens.selection()->set({url("/r/docs/notes/a.txt"), url("/r/music"), url("/r/music/song")});
    lens.navigation()->setCursor(url("/r/docs/notes/b.txt"));

    lens.dropRemoved({url("/r/docs/notes/a.txt"), url("/r/music")});
    EXPECT_EQ(lens.navigation()->root()->size(), 550);
    EXPECT_EQ(paths(lens.navigation()->path()), (std::vector<std::string>{"/r", "/r/docs", "/r/docs/notes"}));
    EXPECT_EQ(lens.navigation()->path()[1]->size(), 450);
    EXPECT_EQ(lens.navigation()->focusNode()->size(), 50);
    EXPECT_EQ(lens.navigation()->focusNode()->itemCount(), 1);
    // Marks on removed items and inside them are gone.
    EXPECT_TRUE((lens.selection()->count() == 0));
    EXPECT_FALSE(lens.navigation()->cursor());

    // The focus's last child goes: the focus stays open, with no rows.
    lens.dropRemoved({url("/r/docs/notes/b.txt")});
    EXPECT_EQ(lens.navigation()->focusNode()->path(), "/r/docs/notes");
    EXPECT_TRUE(lens.navigation()->rowNodes().empty());
    EXPECT_TRUE(lens.navigation()->segments().empty());
    EXPECT_EQ(lens.rows()->rowCount(), 0);

    // The focus itself goes: the path ends at the last folder still there.
    lens.dropRemoved({url("/r/docs/notes")});
    EXPECT_EQ(paths(lens.navigation()->path()), (std::vector<std::string>{"/r", "/r/docs"}));
}

TEST(SpaceLensRows, RowsFollowTheFocusMarksAndHighlight) {
    LensUnderTest lens;
    QAbstractItemModelTester tester(lens.rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    lens.adopt(sampleTree());
    LensRowsModel& rows = *lens.rows();
    ASSERT_EQ(rows.rowCount(), 3);
    const auto value = [&](int row, int role) { return rows.data(rows.index(row), role); };
    EXPECT_EQ(value(0, LensRowsModel::NameRole).toString(), "docs");
    EXPECT_EQ(value(0, LensRowsModel::ShareRole).toString(), "60%");
    EXPECT_DOUBLE_EQ(value(1, LensRowsModel::FractionRole).toDouble(), 0.3);
    EXPECT_EQ(value(2, LensRowsModel::NameRole).toString(), "4 small items");
    EXPECT_FALSE(value(2, LensRowsModel::CanMarkRole).toBool());
    EXPECT_FALSE(value(2, LensRowsModel::CanOpenRole).toBool());
    EXPECT_TRUE(value(0, LensRowsModel::CanOpenRole).toBool());

    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    lens.toggleMark(url("/r/docs/notes"));
    EXPECT_FALSE(changed.isEmpty());
    EXPECT_TRUE(value(0, LensRowsModel::IsMixedRole).toBool());
    EXPECT_FALSE(value(0, LensRowsModel::IsOnRole).toBool());
    lens.toggleMark(url("/r/docs"));
    EXPECT_TRUE(value(0, LensRowsModel::IsOnRole).toBool());
    EXPECT_FALSE(value(0, LensRowsModel::IsMixedRole).toBool());
    lens.navigation()->setHovered(url("/r/music/song"));
    EXPECT_TRUE(value(1, LensRowsModel::IsHighlightedRole).toBool());

    // Inside a marked folder a row is covered by it, not marked itself: its own key has nothing to undo.
    lens.navigation()->open(url("/r/docs"));
    EXPECT_EQ(rows.rowCount(), 2);
    EXPECT_TRUE(value(1, LensRowsModel::IsCoveredRole).toBool());
    EXPECT_FALSE(value(1, LensRowsModel::IsOnRole).toBool());

    // The pointer leaving a row ends its highlight, unless it is already over another.
    LensNavigation& nav = *lens.navigation();
    nav.setHoveredPath("/r/docs/big.pdf");
    nav.setHoveredPath("/r/docs/notes");
    nav.leave("/r/docs/big.pdf");
    EXPECT_EQ(nav.hovered(), url("/r/docs/notes"));
    nav.leave("/r/docs/notes");
    EXPECT_FALSE(nav.hovered());
}

TEST(SpaceLensScan, ScansTheChosenFolderAndCancelsBackToWhatWasThere) {
    TestSupport::TempTree tree;
    tree.file("a/one.bin", 300000);
    tree.file("a/b/two.bin", 200000);
    tree.file("three.bin", 100000);

    Preferences preferences;
    SpaceLensModel lens(preferences);
    EXPECT_EQ(lens.scanRoot(), URL::file(QDir::homePath().toStdString()));
    lens.setScanRoot(URL::file(tree.root().string()));
    // The home folder and the root have names of their own.
    EXPECT_EQ(LensText::displayName(URL::file(QDir::homePath().toStdString() + "/")), "Home");
    EXPECT_EQ(LensText::displayName(url("/")), "/");

    // Cancelled before anything came back: back to idle, nothing kept.
    QFuture<void> first = lens.scan();
    EXPECT_EQ(lens.phase(), ModulePhase::scanning);
    lens.stop();
    ASSERT_TRUE(finishes(first));
    EXPECT_EQ(lens.phase(), ModulePhase::idle);
    EXPECT_FALSE(lens.hasTree());

    ASSERT_TRUE(finishes(lens.scan()));
    ASSERT_EQ(lens.phase(), ModulePhase::ready);
    const Node scanned = lens.navigation()->root();
    ASSERT_TRUE(scanned);
    EXPECT_EQ(lens.foundSpoken(), ByteFormat::spoken(static_cast<double>(scanned->size())))
        << "the results are announced with the size of the map, not of the (empty) marks";
    EXPECT_GE(scanned->size(), 600000);
    EXPECT_EQ(lens.progress().steps[0].state, ScanStep::State::done(scanned->size()));
    EXPECT_EQ(lens.progress().itemCount, scanned->itemCount());
    EXPECT_EQ(lens.painelPhase(), PainelPhase::results);

    lens.toggleMark(URL::file(tree.path("three.bin").string()));
    QFuture<void> again = lens.scan();
    lens.stop();
    ASSERT_TRUE(finishes(again));
    EXPECT_EQ(lens.phase(), ModulePhase::ready);
    EXPECT_EQ(lens.navigation()->root(), scanned);
    EXPECT_EQ(lens.markedCount(), 1);

    // A new tree starts with no marks.
    ASSERT_TRUE(finishes(lens.scan()));
    EXPECT_NE(lens.navigation()->root(), scanned);
    EXPECT_EQ(lens.markedCount(), 0);
}

TEST(SpaceLensScan, TheChooserStartsAtTheScanRootAndAnEmptyFolderShowsTheEmptyScreen) {
    TestSupport::TempTree tree;
    Preferences preferences;
    SpaceLensModel lens(preferences);
    QSignalSpy asked(&lens, &SpaceLensModel::folderChoiceRequested);
    lens.chooseFolderAndScan();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.front().front().toUrl(), QUrl::fromLocalFile(QDir::homePath()));

    lens.scanFolder(QUrl::fromLocalFile(QString::fromStdString(tree.root().string())));
    ASSERT_TRUE(QTest::qWaitFor([&] { return lens.phase() != ModulePhase::scanning; }, 20000));
    EXPECT_EQ(lens.painelPhase(), PainelPhase::empty);
    EXPECT_EQ(lens.scanRoot(), URL::file(tree.root().string()));
}
