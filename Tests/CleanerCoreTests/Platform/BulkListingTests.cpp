#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <map>

using namespace CleanerCore::Platform;
using TestSupport::allocatedBytes;

namespace {

std::map<std::string, ListedEntry> listAll(const std::filesystem::path& folder, ListingOptions options = {},
                                           bool* complete = nullptr) {
    FileDescriptor fd(openDirectory(AT_FDCWD, folder.c_str()));
    std::map<std::string, ListedEntry> seen;
    const bool ok = listDirectory(
        fd.get(), [&](const ListedEntry& entry) { (seen[std::string(entry.name)] = entry).name = {}; },
        options);
    if (complete)
        *complete = ok;
    return seen;
}

struct Listing : ::testing::Test {
    TestSupport::TempTree tree;
    TestSupport::FaultySystemCalls calls;
    void SetUp() override {
        tree.file("small", 10);
        tree.file("big", 100'000);
        tree.symlink("link", tree.folder("sub"));
        ASSERT_EQ(::mkfifo(tree.path("pipe").c_str(), 0600), 0);
        ASSERT_EQ(::link(tree.path("big").c_str(), tree.path("big2").c_str()), 0);
    }
};

} // namespace

TEST_F(Listing, ReportsEachEntryStattingOnlyWhatItMust) {
    ScopedSystemCalls scope(calls);
    const auto seen = listAll(tree.root());
    EXPECT_EQ(calls.stats, 4) << "three files and the folder; never the link or the pipe";
    ASSERT_EQ(seen.size(), 6u) << "no . or ..";
    for (const char* name : {"small", "big", "big2"})
        EXPECT_EQ(seen.at(name).allocatedSize, allocatedBytes(tree.path(name).c_str())) << name;
    EXPECT_EQ(seen.at("big").inode, seen.at("big2").inode);
    EXPECT_EQ(seen.at("big").linkCount, 2u);
    EXPECT_EQ(seen.at("sub").device, seen.at("small").device);
    EXPECT_NE(seen.at("sub").device, 0u);
    EXPECT_EQ(seen.at("link").kind, EntryKind::symlink);
    EXPECT_EQ(seen.at("pipe").kind, EntryKind::other);

    calls.stats = 0;
    EXPECT_EQ(listAll(tree.root(), {.statFolders = false}).at("sub").kind, EntryKind::directory);
    EXPECT_EQ(calls.stats, 3);

    calls.afterList = [](void* buffer, long filled) { // entries without a type, as some file systems give
        for (auto* at = static_cast<unsigned char*>(buffer);
             at < static_cast<unsigned char*>(buffer) + filled; at += at[16] | at[17] << 8)
            at[18] = DT_UNKNOWN;
    };
    const auto untyped = listAll(tree.root(), {.statFolders = false});
    EXPECT_EQ(calls.stats, 9);
    for (const auto& [name, entry] : seen) { // a link or a pipe examined this way still counts nothing
        EXPECT_EQ(untyped.at(name).kind, entry.kind) << name;
        EXPECT_EQ(untyped.at(name).allocatedSize, entry.allocatedSize) << name;
    }
}

TEST_F(Listing, RetriesInterruptionsSkipsVanishedEntriesAndReportsUnreadableFolders) {
    std::atomic<int> interruptions{0};
    calls.listFault = [&] { return interruptions++ < 2 ? EINTR : 0; };
    calls.statxFault = [&](const char* name) {
        return std::string_view(name) == "small" ? ENOENT : interruptions++ < 4 ? EINTR : 0;
    };
    ScopedSystemCalls scope(calls);
    bool complete = false;
    const auto seen = listAll(tree.root(), {}, &complete);
    EXPECT_TRUE(complete);
    EXPECT_EQ(seen.size(), 5u);
    EXPECT_FALSE(seen.contains("small"));
    calls.listFault = [] { return EIO; };
    EXPECT_TRUE(listAll(tree.root(), {}, &complete).empty());
    EXPECT_FALSE(complete);
}

TEST(BulkListing, ReadsBigFoldersWholeAndKeepsNestedListingsApart) {
    TestSupport::TempTree tree;
    tree.folder("x");
    for (int i = 0; i < 3000; ++i) // ~224-byte records: several buffers full
        std::ofstream(tree.path("x/" + std::string(200, 'n') + std::to_string(i)));
    tree.file("y/1");
    FileDescriptor root(openDirectory(AT_FDCWD, tree.root().c_str()));
    std::map<std::string, int> counts;
    listDirectory(root.get(), [&](const ListedEntry& folder) {
        const std::string name(folder.name);
        FileDescriptor inner(openDirectory(root.get(), folder.name.data()));
        listDirectory(inner.get(), [&](const ListedEntry&) { ++counts[name]; });
        EXPECT_EQ(folder.name, name) << "the outer listing's buffer was left alone";
    });
    EXPECT_EQ(counts, (std::map<std::string, int>{{"x", 3000}, {"y", 1}}));
}

TEST(BulkListing, MarksMountRoots) {
    struct stat proc {
    }, top{};
    if (::stat("/proc", &proc) != 0 || ::stat("/", &top) != 0 || proc.st_dev == top.st_dev)
        GTEST_SKIP() << "no separate /proc";
    const auto seen = listAll("/");
    EXPECT_TRUE(seen.at("proc").isMountRoot);
    EXPECT_EQ(seen.at("proc").device, proc.st_dev);
}
