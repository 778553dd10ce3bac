#include "CleanerCore/LargeFiles/LargeFileScanner.hpp"
#include "CleanerCore/LargeFiles/ReferenceLargeFileScanner.hpp"
#include "DeepChain.hpp"
#include "FaultySystemCalls.hpp"
#include "Mapped.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>

using namespace CleanerCore;
using testing::ElementsAre;
using testing::UnorderedElementsAre;
using TestSupport::allocatedBytes;
using TestSupport::TempTree;
namespace fs = std::filesystem;

namespace {

constexpr std::int64_t minimum = 64 * 1024;

// Paths of the files, relative to `root`, in the given order.
std::vector<std::string> relative(const std::vector<LargeFile>& files, const fs::path& root) {
    return TestSupport::mapped(
        files, [&](const LargeFile& file) { return file.url.path().substr(root.string().size() + 1); });
}

std::vector<LargeFile> byPath(std::vector<LargeFile> files) {
    std::sort(files.begin(), files.end(),
              [](const LargeFile& a, const LargeFile& b) { return a.url.path() < b.url.path(); });
    return files;
}

std::vector<LargeFile> scanHome(const fs::path& home, std::int64_t floor = minimum,
                                const LargeFileScanner::Events& events = {}, std::stop_token stop = {}) {
    return LargeFileScanner::forHome(URL::file(home.string()), floor).scan(events, stop);
}

} // namespace

TEST(LargeFileScanner, FindsLargeFilesAndPackagesButNothingHiddenSkippedOrProtected) {
    TempTree tree;
    const TestSupport::ScopedEnvironment dataHome("XDG_DATA_HOME", tree.path("Data"));
    tree.file("Work/exact.bin", minimum);
    const std::int64_t floor = allocatedBytes(tree.path("Work/exact.bin"));
    tree.file("Work/below.bin", static_cast<std::size_t>(floor - 4096));
    tree.file("top.iso", minimum);
    tree.file("Library/skipped.bin", minimum);   // only right below the home
    tree.file("Work/Library/kept.bin", minimum); // deeper down it is an ordinary folder
    tree.file("Work/.hidden.bin", minimum);
    tree.file(".config/hidden-folder.bin", minimum);
    tree.file("Pictures/Album.photoslibrary/a", minimum / 2);
    tree.file("Pictures/Album.photoslibrary/b", minimum / 2);
    tree.file("Pictures/Photos Library.photoslibrary/big", minimum); // the guard protects it
    tree.file("Apps/Tool.app/Contents/big", 3 * minimum);            // programs are never found
    tree.file("Data/Trash/files/trashed.bin", minimum);              // the freedesktop trash
    tree.file("Data/kept.mkv", minimum);
    tree.file("Work/bad\xff\xfe.bin", minimum);
    tree.symlink("Work/link.bin", tree.path("Work/exact.bin"));
    tree.symlink("Work/root", "/");
    tree.symlink("Work/up", tree.root());
    ASSERT_EQ(::mkfifo(tree.path("Work/pipe").c_str(), 0600), 0);

    const std::vector<LargeFile> found = scanHome(tree.root(), floor);
    EXPECT_THAT(relative(byPath(found), tree.root()),
                ElementsAre("Data/kept.mkv", "Pictures/Album.photoslibrary", "Work/Library/kept.bin",
                            "Work/bad\xff\xfe.bin", "Work/exact.bin", "top.iso"));
    for (const LargeFile& file : found) {
        EXPECT_EQ(file.size, file.name() == "Album.photoslibrary"
                                 ? allocatedBytes(tree.path("Pictures/Album.photoslibrary/a")) +
                                       allocatedBytes(tree.path("Pictures/Album.photoslibrary/b"))
                                 : allocatedBytes(file.url.path()))
            << file.name();
        if (file.name() == "kept.mkv") {
            EXPECT_EQ(file.kind, FileKind::video);
        }
    }
    EXPECT_EQ(byPath(found), byPath(ReferenceLargeFileScanner::scan(
                                        LargeFileScanner::forHome(URL::file(tree.root().string()), floor))
                                        .files));
}

TEST(LargeFileScanner, LastUsedIsTheLaterOfAccessAndChange) {
    TempTree tree;
    ASSERT_TRUE(TestSupport::setTimes(tree.file("A/accessedLast", minimum), 2'000'000'000, 1'000'000'000));
    ASSERT_TRUE(TestSupport::setTimes(tree.file("A/changedLast", minimum), 1'000'000'000, 1'500'000'000));
    std::map<std::string, std::int64_t> used;
    for (const LargeFile& file : scanHome(tree.root()))
        used[file.name()] =
            std::chrono::duration_cast<std::chrono::seconds>(file.lastUsed->time_since_epoch()).count();
    EXPECT_EQ(used["accessedLast"], 2'000'000'000);
    EXPECT_EQ(used["changedLast"], 1'500'000'000);
}

TEST(LargeFileScanner, AreasAndEventsComeInOrder) {
    TempTree tree;
    for (const char* area : {"b", "a", "Music", "c.d"}) // "c.d": a dot alone makes no package
        for (int i = 0; i < 540; ++i)
            tree.file(std::string(area) + "/sub" + std::to_string(i % 7) + "/f" + std::to_string(i));
    for (const char* big : {"a/x/1", "a/sub3/2", "b/3", "c.d/4", "Music/5", "direct"})
        tree.file(big, minimum);
    tree.folder("Library/inside");
    tree.folder(".hidden");
    tree.file("Movies.photoslibrary/x", minimum);
    tree.symlink("linked", tree.path("a"));
    tree.file("plain-file");

    const LargeFileScanner scanner = LargeFileScanner::forHome(URL::file(tree.root().string()), minimum);
    const std::vector<std::string> areas = TestSupport::mapped(scanner.areas(), &URL::lastPathComponent);
    EXPECT_THAT(areas, ElementsAre("Music", "a", "b", "c.d"));

    std::vector<LargeFileScanEvent> events;
    std::mutex mutex;
    const auto found = scanner.scan([&](const LargeFileScanEvent& event) {
        const std::lock_guard lock(mutex);
        events.push_back(event);
    });

    std::vector<std::string> entered;
    std::vector<LargeFile> reported;
    std::int64_t lastCount = 0;
    std::string area; // files directly in the home come before any area
    for (const LargeFileScanEvent& event : events) {
        if (const auto* e = event.as<LargeFileScanEvent::Entered>()) {
            area = e->area.path();
            entered.push_back(e->area.lastPathComponent());
        } else if (const auto* f = event.as<LargeFileScanEvent::Found>()) {
            reported.push_back(f->file);
            const std::string parent = f->file.url.deletingLastPathComponent().path();
            if (area.empty())
                EXPECT_EQ(parent, tree.root().string()) << f->file.url.path();
            else
                EXPECT_TRUE(f->file.url.isInside(URL::file(area))) << f->file.url.path() << " in " << area;
        } else {
            const std::int64_t count = event.as<LargeFileScanEvent::Visited>()->count;
            EXPECT_GT(count, lastCount);
            EXPECT_EQ(count % LargeFileScanner::visitedBatch, 0);
            lastCount = count;
        }
    }
    EXPECT_EQ(entered, areas);
    EXPECT_EQ(reported, found);
    EXPECT_EQ(found.size(), 7u);
    // 2,160 files, 28 "sub" folders, 4 areas, the big files and their folder, and the rest
    EXPECT_EQ(lastCount, 2000);
}

TEST(LargeFileScanner, StoppingReturnsWhatWasFoundSoFar) {
    TempTree tree;
    for (const char* big : {"a/1", "b/2", "c/3", "d/4"})
        tree.file(big, minimum);
    std::stop_source stop;
    std::vector<LargeFile> seen;
    const auto stopAtFirst = [&](const LargeFileScanEvent& event) {
        if (const auto* f = event.as<LargeFileScanEvent::Found>())
            seen.push_back(f->file), stop.request_stop();
    };
    const auto found = scanHome(tree.root(), minimum, stopAtFirst, stop.get_token());
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found, seen);
    EXPECT_EQ(found[0].name(), "1");
}

TEST(LargeFileScanner, BadInputNeitherBreaksTheWalkNorLeadsOutOfTheHome) {
    TempTree outside;
    outside.file("elsewhere/big", minimum);
    TempTree tree;
    tree.file("Work/locked/big", minimum);
    tree.file("Work/gone.bin", minimum);
    tree.file("Work/kept.bin", minimum);
    tree.symlink("Work/outside", outside.root());
    tree.symlink("Work/root", "/");

    TestSupport::FaultySystemCalls calls;
    calls.openFault = [](const char* name) { return std::strcmp(name, "locked") == 0 ? EACCES : 0; };
    calls.statxFault = [](const char* name) { return std::strcmp(name, "gone.bin") == 0 ? ENOENT : 0; };
    const CleanerCore::Platform::ScopedSystemCalls scoped(calls);
    EXPECT_THAT(relative(scanHome(tree.root()), tree.root()), ElementsAre("Work/kept.bin"));

    // A home that is itself a link gives nothing, as any other link does.
    tree.folder("real");
    tree.file("real/Work/big", minimum);
    tree.symlink("home", tree.path("real"));
    const auto linked = LargeFileScanner::forHome(URL::file(tree.path("home").string()), minimum);
    EXPECT_TRUE(linked.areas().empty());
    EXPECT_TRUE(linked.scan(LargeFileScanner::Progress{}).empty());
}

TEST(LargeFileScanner, WalksAVeryDeepTreeWithFewDescriptors) {
    TempTree tree;
    TestSupport::DeepChain chain(tree.root(), 3000);
    // One large file at the bottom, far past the longest path the kernel takes whole.
    std::string bottom = tree.root().string();
    int fd = ::open(tree.root().c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < chain.levels; ++level) {
        const int child = ::openat(fd, "d", O_RDONLY | O_DIRECTORY);
        ::close(fd);
        fd = child;
        bottom += "/d";
    }
    const int big = ::openat(fd, "big", O_WRONLY | O_CREAT, 0644);
    ASSERT_EQ(::posix_fallocate(big, 0, minimum), 0);
    ::close(big);

    TestSupport::FaultySystemCalls calls;
    const CleanerCore::Platform::ScopedSystemCalls scoped(calls);
    std::int64_t lastCount = 0;
    const auto found = LargeFileScanner::forHome(URL::file(tree.root().string()), minimum)
                           .scan(LargeFileScanner::Progress([&](std::int64_t count) { lastCount = count; }));
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].url.path(), bottom + "/big");
    EXPECT_EQ(lastCount, 6000); // a folder and a file at each level, and the big one
    EXPECT_LT(calls.openPeak.load(), 100);

    ::unlinkat(fd, "big", 0);
    ::close(fd);
}
