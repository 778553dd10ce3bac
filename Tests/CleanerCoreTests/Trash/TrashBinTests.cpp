#include "CleanerCore/Trash/TrashBin.hpp"

#include "CleanerCore/Platform/FreedesktopTrash.hpp"
#include "CleanerCore/Platform/VolumeLabel.hpp"
#include "CleanerCore/Removal/Cleaner.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"
#include "CleanerCore/Trash/TrashInfo.hpp"

#include "FaultySystemCalls.hpp"
#include "Mapped.hpp"
#include "ScopedMount.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

using namespace CleanerCore;
using testing::ElementsAre;
using TestSupport::allocatedBytes;
namespace fs = std::filesystem;

namespace {

constexpr auto kDate = "2026-03-04T05:06:07";

// A trash folder under a temporary home, filled the way a file manager fills it.
struct Fixture {
    TestSupport::TempTree tree;
    fs::path trash = tree.folder("home/.local/share/Trash");
    TrashBin bin{URL::file(trash.string()), URL::file(tree.path("home").string())};

    fs::path item(const std::string& name, std::size_t bytes, bool withInfo = true) const {
        const fs::path made = tree.file("home/.local/share/Trash/files/" + name, bytes);
        if (withInfo)
            info(name);
        return made;
    }
    void info(const std::string& name) const {
        fs::create_directories(trash / "info");
        std::ofstream(trash / "info" / TrashInfo::fileName(name))
            << "[Trash Info]\nPath=/somewhere/" << name << "\nDeletionDate=" << kDate << "\n";
    }
    std::vector<std::string> names(const std::string& folder) const {
        return TestSupport::namesIn(trash / folder);
    }
};

} // namespace

TEST(TrashBin, ListsItemsLargestFirstWithDatesFoldersWalkedAndLinksAtZero) {
    Fixture f;
    const fs::path small = f.item("small.txt", 100);
    const fs::path inside = f.item("folder/a.bin", 20000, false);
    f.info("folder");
    f.tree.symlink("home/.local/share/Trash/files/link", inside); // never followed
    f.info("link");
    f.item("no info", 50000, false);
    f.item(".DS_Store", 9000, false);

    const auto entries = f.bin.entries();
    ASSERT_TRUE(entries);
    EXPECT_THAT(
        TestSupport::mapped(*entries, [](const TrashEntry& entry) { return entry.url.lastPathComponent(); }),
        ElementsAre("no info", "folder", "small.txt", "link"));
    EXPECT_EQ((*entries)[1].size, allocatedBytes(inside));
    EXPECT_EQ((*entries)[3].size, 0);
    EXPECT_FALSE((*entries)[0].dateAdded);
    EXPECT_EQ((*entries)[2].dateAdded,
              TrashInfo::deletionDate(std::string("[Trash Info]\nDeletionDate=") + kDate));
    EXPECT_EQ(f.bin.size(),
              allocatedBytes(small) + allocatedBytes(inside) + allocatedBytes(f.trash / "files/no info"));
    EXPECT_EQ(f.bin.items()->size(), 4u);
}

TEST(TrashBin, MissingOrBookkeepingOnlyIsEmptyAndADeniedListingIsNoAccess) {
    Fixture f;
    EXPECT_EQ(f.bin.items(), std::vector<URL>{});
    EXPECT_EQ(f.bin.size(), 0);
    f.item(".DS_Store", 4096, false);
    EXPECT_EQ(f.bin.entries(), std::vector<TrashEntry>{});
    EXPECT_EQ(f.bin.size(), 0);

    f.item("kept", 10);
    TestSupport::FaultySystemCalls faulty;
    faulty.listFault = [] { return EACCES; };
    const Platform::ScopedSystemCalls scoped(faulty);
    EXPECT_FALSE(f.bin.items());
    EXPECT_FALSE(f.bin.entries());
    EXPECT_FALSE(f.bin.size());
    EXPECT_EQ(f.bin.empty(), RemovalReport{.mode = RemovalMode::permanent});
    EXPECT_TRUE(fs::exists(f.trash / "files/kept"));
}

TEST(TrashBin, EmptyingRemovesItemsInfoFilesAndCacheLinesForGood) {
    Fixture f;
    const fs::path outside = f.tree.file("elsewhere/target.txt", 10);
    const std::int64_t bytes =
        allocatedBytes(f.item("a.txt", 5000)) + allocatedBytes(f.item("folder/deep/b.txt", 5000, false));
    f.info("folder");
    f.tree.symlink("home/.local/share/Trash/files/link", outside);
    f.info("gone before"); // an info file whose item is no longer there
    const std::int64_t loose = allocatedBytes(f.item("no info", 10, false));
    std::ofstream(f.trash / "directorysizes") << "4096 1700000000 folder\n4096 1700000000 still%20here\n";
    f.tree.folder("home/.local/share/Trash/files/still here");
    f.info("still here");

    TestSupport::FaultySystemCalls faulty; // one item resists, and stays restorable
    faulty.unlinkFault = [](const char* name) { return std::string_view(name) == "still here" ? EACCES : 0; };
    const Platform::ScopedSystemCalls scoped(faulty);
    const RemovalReport report = f.bin.empty();

    EXPECT_EQ(report.mode, RemovalMode::permanent);
    EXPECT_EQ(report.removed.size(), 4u);
    EXPECT_EQ(report.bytes, bytes + loose);
    ASSERT_EQ(report.failures.size(), 1u);
    EXPECT_EQ(report.failures[0].url.path(), (f.trash / "files/still here").string());
    EXPECT_THAT(f.names("files"), ElementsAre("still here"));
    EXPECT_THAT(f.names("info"), ElementsAre("still here.trashinfo"));
    EXPECT_EQ(TestSupport::readText(f.trash / "directorysizes"), "4096 1700000000 still%20here\n");
    EXPECT_TRUE(fs::exists(outside));
    // Nothing went to a second trash.
    EXPECT_FALSE(
        fs::exists(Platform::FreedesktopTrash::dataHomeFor(f.tree.path("home")) + "/Trash/files/a.txt"));
}

TEST(TrashBin, FindsEachVolumesOwnTrashOnceAndNamesItsVolume) {
    TestSupport::TempTree tree;
    const uid_t uid = ::getuid();
    const std::string id = std::to_string(uid);
    tree.folder("Volumes/one/.Trash-" + id);
    const fs::path shared = tree.folder("Volumes/two/.Trash/" + id).parent_path();
    fs::permissions(shared, fs::perms::sticky_bit, fs::perm_options::add);
    tree.folder("Volumes/three/.Trash/" + id); // not sticky: anyone could have planted it
    tree.folder("Volumes/four/.Trash-" + std::to_string(uid + 1));
    tree.symlink("Volumes/five", tree.path("Volumes/one"));

    const auto bins = TrashBin::otherVolumes(URL::file(tree.path("Volumes").string()), uid);
    ASSERT_EQ(bins.size(), 2u);
    EXPECT_EQ(bins[0].url.path(), tree.path("Volumes/one/.Trash-" + id).string());
    EXPECT_EQ(bins[1].url.path(), tree.path("Volumes/two/.Trash/" + id).string());
    EXPECT_EQ(bins[0].volumeURL().path(), tree.path("Volumes/one").string());
    EXPECT_EQ(bins[1].volumeURL().path(), tree.path("Volumes/two").string());

    const std::string one = tree.path("Volumes/one").string();
    const std::vector<Platform::MountPoint> mounts{{one, 1, "ext4"},
                                                   {one, 1, "ext4"}, // bound twice
                                                   {tree.path("Volumes/two").string(), 2, "autofs"}};
    EXPECT_EQ(TrashBin::otherVolumes(mounts, uid), std::vector<TrashBin>{bins[0]});
}

TEST(TrashBin, EmptiesTheTrashOfAMountedVolume) {
    TestSupport::TempTree tree;
    const fs::path volume = tree.folder("volume");
    const auto mounted = TestSupport::ScopedMount::tmpfs(volume);
    if (!mounted)
        GTEST_SKIP() << mounted.why();
    const std::string id = std::to_string(::getuid());
    tree.file("volume/.Trash-" + id + "/files/report.pdf", 3000);
    tree.file("volume/.Trash-" + id + "/info/report.pdf.trashinfo", 10);

    const auto bins = TrashBin::otherVolumes(Platform::MountTable::current(), ::getuid());
    const auto found = std::find_if(bins.begin(), bins.end(), [&](const TrashBin& bin) {
        return bin.volumeURL().path() == volume.string();
    });
    ASSERT_NE(found, bins.end());
    EXPECT_EQ(found->volumeName(), "volume");
    EXPECT_EQ(found->entries()->size(), 1u);
    const RemovalReport report = found->empty();
    EXPECT_TRUE(report.failures.empty());
    EXPECT_EQ(found->entries(), std::vector<TrashEntry>{});
    EXPECT_TRUE(fs::is_empty(volume / (".Trash-" + id) / "info"));
}

TEST(TrashBin, WhatTheCleanerTrashesIsListedByGio) {
    if (std::system("command -v gio >/dev/null && command -v dbus-run-session >/dev/null") != 0)
        GTEST_SKIP() << "needs gio and dbus-run-session";
    TestSupport::TempTree tree;
    const fs::path item = tree.file("odd name é%.txt", 10);
    const URL home = URL::file(std::getenv("HOME"));
    const RemovalReport trashed =
        Cleaner(RemovalMode::trash, home, SafetyGuard::runningAppBundle())
            .remove(std::vector<CleanupItem>{{URL::file(item.string()), 0, std::nullopt, true}});
    ASSERT_TRUE(trashed.failures.empty());

    std::string listing;
    if (FILE* gio = ::popen("dbus-run-session -- gio trash --list 2>/dev/null", "r")) {
        char buffer[4096];
        for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, gio)) > 0;)
            listing.append(buffer, got);
        ::pclose(gio);
    }
    const TrashBin bin(home);
    const auto entries = bin.entries();
    bin.empty();
    if (listing.empty())
        GTEST_SKIP() << "gio can't read the trash here (no gvfs trash backend)";
    // gio decodes the recorded path, and shows bytes beyond ASCII escaped.
    EXPECT_THAT(listing, testing::HasSubstr("\t" + tree.root().string() + "/odd name \\xc3\\xa9%.txt\n"));
    ASSERT_TRUE(entries);
    const auto ours = std::find_if(entries->begin(), entries->end(), [&](const TrashEntry& entry) {
        return entry.url.lastPathComponent() == item.filename().string();
    });
    ASSERT_NE(ours, entries->end());
    EXPECT_TRUE(ours->dateAdded);
}

TEST(TrashInfo, ReadsTheDateItsWriterWrites) {
    const auto now = std::chrono::system_clock::now();
    const auto read = TrashInfo::deletionDate(Platform::FreedesktopTrash::infoText("/a b", now));
    ASSERT_TRUE(read);
    EXPECT_LE(std::chrono::abs(*read - now), std::chrono::seconds(1));
    EXPECT_FALSE(TrashInfo::deletionDate("[Other]\nDeletionDate=2026-03-04T05:06:07\n"));
    EXPECT_FALSE(TrashInfo::deletionDate("[Trash Info]\nDeletionDate=2026-03-04T05:06:07junk\n"));
}

TEST(VolumeLabel, FindsTheLabelLinkOfADeviceAndUndoesItsEscapes) {
    TestSupport::TempTree tree;
    struct stat null;
    ASSERT_EQ(::stat("/dev/null", &null), 0);
    tree.symlink("labels/My\\x20Disk\\x2f2", "/dev/null");
    tree.symlink("labels/dangling", tree.path("nowhere"));
    EXPECT_EQ(Platform::VolumeLabel::of(null.st_rdev, tree.path("labels")), "My Disk/2");
    EXPECT_FALSE(Platform::VolumeLabel::of(null.st_rdev + 1, tree.path("labels")));
}
