#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "CleanerCore/DiskTree/ReferenceDiskTreeScanner.hpp"
#include "DeepChain.hpp"
#include "DiskTreeChecks.hpp"
#include "FaultySystemCalls.hpp"
#include "RandomTree.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <fcntl.h>
#include <malloc.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

using namespace CleanerCore;
using DiskTreeChecks::difference;
using DiskTreeChecks::malformation;
using TestSupport::TempTree;
namespace fs = std::filesystem;

namespace {

// Every kind of item a disk holds: nested folders deeper than the fan-out, files of every size
// class around the fold thresholds, packages, hard links, links (one back to the root), dangling
// links, pipes, empty folders, names with spaces and bytes that are not UTF-8.
TestSupport::RandomTreeOptions everything(bool appleDoubleAndLocked = false) {
    return {.stems = {"a", "Docs", "caf\xc3\xa9", "bad\xff\xfe", "with space", ".hidden", "\x80"},
            .sizes = {0, 1, 4095, 4097, 9000, 50'000, 300'000, 1'100'000},
            .steps = 120,
            .extraSteps = 180,
            .packages = {".app"},
            .hardLinks = true,
            .appleDouble = appleDoubleAndLocked,
            .locked = appleDoubleAndLocked};
}

void visit(const DiskNode& node, const std::function<void(const DiskNode&)>& see) {
    see(node);
    for (const DiskNode::Pointer& child : node.children())
        visit(*child, see);
}

struct Fold {
    std::int64_t alwaysKeep;
    std::int64_t minimumNodeSize;
};
constexpr Fold noFold{1'000'000'000, 0};

std::string compare(const fs::path& root, Fold fold) {
    // Fresh files may still change their allocated blocks when written back (delayed allocation
    // reserves more than it keeps); settle them first so both walks see the same sizes.
    if (const int fd = ::open(root.c_str(), O_RDONLY | O_DIRECTORY); fd >= 0) {
        ::syncfs(fd);
        ::close(fd);
    }
    const auto fast = DiskTreeScanner{root.string(), fold.minimumNodeSize, fold.alwaysKeep}.scan(
        DiskTreeScanner::Reporting{});
    const auto reference =
        ReferenceDiskTreeScanner{root.string(), fold.minimumNodeSize, fold.alwaysKeep}.scan();
    if (std::string broken = malformation(*fast); !broken.empty())
        return broken;
    return difference(*fast, *reference);
}

} // namespace

TEST(DiskTreeAgreement, RandomTreesGiveTheReferenceTreeAtEveryFold) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        TempTree tree;
        TestSupport::randomTree(tree.root(), seed, everything());
        for (const Fold fold : {Fold{12, 1'000'000}, Fold{2, 8192}, Fold{0, 4097}, Fold{5, 0}, noFold})
            EXPECT_EQ(compare(tree.root(), fold), "")
                << "seed " << seed << ", keep " << fold.alwaysKeep << ", minimum " << fold.minimumNodeSize;
    }
}

// Without folding, the reference less its "._" items and less what unreadable folders hold is
// exactly the fast tree, where those folders are empty.
TEST(DiskTreeAgreement, AppleDoubleNamesAndUnreadableFoldersDifferOnlyAsIntended) {
    TestSupport::FaultySystemCalls calls;
    calls.openFault = [](const char* path) {
        const char* slash = std::strrchr(path, '/');
        return std::strncmp(slash ? slash + 1 : path, "locked", 6) == 0 ? EACCES : 0;
    };
    for (unsigned seed = 20; seed < 26; ++seed) {
        TempTree tree;
        TestSupport::randomTree(tree.root(), seed, everything(true));
        const auto reference = ReferenceDiskTreeScanner{tree.root().string(), 0, noFold.alwaysKeep}.scan();
        std::unordered_set<URL> hidden;
        visit(*reference, [&](const DiskNode& node) {
            if (node.name().starts_with("._"))
                hidden.insert(node.url());
            if (node.isDirectory() && node.name().starts_with("locked"))
                for (const DiskNode::Pointer& inside : node.children())
                    hidden.insert(inside->url());
        });
        ASSERT_FALSE(hidden.empty());
        const auto expected = DiskNode::removing(reference, hidden);

        const Platform::ScopedSystemCalls scope(calls);
        const auto fast =
            DiskTreeScanner{tree.root().string(), 0, noFold.alwaysKeep}.scan(DiskTreeScanner::Reporting{});
        EXPECT_EQ(difference(*fast, *expected), "") << "seed " << seed;
        EXPECT_EQ(calls.openNow, 0) << "every descriptor is closed";
    }
}

TEST(DiskTreeAgreement, AFolderOfAHundredThousandFiles) {
    TempTree tree;
    const fs::path many = tree.folder("many");
    const int fd = ::open(many.c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_GE(fd, 0);
    for (int i = 0; i < 100'000; ++i) {
        const std::string name = "file-" + std::to_string(i);
        const int file = ::openat(fd, name.c_str(), O_WRONLY | O_CREAT, 0644);
        ASSERT_GE(file, 0);
        if (i % 997 == 0) { // a hundred files that occupy a block, so that ranking matters
            ASSERT_EQ(::write(file, "x", 1), 1);
        }
        ::close(file);
    }
    ::close(fd);
    tree.file("big", 2'000'000);
    EXPECT_EQ(compare(tree.root(), {12, 1'000'000}), "");
    const auto fast = DiskTreeScanner{tree.root().string()}.scan(DiskTreeScanner::Reporting{});
    ASSERT_EQ(fast->children().size(), 2u);
    const DiskNode& folder = *fast->children()[1];
    ASSERT_EQ(folder.children().size(), 13u);
    EXPECT_EQ(folder.children().back()->itemCount(), 100'000 - 12);
    EXPECT_EQ(folder.itemCount(), 100'000);
}

TEST(DiskTreeAgreement, ADeepChainAgreesAndAChainPastThePathLimitIsWalkedWhole) {
    {
        TempTree tree; // deep, but within what the reference can open by path
        const TestSupport::DeepChain chain(tree.root(), 1500);
        EXPECT_EQ(compare(tree.root(), {1, 1'000'000}), "");
    }
    TempTree tree;
    const TestSupport::DeepChain chain(tree.root(), 3000);
    TestSupport::FaultySystemCalls calls;
    const Platform::ScopedSystemCalls scope(calls);
    const auto fast = DiskTreeScanner{tree.root().string(), 1'000'000, 1}.scan(DiskTreeScanner::Reporting{});
    EXPECT_EQ(fast->size(), chain.total());
    EXPECT_EQ(fast->itemCount(), 3000);
    EXPECT_EQ(malformation(*fast), "");
    int depth = 0;
    for (const DiskNode* node = fast.get(); !node->children().empty(); node = node->children()[0].get())
        depth += node->children()[0]->isDirectory() ? 1 : 0;
    EXPECT_EQ(depth, 3000);
    EXPECT_LT(calls.openPeak, 100);
    EXPECT_EQ(calls.openNow, 0);
}

// Each level holds its own name, not its whole path: a 20,000-level chain once took 400 MB and
// overflowed the stack when the tree was released. The deepest file is found by its path.
TEST(DiskTreeAgreement, ATwentyThousandLevelChainStaysSmallAndIsReleasedWhole) {
    TempTree tree;
    const TestSupport::DeepChain chain(tree.root(), 20'000);
    const std::size_t heapBefore = mallinfo2().uordblks;
    auto scanned = DiskTreeScanner{tree.root().string(), 1, 1}.scan(DiskTreeScanner::Reporting{});
    const std::size_t heapAfter = mallinfo2().uordblks;
    if (heapAfter > heapBefore) { // malloc statistics are empty under a sanitizer
        EXPECT_LT(heapAfter - heapBefore, 32u << 20);
    }
    EXPECT_EQ(scanned->size(), chain.total());
    std::string deepest = tree.root().string();
    for (int level = 0; level < 20'000; ++level)
        deepest += "/d";
    deepest += "/f";
    const auto way = DiskNode::pathTo(scanned, URL::file(deepest));
    ASSERT_TRUE(way.has_value());
    EXPECT_EQ(way->size(), 20'002u);
    EXPECT_EQ(way->back()->path(), deepest);
    EXPECT_EQ(DiskNode::find(scanned, URL::file(deepest + "x")), nullptr);
    scanned.reset();
}

// Deep levels that still have folders to visit give their descriptors back for a while and get
// them again by name.
TEST(DiskTreeAgreement, DeepLevelsWithSiblingsKeepFewDescriptorsOpen) {
    TempTree tree;
    std::string path;
    for (int level = 0; level < 150; ++level) {
        tree.file(path + "a/f", 10);
        tree.folder(path + "z");
        path += "d/";
    }
    tree.file(path + "end", 5000);
    TestSupport::FaultySystemCalls calls;
    {
        const Platform::ScopedSystemCalls scope(calls);
        EXPECT_EQ(compare(tree.root(), {3, 1'000'000}), "");
    }
    EXPECT_LE(calls.openPeak, 48);
    EXPECT_EQ(calls.openNow, 0);
}

// Below the fan-out, branches sixty levels deep with folders left to visit at most levels,
// whichever place the deep folder takes in its level's listing: levels that gave their descriptor
// back must be found again, and every folder they still held must be counted.
TEST(DiskTreeAgreement, DeepBranchesWithFoldersLeftAtEveryLevel) {
    const std::vector<std::string> stems{"k", "Zed", "alpha", "m-", "0", "\xc3\xa9t\xc3\xa9", "Q q"};
    for (unsigned seed = 1; seed <= 2; ++seed) {
        std::mt19937 random(seed);
        int serial = 0;
        const auto name = [&] { return stems[random() % stems.size()] + std::to_string(serial++); };
        TempTree tree;
        std::string top;
        for (int level = 0; level < 6; ++level) // the fanned-out levels
            top += name() + "/";
        for (int branch = 0; branch < 2; ++branch) {
            std::string path = top + name() + "/";
            for (int level = 0; level < 64; ++level) {
                for (int sibling = 0, siblings = 2 + static_cast<int>(random() % 3); sibling < siblings; ++sibling)
                    tree.file(path + name() + "/f", 1 + random() % 20'000);
                path += name() + "/";
            }
            tree.file(path + "end", 5000);
        }
        for (const Fold fold : {noFold, Fold{2, 8192}})
            EXPECT_EQ(compare(tree.root(), fold), "") << "seed " << seed << ", keep " << fold.alwaysKeep;
    }
}
