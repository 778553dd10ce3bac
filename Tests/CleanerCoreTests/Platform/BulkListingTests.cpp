#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

using namespace CleanerCore::Platform;
using TestSupport::FaultySystemCalls;
using TestSupport::TempTree;

namespace {

// What the listing reported, by name (copied: the views die with the callback).
std::map<std::string, ListedEntry> listAll(const std::filesystem::path& folder, ListingOptions options = {},
                                           bool* complete = nullptr) {
    FileDescriptor fd(openDirectory(AT_FDCWD, folder.c_str()));
    EXPECT_TRUE(fd) << folder;
    std::map<std::string, ListedEntry> seen;
    const bool ok = listDirectory(
        fd.get(),
        [&](const ListedEntry& entry) {
            EXPECT_FALSE(seen.contains(std::string(entry.name))) << "listed twice: " << entry.name;
            ListedEntry copy = entry;
            copy.name = {};
            seen[std::string(entry.name)] = copy;
        },
        options);
    if (complete)
        *complete = ok;
    return seen;
}

std::int64_t blocksOf(const std::filesystem::path& path) {
    struct stat info {};
    EXPECT_EQ(::lstat(path.c_str(), &info), 0) << path;
    return static_cast<std::int64_t>(info.st_blocks) * 512;
}

// Rewrites every entry type in a getdents64 result, as file systems without d_type report them.
void forgetTypes(void* buffer, long filled) {
    auto* bytes = static_cast<unsigned char*>(buffer);
    for (long offset = 0; offset < filled;) {
        bytes[offset + 18] = DT_UNKNOWN; // d_type sits after d_ino, d_off and d_reclen
        unsigned short length;
        std::memcpy(&length, bytes + offset + 16, sizeof length);
        offset += length;
    }
}

} // namespace

TEST(BulkListing, ReportsKindsSizesAndIdentityOfEachEntry) {
    TempTree tree;
    tree.file("small", 10);
    tree.file("big", 100'000);
    tree.folder("sub");
    tree.symlink("link", tree.path("sub"));
    ASSERT_EQ(::mkfifo(tree.path("pipe").c_str(), 0600), 0);
    ASSERT_EQ(::link(tree.path("big").c_str(), tree.path("big2").c_str()), 0);

    const auto seen = listAll(tree.root());
    ASSERT_EQ(seen.size(), 6u);
    EXPECT_FALSE(seen.contains(".") || seen.contains(".."));

    struct stat rootInfo {};
    ASSERT_EQ(::stat(tree.root().c_str(), &rootInfo), 0);
    for (const char* name : {"small", "big", "big2"}) {
        const ListedEntry& file = seen.at(name);
        EXPECT_EQ(file.kind, EntryKind::file) << name;
        EXPECT_EQ(file.allocatedSize, blocksOf(tree.path(name))) << name;
        EXPECT_EQ(file.device, rootInfo.st_dev) << name;
        EXPECT_FALSE(file.isMountRoot);
    }
    EXPECT_GT(seen.at("small").allocatedSize, 0);
    EXPECT_EQ(seen.at("big").inode, seen.at("big2").inode);
    EXPECT_EQ(seen.at("big").linkCount, 2u);
    EXPECT_EQ(seen.at("small").linkCount, 1u);

    EXPECT_EQ(seen.at("sub").kind, EntryKind::directory);
    EXPECT_EQ(seen.at("sub").device, rootInfo.st_dev);
    EXPECT_NE(seen.at("sub").inode, 0u);

    for (const char* name : {"link", "pipe"}) {
        EXPECT_EQ(seen.at(name).allocatedSize, 0) << name;
        EXPECT_EQ(seen.at(name).device, 0u) << name;
    }
    EXPECT_EQ(seen.at("link").kind, EntryKind::symlink);
    EXPECT_EQ(seen.at("pipe").kind, EntryKind::other);
}

TEST(BulkListing, StatsOnlyWhatItMustAndFallsBackWhenTypesAreUnknown) {
    TempTree tree;
    tree.file("a", 1);
    tree.file("b", 5000);
    tree.folder("sub");
    tree.symlink("link", "a");
    ASSERT_EQ(::mkfifo(tree.path("pipe").c_str(), 0600), 0);

    FaultySystemCalls calls;
    ScopedSystemCalls scope(calls);
    const auto quick = listAll(tree.root(), {.statFolders = false});
    EXPECT_EQ(calls.stats, 2) << "only the two files need a statx";
    EXPECT_EQ(quick.at("sub").kind, EntryKind::directory);
    EXPECT_NE(quick.at("sub").inode, 0u) << "the entry's own inode number";

    calls.stats = 0;
    const auto full = listAll(tree.root());
    EXPECT_EQ(calls.stats, 3);
    EXPECT_NE(full.at("sub").device, 0u);

    calls.afterList = forgetTypes;
    calls.stats = 0;
    const auto unknown = listAll(tree.root(), {.statFolders = false});
    EXPECT_EQ(calls.stats, 5) << "no type in the entry: every one is examined";
    ASSERT_EQ(unknown.size(), 5u);
    EXPECT_EQ(unknown.at("a").kind, EntryKind::file);
    EXPECT_EQ(unknown.at("b").allocatedSize, blocksOf(tree.path("b")));
    EXPECT_EQ(unknown.at("sub").kind, EntryKind::directory);
    EXPECT_EQ(unknown.at("link").kind, EntryKind::symlink);
    EXPECT_EQ(unknown.at("link").allocatedSize, 0) << "a link's own blocks never count";
    EXPECT_EQ(unknown.at("pipe").kind, EntryKind::other);
}

TEST(BulkListing, ReadsFoldersLargerThanOneBufferCompletely) {
    TempTree tree;
    const std::string padding(200, 'n'); // ~224-byte records: 3000 of them need several reads
    for (int i = 0; i < 3000; ++i)
        std::ofstream(tree.path(padding + std::to_string(i)));
    FaultySystemCalls calls;
    ScopedSystemCalls scope(calls);
    bool complete = false;
    const auto seen = listAll(tree.root(), {}, &complete);
    EXPECT_TRUE(complete);
    EXPECT_EQ(seen.size(), 3000u);
    EXPECT_GE(calls.lists, 3) << "several reads and the final empty one";
}

TEST(BulkListing, RetriesInterruptionsAndSkipsOnlyWhatFails) {
    TempTree tree;
    for (const char* name : {"keep1", "gone", "keep2"})
        tree.file(name, 10);
    FaultySystemCalls calls;
    std::atomic<int> interruptions{0};
    calls.listFault = [&] { return interruptions++ < 2 ? EINTR : 0; };
    calls.statxFault = [&](const char* name) {
        if (std::string_view(name) == "gone")
            return ENOENT;
        return interruptions++ < 4 ? EINTR : 0;
    };
    ScopedSystemCalls scope(calls);
    bool complete = false;
    const auto seen = listAll(tree.root(), {}, &complete);
    EXPECT_TRUE(complete);
    EXPECT_EQ(seen.size(), 2u);
    EXPECT_TRUE(seen.contains("keep1") && seen.contains("keep2"));
    EXPECT_GE(interruptions, 4);
}

TEST(BulkListing, ReportsAFolderThatCannotBeReadToItsEnd) {
    TempTree tree;
    tree.file("a", 1);
    FaultySystemCalls calls;
    calls.listFault = [] { return EIO; };
    ScopedSystemCalls scope(calls);
    bool complete = true;
    EXPECT_TRUE(listAll(tree.root(), {}, &complete).empty());
    EXPECT_FALSE(complete);
}

TEST(BulkListing, ListingInsideAnotherListingKeepsBothIntact) {
    TempTree tree;
    for (const char* name : {"x/1", "x/2", "y/3", "y/4", "y/5"})
        tree.file(name, 1);
    FileDescriptor root(openDirectory(AT_FDCWD, tree.root().c_str()));
    std::map<std::string, int> children;
    listDirectory(root.get(), [&](const ListedEntry& folder) {
        const std::string name(folder.name);
        FileDescriptor inner(openDirectory(root.get(), folder.name.data()));
        listDirectory(inner.get(), [&](const ListedEntry&) { ++children[name]; });
        EXPECT_EQ(std::string(folder.name), name) << "the outer entry survived the inner listing";
    });
    EXPECT_EQ(children, (std::map<std::string, int>{{"x", 2}, {"y", 3}}));
}

TEST(BulkListing, OpensFoldersButNeverThroughALink) {
    TempTree tree;
    tree.folder("real");
    tree.file("file", 1);
    tree.symlink("link", tree.path("real"));
    FileDescriptor root(openDirectory(AT_FDCWD, tree.root().c_str()));
    ASSERT_TRUE(root);
    EXPECT_TRUE(FileDescriptor(openDirectory(root.get(), "real")));
    errno = 0;
    EXPECT_EQ(openDirectory(root.get(), "link"), -1);
    EXPECT_TRUE(errno == ELOOP || errno == ENOTDIR) << errno;
    EXPECT_EQ(openDirectory(root.get(), "file"), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(openDirectory(root.get(), "missing"), -1);
    EXPECT_EQ(errno, ENOENT);
}

TEST(BulkListing, MarksTheRootsOfMounts) {
    struct stat proc {
    }, top{};
    if (::stat("/proc", &proc) != 0 || ::stat("/", &top) != 0 || proc.st_dev == top.st_dev)
        GTEST_SKIP() << "no separate /proc here";
    const auto seen = listAll("/");
    ASSERT_TRUE(seen.contains("proc"));
    EXPECT_TRUE(seen.at("proc").isMountRoot);
    EXPECT_EQ(seen.at("proc").device, proc.st_dev);
    for (const char* name : {"usr", "etc"})
        if (seen.contains(name)) {
            struct stat info {};
            ASSERT_EQ(::stat((std::string("/") + name).c_str(), &info), 0);
            EXPECT_EQ(seen.at(name).isMountRoot, info.st_dev != top.st_dev) << name;
        }
}
