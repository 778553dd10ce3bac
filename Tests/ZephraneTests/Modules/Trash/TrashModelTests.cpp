#include "App/Preferences.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"
#include "FaultySystemCalls.hpp"
#include "Modules/Trash/TrashModel.hpp"
#include "ScopedEnvironment.hpp"
#include "ScopedMount.hpp"
#include "TempTree.hpp"

#include "Support/QmlTestSupport.hpp"
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <unistd.h>

using CleanerCore::TrashBin;
using CleanerCore::URL;
namespace fs = std::filesystem;

namespace {

using QmlTestSupport::finish;
using QmlTestSupport::trashed;

// One read of its own: one the watcher started for the fixture's writes ends first.
void read(TrashModel& model, bool showsProgress, bool announces = false) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model.isReading(); }, 20000));
    finish(model.refresh(showsProgress, announces));
}

// A home trash under a temporary XDG_DATA_HOME and one other volume's trash, both fixtures.
struct TrashFixture : testing::Test {
    TestSupport::TempTree tree;
    TestSupport::ScopedEnvironment dataHome{"XDG_DATA_HOME", tree.path("data").string()};
    fs::path home = tree.folder("home");
    fs::path trash = tree.path("data/Trash");
    fs::path volume = tree.folder("media/USB STICK");
    fs::path volumeTrash = volume / (".Trash-" + std::to_string(::getuid()));
    std::atomic<int> reads{0};
    Preferences preferences;
    TrashModel model{preferences};
    QmlTestSupport::AnnouncementLog announced;
    QStringList& spoken = announced.said;

    void SetUp() override {
        model.setBins(TrashBin(URL::file(home.string())), [this] {
            ++reads;
            return std::vector<TrashBin>{TrashBin(URL::file(volumeTrash.string()), URL::file(home.string()))};
        });
    }
};

} // namespace

TEST_F(TrashFixture, ReadsEveryBinListsTheFirstHundredAndCountsTheRest) {
    for (int index = 0; index < 102; ++index)
        trashed(trash, "note " + std::to_string(index), 0);
    trashed(trash, "big", 64 * 1024);
    fs::create_symlink("/etc", trash / "files/a link");
    trashed(volumeTrash, "film", 32 * 1024);
    read(model, true, true);

    ASSERT_EQ(model.entries().size(), 104u);
    EXPECT_EQ(model.entries().front().url.lastPathComponent(), "big") << "larger first";
    const auto link = std::ranges::find(model.entries(), std::string("a link"),
                                        [](const auto& entry) { return entry.url.lastPathComponent(); });
    ASSERT_NE(link, model.entries().end());
    EXPECT_EQ(link->size, 0) << "a link is listed, never followed";
    EXPECT_EQ(model.rowValues().size(), TrashModel::listedRows);
    EXPECT_EQ(model.restCount(), 4);

    ASSERT_EQ(model.volumes().size(), 1u);
    EXPECT_EQ(model.volumes()[0].name.toStdString(), "USB STICK");
    EXPECT_EQ(model.volumes()[0].count, 1);
    EXPECT_GE(model.volumes()[0].bytes, 32 * 1024);
    EXPECT_EQ(model.foundBytes(), model.startup().bytes + model.volumes()[0].bytes);
    EXPECT_EQ(model.itemCount(), 105);
    EXPECT_EQ(model.reading(), model.foundBytes());
    ASSERT_EQ(spoken.size(), 1);
    EXPECT_TRUE(spoken[0].contains("105")) << spoken[0].toStdString();
}

TEST_F(TrashFixture, MissingOrBookkeepingOnlyIsEmptyButADeniedHomeTrashHidesEveryBin) {
    read(model, true, true); // no trash folder at all
    EXPECT_EQ(model.access(), TrashModel::Access::granted);
    EXPECT_EQ(model.painelPhase(), PainelPhase::empty);

    trashed(trash, ".DS_Store", 4096);
    read(model, true, true);
    EXPECT_EQ(model.painelPhase(), PainelPhase::empty) << "bookkeeping is no content";
    EXPECT_EQ(model.reading(), 0);

    // What another volume holds shows over an empty home trash...
    trashed(volumeTrash, "film", 4096);
    read(model, true);
    EXPECT_EQ(model.painelPhase(), PainelPhase::results);

    // ...but not when the home trash can't be read: then nothing is known.
    {
        TestSupport::FaultySystemCalls faulty;
        const std::string denied = (trash / "files").string();
        faulty.openFault = [denied](const char* name) { return name == denied ? EACCES : 0; };
        const CleanerCore::Platform::ScopedSystemCalls scoped(faulty);
        read(model, false, true);
    }
    EXPECT_EQ(model.access(), TrashModel::Access::denied);
    EXPECT_TRUE(model.volumes().empty());
    EXPECT_EQ(model.itemCount(), 0);
    EXPECT_FALSE(model.reading());

    // Access given while the channel is open: the next read shows everything.
    read(model, true, true);
    EXPECT_EQ(model.access(), TrashModel::Access::granted);
    EXPECT_EQ(model.volumes().size(), 1u);
    ASSERT_EQ(spoken.size(), 4);
    EXPECT_EQ(spoken[0], qtTrId("trash.announce.empty"));
    EXPECT_EQ(spoken[1], qtTrId("trash.announce.empty"));
    EXPECT_EQ(spoken[2], qtTrId("trash.announce.noAccess"));
    EXPECT_NE(spoken[3], qtTrId("trash.announce.empty"));
}

TEST_F(TrashFixture, EmptiesEveryBinForGoodThenReadsAgainWithoutAScanScreen) {
    trashed(trash, "letter.txt", 1000);
    fs::create_directories(trash / "files/old project/src");
    std::ofstream(trash / "files/old project/src/main.c") << "int main;";
    std::ofstream(trash / "info/old project.trashinfo") << "[Trash Info]\nPath=/p\nDeletionDate=2026-01-01T00:00:00\n";
    std::ofstream(trash / "directorysizes") << "4096 1700000000 old%20project\n";
    trashed(volumeTrash, "film", 4096);
    read(model, true);
    const int itemsBefore = model.itemCount();
    const qint64 bytesBefore = model.foundBytes();
    ASSERT_EQ(itemsBefore, 3);

    std::vector<ModulePhase> phases;
    QObject::connect(&model, &ModulePhaseModel::phaseChanged, [&] { phases.push_back(model.phase()); });
    const int readsBefore = reads;
    const QFuture<void> emptied = model.emptyTrash();
    EXPECT_EQ(model.phase(), ModulePhase::cleaning);
    EXPECT_TRUE(model.refresh(true).isFinished()) << "no read while emptying";
    finish(emptied);

    EXPECT_EQ(phases, (std::vector{ModulePhase::cleaning, ModulePhase::done}));
    EXPECT_GT(reads, readsBefore) << "read again after emptying";
    ASSERT_TRUE(model.outcome());
    EXPECT_EQ(model.outcome()->destination, CleanDestination::deleteForGood);
    ASSERT_EQ(model.outcome()->lines.size(), 1u);
    EXPECT_EQ(model.outcome()->lines[0].count, itemsBefore);
    EXPECT_EQ(model.outcome()->lines[0].bytes, bytesBefore);
    EXPECT_TRUE(model.outcome()->failures.empty());
    for (const fs::path& folder : {trash / "files", trash / "info", volumeTrash / "files", volumeTrash / "info"})
        EXPECT_TRUE(fs::is_empty(folder)) << folder;
    std::ifstream sizes(trash / "directorysizes");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(sizes), {}), "");
    EXPECT_EQ(model.itemCount(), 0);
    model.done();
    EXPECT_EQ(model.painelPhase(), PainelPhase::empty);
    EXPECT_EQ(model.emptyTrash().isFinished(), true) << "nothing left to empty";
}

TEST_F(TrashFixture, ReadsDoNotOverlapAndAChangeOnDiskIsReadWithoutARestart) {
    trashed(trash, "first", 10);
    read(model, true);
    const int readsBefore = reads;
    const QFuture<void> first = model.refresh(false);
    EXPECT_TRUE(model.isReading());
    EXPECT_TRUE(model.refresh(false).isFinished()) << "a read is under way";
    model.actions()->scan();
    EXPECT_NE(model.phase(), ModulePhase::scanning) << "the screens' scan key waits for it too";
    finish(first);
    EXPECT_EQ(reads, readsBefore + 1);
    EXPECT_FALSE(model.isReading());

    // The file manager puts something in the trash, then empties it.
    trashed(trash, "second", 10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.itemCount() == 2; }, 10000));
    EXPECT_EQ(model.phase(), ModulePhase::ready) << "changes are taken in place";
    fs::remove(trash / "files/first");
    fs::remove(trash / "files/second");
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.itemCount() == 0; }, 10000));
}

// The trash of a real second file system, found from the mount table.
TEST(TrashModelVolumes, FindsAndEmptiesTheTrashOfAMountedVolume) {
    TestSupport::TempTree tree;
    const fs::path mountPoint = tree.folder("Backup Disk");
    TestSupport::ScopedMount mount = TestSupport::ScopedMount::tmpfs(mountPoint);
    if (!mount)
        GTEST_SKIP() << mount.why();
    const TestSupport::ScopedEnvironment dataHome("XDG_DATA_HOME", tree.path("data").string());
    const fs::path volumeTrash = mountPoint / (".Trash-" + std::to_string(::getuid()));
    trashed(volumeTrash, "holiday.mov", 8192);

    Preferences preferences;
    TrashModel model(preferences);
    const URL home = URL::file(tree.folder("home").string());
    // Only this volume's bin: the machine's own volumes are none of the test's business.
    model.setBins(TrashBin(home), [&] {
        std::vector<TrashBin> bins = TrashModel::mountedBins();
        std::erase_if(bins, [&](const TrashBin& bin) { return bin.url.path() != volumeTrash.string(); });
        return bins;
    });
    read(model, true);
    ASSERT_EQ(model.volumes().size(), 1u);
    EXPECT_EQ(model.volumes()[0].name.toStdString(), "Backup Disk");
    EXPECT_EQ(model.volumes()[0].count, 1);

    finish(model.emptyTrash());
    EXPECT_FALSE(fs::exists(volumeTrash / "files/holiday.mov"));
    EXPECT_FALSE(fs::exists(volumeTrash / "info/holiday.mov.trashinfo"));
    EXPECT_TRUE(model.volumes().empty());
}
