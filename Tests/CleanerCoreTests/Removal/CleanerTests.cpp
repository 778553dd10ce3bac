#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Removal/Cleaner.hpp"

#include "DeepChain.hpp"
#include "FaultySystemCalls.hpp"
#include "ScopedEnvironment.hpp"
#include "ScopedMount.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

using namespace CleanerCore;
using TestSupport::readText;
namespace fs = std::filesystem;

namespace {

// Each test gets its own home inside a temporary tree; the trash lands in that home too.
class CleanerTest : public testing::Test {
protected:
    void SetUp() override { CoreL10n::setCurrentLanguage("en"); }

    // Each item claims 10 bytes, or what `sizes` says at its place.
    RemovalReport remove(RemovalMode mode, const std::vector<fs::path>& paths,
                         const std::vector<std::int64_t>& sizes = {}) const {
        std::vector<CleanupItem> items;
        for (std::size_t i = 0; i < paths.size(); ++i)
            items.push_back(
                {URL::file(paths[i].string()), i < sizes.size() ? sizes[i] : 10, std::nullopt, true});
        return Cleaner(mode, URL::file(home.string()), std::nullopt).remove(items);
    }

    fs::path trashFiles() const { return dataHome / "Trash/files"; }
    fs::path trashInfo() const { return dataHome / "Trash/info"; }

    TestSupport::TempTree tree;
    fs::path home = tree.folder("home"), dataHome = home / ".local/share";
    TestSupport::ScopedEnvironment dataHomeSet{"XDG_DATA_HOME", dataHome};
};

bool present(const fs::path& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

std::size_t countEntries(const fs::path& root) {
    std::size_t count = 0;
    for (auto it = fs::recursive_directory_iterator(root); it != fs::recursive_directory_iterator(); ++it)
        ++count;
    return count;
}

std::string text(std::string_view key) {
    return CoreL10n::string(key, "en");
}

} // namespace

// A link among the items goes itself; nothing it points to does.
TEST_F(CleanerTest, ReportsEveryItemOnceInOrderAndCountsOnlyBytesActuallyFreed) {
    const fs::path precious = tree.file("outside/precious.txt", 4);
    for (RemovalMode mode : allRemovalModes) {
        const fs::path a = tree.file("home/Downloads/a.zip", 5);
        const fs::path folder = tree.folder("home/Downloads/folder");
        tree.file("home/Downloads/folder/inner/b.txt", 3);
        const fs::path link = tree.symlink("home/x", tree.path("outside"));
        const fs::path gone = home / "Downloads/never-there";
        const fs::path refused = home / "Downloads";
        const RemovalReport report = remove(mode, {a, refused, gone, folder, link});
        EXPECT_EQ(report.mode, mode);
        EXPECT_EQ(report.removed, (std::vector<URL>{URL::file(a.string()), URL::file(gone.string()),
                                                    URL::file(folder.string()), URL::file(link.string())}));
        ASSERT_EQ(report.failures.size(), 1u);
        EXPECT_EQ(report.failures[0].url, URL::file(refused.string()));
        EXPECT_EQ(report.failures[0].reason, "“" + refused.string() + "” is protected and was not removed.");
        EXPECT_EQ(report.bytes, 30) << "the item already gone frees nothing";
        EXPECT_FALSE(present(a) || present(folder) || present(link));
        EXPECT_TRUE(present(refused));
        EXPECT_TRUE(present(precious));
        fs::remove_all(dataHome / "Trash");
    }
}

TEST_F(CleanerTest, ALinkedParentIsJudgedWhereItLeads) {
    const fs::path caches = tree.folder("home/Library/Caches");
    tree.file("home/Library/Caches/app/cache.db", 1);
    tree.symlink("home/lib", home / "Library");
    for (RemovalMode mode : allRemovalModes) {
        const RemovalReport report = remove(mode, {home / "lib/Caches", home / "lib/Caches/app"});
        ASSERT_EQ(report.failures.size(), 1u);
        EXPECT_EQ(report.failures[0].url, URL::file((home / "lib/Caches").string()));
        EXPECT_EQ(report.removed, std::vector<URL>{URL::file((home / "lib/Caches/app").string())});
        EXPECT_TRUE(present(caches));
        tree.file("home/Library/Caches/app/cache.db", 1);
    }
}

// A folder swapped for a link while the removal runs: only the link goes, never what it leads to.
TEST_F(CleanerTest, AFolderSwappedForALinkDuringPermanentRemovalDoesNotRedirectIt) {
    const fs::path precious = tree.file("outside/keep/precious.txt", 4);
    const fs::path victim = tree.folder("home/junk/a/b/victim");
    tree.file("home/junk/a/b/victim/x.tmp", 1);
    tree.file("home/junk/a/b/other.tmp", 1);
    TestSupport::FaultySystemCalls calls;
    bool swapped = false;
    calls.beforeOpen = [&](const char* name) {
        if (!swapped && std::string_view(name) == "victim") {
            swapped = true;
            fs::rename(victim, tree.path("moved-away"));
            fs::create_symlink(tree.path("outside/keep"), victim);
        }
    };
    {
        Platform::ScopedSystemCalls installed(calls);
        const RemovalReport report = remove(RemovalMode::permanent, {home / "junk"});
        EXPECT_EQ(report.removed.size(), 1u) << (report.failures.empty() ? "" : report.failures[0].reason);
    }
    EXPECT_TRUE(swapped);
    EXPECT_FALSE(present(home / "junk"));
    EXPECT_TRUE(present(precious));
    EXPECT_TRUE(present(tree.path("moved-away/x.tmp")));
}

// The parent that the guard resolved is swapped for a link before the removal opens it.
TEST_F(CleanerTest, AParentSwappedForALinkAfterTheCheckFailsInsteadOfFollowing) {
    const fs::path precious = tree.file("outside/data/item", 4);
    const fs::path parent = tree.folder("home/Downloads/data");
    tree.file("home/Downloads/data/item", 1);
    for (RemovalMode mode : allRemovalModes) {
        TestSupport::FaultySystemCalls calls;
        bool swapped = false;
        calls.beforeOpen = [&](const char* name) {
            if (!swapped && std::string_view(name) == "Downloads") {
                swapped = true;
                fs::rename(parent, tree.path("home/Downloads/data-real"));
                fs::create_symlink(tree.path("outside/data"), parent);
            }
        };
        Platform::ScopedSystemCalls installed(calls);
        const RemovalReport report = remove(mode, {parent / "item"});
        ASSERT_EQ(report.failures.size(), 1u);
        EXPECT_EQ(report.failures[0].reason, text("core.removal.failure.changed"));
        EXPECT_TRUE(present(precious));
        fs::remove(parent);
        fs::rename(tree.path("home/Downloads/data-real"), parent);
    }
}

TEST_F(CleanerTest, DeepTreesGoWithoutExhaustingTheStackOrDescriptors) {
    // Far deeper than the descriptors the removal keeps open at once.
    const fs::path top = tree.folder("home/deep");
    const TestSupport::DeepChain chain(top, 600);
    TestSupport::FaultySystemCalls calls;
    RemovalReport report;
    {
        Platform::ScopedSystemCalls installed(calls);
        report = remove(RemovalMode::permanent, {top});
    }
    EXPECT_TRUE(report.failures.empty()) << report.failures[0].reason;
    EXPECT_LT(calls.openPeak, 80) << "descriptors stay bounded however deep the tree";
    EXPECT_FALSE(present(top));
}

TEST_F(CleanerTest, ABatchFlushesEveryInfoFileBeforeAnyItemMovesAndSurvivesATakenName) {
    std::vector<fs::path> paths;
    for (int i = 0; i < 20; ++i)
        paths.push_back(tree.file("home/Downloads/item " + std::to_string(i) + ".txt", 1));
    TestSupport::FaultySystemCalls calls;
    int renames = 0, completeInfos = 0;
    calls.beforeRename = [&](const char*, const char* to) {
        if (renames++ == 0) // someone else takes the chosen name at the last moment
            tree.file("home/.local/share/Trash/files/" + std::string(to), 1);
        completeInfos += readText(trashInfo() / (std::string(to) + ".trashinfo")).find("DeletionDate=") !=
                         std::string::npos;
    };
    RemovalReport report;
    {
        Platform::ScopedSystemCalls installed(calls);
        report = remove(RemovalMode::trash, paths);
    }
    EXPECT_EQ(report.removed.size(), 20u);
    EXPECT_EQ(completeInfos, renames);
    EXPECT_TRUE(present(trashFiles() / "item 0 2.txt"));
    EXPECT_EQ(countEntries(trashInfo()), 20u) << "one info per trashed item, none for the intruder";
}

// A dangling ~/.local keeps the trash from being made: that is no "already gone".
TEST_F(CleanerTest, ATrashThatCannotBeMadeIsAFailureNamingIt) {
    fs::remove_all(home / ".local");
    tree.symlink("home/.local", tree.path("nowhere/local"));
    const fs::path item = tree.file("home/Downloads/a.txt", 1);
    const RemovalReport report = remove(RemovalMode::trash, {item});
    EXPECT_TRUE(report.removed.empty());
    ASSERT_EQ(report.failures.size(), 1u);
    EXPECT_EQ(report.failures[0].reason,
              CoreL10n::format("core.removal.failure.trashUnavailable", "en",
                               std::vector<CoreL10n::Argument>{(dataHome / "Trash").string()}));
    EXPECT_TRUE(present(item));
}

// A folder and a file inside it, both selected, in either order: the file stays inside the trashed
// folder and its bytes count once.
TEST_F(CleanerTest, AnItemInsideAnotherSelectedOneGoesWithItAndCountsOnce) {
    for (RemovalMode mode : allRemovalModes) {
        for (bool innerFirst : {false, true}) {
            const fs::path inner = tree.file("home/Downloads/folder/inner.txt", 3);
            const fs::path folder = inner.parent_path();
            const RemovalReport report = innerFirst
                                             ? remove(mode, {inner, folder, folder / ""}, {10, 100, 100})
                                             : remove(mode, {folder, inner, folder / ""}, {100, 10, 100});
            EXPECT_TRUE(report.failures.empty());
            EXPECT_EQ(report.removed.size(), 3u);
            EXPECT_EQ(report.bytes, 100);
            EXPECT_FALSE(present(folder));
            if (mode == RemovalMode::trash) {
                EXPECT_TRUE(present(trashFiles() / "folder/inner.txt"));
                EXPECT_EQ(countEntries(trashFiles()), 2u);
                EXPECT_EQ(countEntries(trashInfo()), 1u);
            }
            fs::remove_all(dataHome / "Trash");
        }
    }
}

// What is mounted below the home (a bind mount of the same file system, a tmpfs) is never removed
// nor entered, in either mode, and neither when a folder holding one is later emptied from the trash.
// On a kernel that does not mark mount roots, the mount table tells them.
TEST_F(CleanerTest, MountPointsAreNeverEnteredNorRemoved) {
    const fs::path shown = tree.file("outside/shown/kept.txt", 5).parent_path();
    const fs::path bound = tree.folder("home/junk/sub/bound");
    const fs::path memory = tree.folder("home/memory");
    const TestSupport::ScopedMount bind = TestSupport::ScopedMount::bind(shown, bound);
    if (!bind)
        GTEST_SKIP() << bind.why();
    const TestSupport::ScopedMount tmpfs = TestSupport::ScopedMount::tmpfs(memory);
    ASSERT_TRUE(tmpfs) << tmpfs.why();
    tree.file("home/memory/m.txt", 1);
    const auto mountedAt = [&](const fs::path& place) {
        return CoreL10n::format("core.removal.failure.mountPoint", "en",
                                std::vector<CoreL10n::Argument>{place.string()});
    };

    for (RemovalMode mode : allRemovalModes) {
        const RemovalReport report = remove(mode, {bound, memory});
        ASSERT_EQ(report.failures.size(), 2u);
        EXPECT_EQ(report.failures[0].reason, mountedAt(bound));
        EXPECT_EQ(report.failures[1].reason, mountedAt(memory));
        EXPECT_TRUE(present(memory / "m.txt"));
    }
    RemovalReport report;
    for (bool markedByKernel : {true, false}) {
        TestSupport::FaultySystemCalls calls;
        if (!markedByKernel)
            calls.afterStatx = [](struct ::statx* info) {
                info->stx_attributes_mask &= ~STATX_ATTR_MOUNT_ROOT;
            };
        Platform::ScopedSystemCalls installed(calls);
        tree.file("home/junk/a.txt", 1);
        report = remove(RemovalMode::permanent, {home / "junk"});
        ASSERT_EQ(report.failures.size(), 1u);
        EXPECT_EQ(report.failures[0].reason, mountedAt(bound));
        EXPECT_FALSE(present(home / "junk/a.txt"));
        EXPECT_TRUE(present(shown / "kept.txt"));
    }

    // The mount travels with its folder into the trash; emptying the trash leaves it.
    tree.file("home/junk/b.txt", 1);
    report = remove(RemovalMode::trash, {home / "junk"});
    ASSERT_TRUE(report.failures.empty()) << report.failures[0].reason;
    report = remove(RemovalMode::permanent, {trashFiles() / "junk"});
    ASSERT_EQ(report.failures.size(), 1u);
    EXPECT_EQ(report.failures[0].reason, mountedAt(trashFiles() / "junk/sub/bound"));
    EXPECT_FALSE(present(trashFiles() / "junk/b.txt"));
    EXPECT_TRUE(present(shown / "kept.txt"));
}

// One row per failure kind: the item stays where it was, the reason says why, and a failed trash
// move leaves no orphaned info file behind.
struct FaultCase {
    const char* name;
    RemovalMode mode;
    const char* call; // "unlink", "rename", "write", "mkdir"
    int error;
    const char* reason; // after "core.removal.failure."; nullptr: still removed
};

class CleanerFaults : public CleanerTest, public testing::WithParamInterface<FaultCase> {};

TEST_P(CleanerFaults, ClassifiesEachFailure) {
    const FaultCase& fault = GetParam();
    const fs::path item = tree.file("home/Downloads/target.bin", 1);
    TestSupport::FaultySystemCalls calls;
    int remaining = fault.error == EINTR ? 3 : 1000; // an interrupted call is retried
    const auto rule = [&](const char* name) {
        const std::string_view n(name);
        return (n == "target.bin" || n.starts_with("target.bin") || n == ".local" || n == "Trash") &&
                       remaining-- > 0
                   ? fault.error
                   : 0;
    };
    const std::string_view call = fault.call;
    if (call == "unlink")
        calls.unlinkFault = rule;
    else if (call == "rename")
        calls.renameFault = rule;
    else if (call == "mkdir")
        calls.mkdirFault = rule;
    else
        calls.writeFault = [&] { return remaining-- > 0 ? fault.error : 0; };
    RemovalReport report;
    {
        Platform::ScopedSystemCalls installed(calls);
        report = remove(fault.mode, {item});
    }
    if (!fault.reason) {
        EXPECT_TRUE(report.failures.empty());
        EXPECT_EQ(report.removed.size(), 1u);
        return;
    }
    ASSERT_EQ(report.failures.size(), 1u);
    EXPECT_EQ(report.failures[0].url, URL::file(item.string()));
    const std::string key = "core.removal.failure." + std::string(fault.reason);
    EXPECT_EQ(report.failures[0].reason,
              key.ends_with(".other") ? CoreL10n::format(key, "en", {std::string(std::strerror(fault.error))})
                                      : text(key));
    EXPECT_TRUE(present(item)) << "nothing is lost";
    EXPECT_EQ(report.bytes, 0);
    if (present(trashInfo())) {
        EXPECT_EQ(countEntries(trashInfo()), 0u);
    }
}

INSTANTIATE_TEST_SUITE_P(
    EveryKind, CleanerFaults,
    testing::Values(FaultCase{"PermanentNoAccess", RemovalMode::permanent, "unlink", EACCES, "noPermission"},
                    FaultCase{"PermanentBusy", RemovalMode::permanent, "unlink", EBUSY, "busy"},
                    FaultCase{"PermanentOther", RemovalMode::permanent, "unlink", EIO, "other"},
                    FaultCase{"PermanentInterrupted", RemovalMode::permanent, "unlink", EINTR, nullptr},
                    // "No such file" while the item is still there is no success: only a real absence is.
                    FaultCase{"PermanentWronglyAbsent", RemovalMode::permanent, "unlink", ENOENT, "other"},
                    FaultCase{"TrashWronglyAbsent", RemovalMode::trash, "rename", ENOENT, "other"},
                    FaultCase{"TrashReadOnly", RemovalMode::trash, "rename", EROFS, "readOnly"},
                    FaultCase{"TrashNoSpaceForInfo", RemovalMode::trash, "write", ENOSPC, "noSpace"},
                    FaultCase{"TrashOnAnotherVolume", RemovalMode::trash, "rename", EXDEV, "noTrash"},
                    FaultCase{"TrashInterruptedWrite", RemovalMode::trash, "write", EINTR, nullptr}),
    [](const testing::TestParamInfo<FaultCase>& row) { return std::string(row.param.name); });

// The same tree goes to the trash, then out of it for good, as emptying the trash would.
TEST_F(CleanerTest, AHundredThousandFilesGoInBothModesAndNothingElseDoes) {
    const fs::path junk = tree.folder("home/junk");
    for (int folder = 0; folder < 100; ++folder) {
        const fs::path dir = tree.folder("home/junk/" + std::to_string(folder));
        const int fd = ::open(dir.c_str(), O_RDONLY | O_DIRECTORY);
        for (int file = 0; file < 1000; ++file)
            ::close(::openat(fd, std::to_string(file).c_str(), O_CREAT | O_WRONLY, 0600));
        ::close(fd);
    }
    tree.file("home/keep/a.txt", 1);
    tree.file("home/keep/sub/b.txt", 1);
    tree.symlink("home/junk/0/to-keep", home / "keep");
    const std::size_t keptEntries = countEntries(home / "keep");

    const RemovalReport trashed = remove(RemovalMode::trash, {junk});
    EXPECT_TRUE(trashed.failures.empty());
    EXPECT_FALSE(present(junk));
    EXPECT_EQ(countEntries(trashFiles() / "junk"), 100u + 100'000u + 1u);
    EXPECT_TRUE(present(trashInfo() / "junk.trashinfo"));

    const RemovalReport deleted =
        remove(RemovalMode::permanent, {trashFiles() / "junk", trashInfo() / "junk.trashinfo"});
    EXPECT_TRUE(deleted.failures.empty());
    EXPECT_EQ(countEntries(dataHome / "Trash"), 2u) << "files/ and info/ stay, empty";
    EXPECT_EQ(countEntries(home / "keep"), keptEntries);
}
