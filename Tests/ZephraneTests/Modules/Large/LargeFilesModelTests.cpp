#include "App/Preferences.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"
#include "FaultySystemCalls.hpp"
#include "LargeHome.hpp"
#include "Modules/Large/LargeFileList.hpp"
#include "Modules/Large/LargeFilesModel.hpp"
#include "TempTree.hpp"

#include "Support/QmlTestSupport.hpp"
#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

using CleanerCore::FileKind;
using CleanerCore::LargeFileAge;
using CleanerCore::LargeFileSort;
using CleanerCore::URL;
using testing::ElementsAre;
namespace fs = std::filesystem;

namespace {

using State = CleanupSelection::State;
constexpr std::int64_t MB = 1000000;

using QmlTestSupport::finish;

std::int64_t allocated(const fs::path& path) {
    return TestSupport::allocatedBytes(path.c_str());
}

struct LargeModel : testing::Test {
    TestSupport::TempTree tree;
    Preferences preferences;
    LargeFilesModel model{preferences};
    LargeFileList& rows = *model.list();
    QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
    const std::chrono::system_clock::time_point now =
        std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());

    void SetUp() override {
        TestSupport::buildLargeHome(tree.root(), now);
        model.setHome(URL::file(tree.root().string()));
        model.setClock([this] { return now; });
    }
    // The names the list shows, top to bottom, as its rows say them.
    std::vector<std::string> shown() const {
        std::vector<std::string> names;
        for (int row = 0; row < rows.rowCount(); ++row)
            names.push_back(rows.data(rows.index(row), LargeFileList::NameRole).toString().toStdString());
        return names;
    }
    // Ticks the shown row of that name, as a click on it does.
    void toggle(std::string_view name) {
        const auto names = shown();
        const auto found = std::ranges::find(names, name);
        ASSERT_NE(found, names.end()) << name;
        model.toggleRow(static_cast<int>(found - names.begin()));
    }
    bool rowSelected(int row) const { return rows.data(rows.index(row), LargeFileList::SelectedRole).toBool(); }
};

} // namespace

TEST_F(LargeModel, OneWalkTicksOffATilePerFolderThenOtherFoldersAndNothingStartsSelected) {
    finish(model.scan());
    ASSERT_EQ(model.phase(), ModulePhase::ready);

    // Library is skipped and the package is no folder to enter.
    const auto& steps = model.progress().steps;
    std::vector<std::string> ids;
    for (const ScanStep& step : steps) {
        ids.push_back(step.id.toStdString());
        EXPECT_TRUE(step.state.isDone()) << step.id.toStdString();
    }
    EXPECT_THAT(ids, ElementsAre("Documents", "Downloads", "Movies", "/"));
    EXPECT_EQ(steps[3].title, qtTrId("large.scan.otherFolders"));
    EXPECT_EQ(steps[0].state.bytes, allocated(tree.path("Documents/report.pdf")));
    EXPECT_EQ(steps[1].state.bytes,
              allocated(tree.path("Downloads/disk.iso")) + allocated(tree.path("Downloads/backup.zip")));
    EXPECT_EQ(steps[2].state.bytes, allocated(tree.path("Movies/holiday.mp4")));
    EXPECT_EQ(steps[3].state.bytes, 0);
    // What lies right in the home is found, but counts in no tile: the file and the package, whole.
    std::int64_t tiles = 0;
    for (const ScanStep& step : steps)
        tiles += step.state.bytes;
    EXPECT_EQ(model.foundBytes() - tiles, allocated(tree.path("loose.bin")) +
                                              allocated(tree.path("Album.photoslibrary/a")) +
                                              allocated(tree.path("Album.photoslibrary/b")));
    EXPECT_EQ(model.files().size(), 6u);
    EXPECT_EQ(model.progress().itemCount, 6);

    EXPECT_EQ(model.selection()->count(), 0) << "a large file is the user's to judge, none is preselected";
    // The default filter is 100 MB and any age, largest first; the meter measures against the largest.
    EXPECT_THAT(shown(), ElementsAre("holiday.mp4", "disk.iso", "backup.zip"));
    EXPECT_DOUBLE_EQ(rows.data(rows.index(0), LargeFileList::FractionRole).toDouble(), 1.0);
    EXPECT_DOUBLE_EQ(rows.data(rows.index(2), LargeFileList::FractionRole).toDouble(),
                     static_cast<double>(allocated(tree.path("Downloads/backup.zip"))) /
                         static_cast<double>(allocated(tree.path("Movies/holiday.mp4"))));
    EXPECT_EQ(rows.data(rows.index(0), LargeFileList::FolderRole).toString(), "~/Movies");
}

TEST_F(LargeModel, FiltersKeepTheSelectionWhileSelectAllJudgesOnlyWhatIsShownAndARescanClearsIt) {
    finish(model.scan());
    model.toggleSelectAll();
    EXPECT_EQ(model.selection()->count(), 3);
    EXPECT_EQ(model.selectionState(), (State{true, false}));
    EXPECT_TRUE(rowSelected(0) && rowSelected(1) && rowSelected(2));

    // A lower floor shows three more, none selected: the box is mixed and a press adds them.
    model.setMinimumSize(50 * MB);
    EXPECT_EQ(rows.rowCount(), 6);
    EXPECT_EQ(model.selection()->count(), 3);
    EXPECT_EQ(model.selectAllState(), "mixed");
    model.toggleSelectAll();
    EXPECT_EQ(model.selection()->count(), 6);

    // One kind: the video alone, selected; turning it off leaves the hidden selected files alone.
    model.setKind(FileKind::video);
    EXPECT_THAT(shown(), ElementsAre("holiday.mp4"));
    EXPECT_EQ(model.selectAllState(), "on");
    model.toggleSelectAll();
    EXPECT_EQ(model.selection()->count(), 5);
    EXPECT_EQ(model.summary().count(), 5) << "hidden selected files still count";
    EXPECT_FALSE(model.selection()->contains(URL::file(tree.path("Movies/holiday.mp4").string())));

    // Nothing of a gigabyte: the filtered screen, not the empty one, and the selection stays.
    model.setKind(std::nullopt);
    model.setMinimumSize(1000 * MB);
    EXPECT_TRUE(model.filteredEmpty());
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);
    EXPECT_EQ(model.selectAllState(), "off");
    model.toggleSelectAll();
    EXPECT_EQ(model.selection()->count(), 5) << "select-all over no file changes nothing";

    model.setMinimumSize(100 * MB);
    toggle("holiday.mp4");
    EXPECT_TRUE(rowSelected(0));
    finish(model.scan());
    EXPECT_EQ(model.selection()->count(), 0);
    EXPECT_EQ(model.kindRaw(), "all") << "the filters outlive the scan";
    EXPECT_EQ(rows.rowCount(), 3);
}

TEST_F(LargeModel, AgeCountsBackFromTheClockAndTheOrderFollowsTheChosenKey) {
    finish(model.scan());
    toggle("disk.iso");

    model.setAgeRaw("oneYear");
    EXPECT_THAT(shown(), ElementsAre("holiday.mp4"));
    model.setAge(LargeFileAge::sixMonths);
    EXPECT_THAT(shown(), ElementsAre("holiday.mp4", "backup.zip"));
    model.setClock([this] { return now - std::chrono::hours(24 * 200); });
    model.setAge(LargeFileAge::threeMonths);
    EXPECT_THAT(shown(), ElementsAre("holiday.mp4")) << "200 days earlier, the backup was new";
    model.setClock([this] { return now; });
    model.setAge(LargeFileAge::any);

    model.setSortRaw("lastUsed");
    EXPECT_THAT(shown(), ElementsAre("holiday.mp4", "backup.zip", "disk.iso"));
    model.setSort(LargeFileSort::name);
    EXPECT_THAT(shown(), ElementsAre("backup.zip", "disk.iso", "holiday.mp4"));
    model.setSortRaw("sideways");
    EXPECT_EQ(model.sort(), LargeFileSort::name) << "an unknown raw value is ignored";
    EXPECT_TRUE(rowSelected(1)) << "the selection follows the file, not the row";
}

TEST_F(LargeModel, RemovalTakesTheSelectionToTheTrashAndWhatCouldNotGoStaysListedAndSelected) {
    finish(model.scan());
    const std::int64_t holiday = allocated(tree.path("Movies/holiday.mp4"));
    toggle("holiday.mp4");
    toggle("backup.zip");

    TestSupport::FaultySystemCalls calls;
    calls.renameFault = [](const char* name) { return std::string_view(name) == "backup.zip" ? EACCES : 0; };
    {
        const CleanerCore::Platform::ScopedSystemCalls scoped(calls);
        finish(model.clean(CleanerCore::RemovalMode::trash));
    }
    ASSERT_EQ(model.phase(), ModulePhase::done);
    ASSERT_TRUE(model.outcome());
    ASSERT_EQ(model.outcome()->lines.size(), 1u);
    EXPECT_EQ(model.outcome()->lines[0].id, "video");
    EXPECT_EQ(model.outcome()->lines[0].count, 1);
    EXPECT_EQ(model.outcome()->lines[0].bytes, holiday);
    ASSERT_EQ(model.outcome()->failures.size(), 1u);

    const fs::path trash = QmlTestSupport::homeTrash();
    EXPECT_TRUE(fs::exists(trash / "files/holiday.mp4"));
    EXPECT_FALSE(fs::exists(tree.path("Movies/holiday.mp4")));
    EXPECT_TRUE(fs::exists(tree.path("Downloads/backup.zip")));
    fs::remove(trash / "files/holiday.mp4");
    fs::remove(trash / "info/holiday.mp4.trashinfo");

    model.done();
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);
    EXPECT_THAT(shown(), ElementsAre("disk.iso", "backup.zip"));
    EXPECT_EQ(model.selection()->count(), 1);
    EXPECT_TRUE(rowSelected(1));
    EXPECT_EQ(model.files().size(), 5u);
}

TEST(LargeModelNames, AFileWhoseNameIsNotUtf8IsSelectedAndRemovedByItsOwnBytesLeavingTheEmptyScreen) {
    TestSupport::TempTree tree;
    const fs::path odd = tree.path("Downloads/caf\xe9.bin");
    TestSupport::allocatedFile(odd, 110 * MB, std::chrono::system_clock::now());
    Preferences preferences;
    LargeFilesModel model(preferences);
    model.setHome(URL::file(tree.root().string()));
    finish(model.scan());
    ASSERT_EQ(model.visibleCount(), 1);
    model.toggleRow(0);
    EXPECT_TRUE(model.selection()->contains(URL::file(odd.string())));
    model.toggleRow(7); // no such row
    EXPECT_EQ(model.selection()->count(), 1);

    finish(model.clean(CleanerCore::RemovalMode::permanent));
    ASSERT_TRUE(model.outcome());
    EXPECT_TRUE(model.outcome()->failures.empty());
    EXPECT_FALSE(fs::exists(odd));
    EXPECT_EQ(model.visibleCount(), 0);
    // Nothing large left: the empty screen, not the one for a filter that hides everything.
    finish(model.scan());
    EXPECT_EQ(model.painelPhase(), PainelPhase::empty);
    EXPECT_FALSE(model.filteredEmpty());
}
