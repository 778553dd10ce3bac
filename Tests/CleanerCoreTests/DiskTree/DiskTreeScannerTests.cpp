#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "CleanerCore/DiskTree/ReferenceDiskTreeScanner.hpp"
#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "DiskTreeChecks.hpp"
#include "FaultySystemCalls.hpp"
#include "Mapped.hpp"
#include "ScopedMount.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <mutex>

using namespace CleanerCore;
using DiskTreeChecks::malformation;
using TestSupport::allocatedBytes;
using TestSupport::TempTree;
namespace fs = std::filesystem;

namespace {

// Both scanners, so that every rule of the shape is held against each.
std::vector<
    std::pair<const char*, std::function<DiskNode::Pointer(const fs::path&, std::int64_t, std::int64_t)>>>
scanners() {
    return {{"fast",
             [](const fs::path& root, std::int64_t minimum, std::int64_t keep) {
                 return DiskTreeScanner{root.string(), minimum, keep}.scan(DiskTreeScanner::Reporting{});
             }},
            {"reference", [](const fs::path& root, std::int64_t minimum, std::int64_t keep) {
                 return ReferenceDiskTreeScanner{root.string(), minimum, keep}.scan();
             }}};
}

std::vector<std::string> namesOf(const DiskNode& node) {
    return TestSupport::mapped(node.children(),
                               [](const DiskNode::Pointer& child) { return std::string(child->name()); });
}

struct Calls {
    std::mutex mutex;
    std::vector<std::pair<std::int64_t, std::optional<std::string>>> seen;
    DiskTreeScanner::Reporting reporter() {
        return [this](std::int64_t count, const std::optional<std::string>& folder) {
            const std::lock_guard lock(mutex);
            seen.emplace_back(count, folder);
        };
    }
};

} // namespace

TEST(DiskTreeScanner, FoldsWhatIsBeyondAlwaysKeepAndSmallIntoOneAggregateLast) {
    const std::string language = CoreL10n::currentLanguage();
    CoreL10n::setCurrentLanguage("en");
    for (const auto& [label, scan] : scanners()) {
        SCOPED_TRACE(label);
        TempTree thirteen;
        for (int i = 0; i < 13; ++i)
            thirteen.file("f" + std::to_string(i), 10);
        const auto tree = scan(thirteen.root(), 1'000'000, 12);
        const std::int64_t block = allocatedBytes(thirteen.path("f0"));
        ASSERT_EQ(tree->children().size(), 13u);
        const DiskNode& small = *tree->children().back();
        EXPECT_TRUE(small.isAggregate());
        EXPECT_FALSE(small.isDirectory());
        EXPECT_EQ(small.itemCount(), 1);
        EXPECT_EQ(small.size(), block);
        EXPECT_EQ(small.name(), "1 small item");
        EXPECT_EQ(small.path(), (thirteen.root() / ".zephrane-small-items").string());
        EXPECT_EQ(tree->size(), 13 * block);
        EXPECT_EQ(tree->itemCount(), 13);
        // Equal sizes rank by name, so the last name is the one folded.
        EXPECT_EQ(DiskNode::find(tree, URL::file(thirteen.path("f9").string())), nullptr);

        TempTree twelve; // at most alwaysKeep children never fold, however small
        for (int i = 0; i < 12; ++i)
            twelve.file("f" + std::to_string(i), 0);
        EXPECT_EQ(scan(twelve.root(), 1'000'000, 12)->children().size(), 12u);

        TempTree bigAggregate; // the aggregate stands last even when it is the largest child
        bigAggregate.file("big", 3 * 4096);
        for (int i = 0; i < 5; ++i)
            bigAggregate.file("s" + std::to_string(i), 4096);
        bigAggregate.file("deep/sub/one", 100);
        const auto folded = scan(bigAggregate.root(), 4 * 4096, 1);
        ASSERT_EQ(namesOf(*folded), (std::vector<std::string>{"big", "6 small items"}));
        EXPECT_GT(folded->children()[1]->size(), folded->children()[0]->size());
        EXPECT_EQ(folded->itemCount(), 7) << "a folded folder brings its whole count";
        EXPECT_EQ(DiskNode::find(folded, URL::file(bigAggregate.path("deep").string())), nullptr);

        TempTree emptyFolded; // a folded empty folder leaves no trace, not even an aggregate
        emptyFolded.file("file", 10);
        emptyFolded.folder("empty/inner");
        const auto traceless = scan(emptyFolded.root(), 1'000'000, 1);
        EXPECT_EQ(namesOf(*traceless), std::vector<std::string>{"file"});
        EXPECT_EQ(traceless->itemCount(), 1);
        EXPECT_EQ(malformation(*traceless), "");
    }
    CoreL10n::setCurrentLanguage(language);
}

TEST(DiskTreeScanner, PackagesAreLeavesAndLinksCountOnlyInProgress) {
    for (const auto& [label, scan] : scanners()) {
        SCOPED_TRACE(label);
        TempTree tree;
        tree.file("Tool.app/Contents/MacOS/tool", 9000);
        tree.file("Tool.app/Contents/Info.plist", 10);
        tree.symlink("to-tool", tree.path("Tool.app"));
        tree.symlink("to-nowhere", "/nowhere");
        const auto root = scan(tree.root(), 1'000'000, 12);
        ASSERT_EQ(root->children().size(), 1u);
        const DiskNode& package = *root->children()[0];
        EXPECT_EQ(package.name(), "Tool.app");
        EXPECT_FALSE(package.isDirectory());
        EXPECT_EQ(package.itemCount(), 1);
        EXPECT_TRUE(package.children().empty());
        EXPECT_EQ(package.size(), FileSize::allocatedSize(URL::file(tree.path("Tool.app").string())));
    }

    TempTree tree;
    tree.file("a", 1);
    tree.file("b", 1);
    tree.symlink("link", tree.path("a"));
    tree.file("._a", 4096);
    Calls calls;
    const auto root = DiskTreeScanner{tree.root().string()}.scan(calls.reporter());
    EXPECT_EQ(root->itemCount(), 2);
    // Below 5,000 items there is one report only, the final one: the link counts, "._a" does not.
    ASSERT_EQ(calls.seen.size(), 1u);
    EXPECT_EQ(calls.seen[0].first, 3);
    EXPECT_EQ(calls.seen[0].second, std::nullopt);
}

TEST(DiskTreeScanner, ReportsProgressByBlocksOfItemsAndLastOfAllTheTotal) {
    TempTree tree;
    for (int folder = 0; folder < 4; ++folder)
        for (int i = 0; i < 1500; ++i)
            tree.file("f" + std::to_string(folder) + "/" + std::to_string(i));
    Calls calls;
    DiskTreeScanner{tree.root().string()}.scan(calls.reporter());
    ASSERT_GE(calls.seen.size(), 2u) << "crossing 5,000 items reports once the clock allows";
    // Folders are items of their parent's listing too.
    EXPECT_EQ(calls.seen.back(), (std::pair<std::int64_t, std::optional<std::string>>{6004, std::nullopt}));
    for (std::size_t i = 0; i + 1 < calls.seen.size(); ++i) {
        EXPECT_GE(calls.seen[i].first, 5000);
        ASSERT_TRUE(calls.seen[i].second.has_value());
        EXPECT_TRUE(calls.seen[i].second->starts_with(tree.root().string()));
    }

    Calls reference;
    ReferenceDiskTreeScanner{tree.root().string()}.scan(reference.reporter());
    ASSERT_EQ(reference.seen.size(), 2u) << "the plain counter reports each block crossed";
    EXPECT_EQ(reference.seen.back().first, 6004);
}

TEST(DiskTreeScanner, AStoppedScanReturnsAWellFormedPartialTree) {
    TempTree tree;
    for (int folder = 0; folder < 40; ++folder)
        for (int i = 0; i < 200; ++i)
            tree.file("top/" + std::to_string(folder % 4) + "/f" + std::to_string(folder) + "/" +
                          std::to_string(i),
                      10);
    tree.file("own", 10);

    std::stop_source early;
    early.request_stop();
    const auto nothing =
        DiskTreeScanner{tree.root().string(), 0, 1000}.scan(DiskTreeScanner::Reporting{}, early.get_token());
    EXPECT_EQ(namesOf(*nothing), std::vector<std::string>{"own"}) << "the root's own files are listed";
    EXPECT_EQ(malformation(*nothing), "");

    std::stop_source midway;
    Calls calls;
    const auto report = calls.reporter();
    const auto partial = DiskTreeScanner{tree.root().string(), 0, 1000}.scan(
        [&](std::int64_t count, const std::optional<std::string>& folder) {
            midway.request_stop();
            report(count, folder);
        },
        midway.get_token());
    EXPECT_EQ(malformation(*partial), "");
    EXPECT_EQ(calls.seen.back().second, std::nullopt);
    // The stop comes with the first report, past 5,000 items: what was listed by then is kept, the
    // folders not begun are left out.
    EXPECT_GT(partial->itemCount(), 4000);
    EXPECT_LT(partial->itemCount(), 8001) << "the stop was not heeded";

    const auto whole = DiskTreeScanner{tree.root().string(), 0, 1000}.scan(DiskTreeScanner::Reporting{});
    EXPECT_EQ(whole->itemCount(), 8001);
    EXPECT_EQ(malformation(*whole), "");
}

// Another file system is told by its device; a bind mount of this one by its mount-root mark,
// which only the fast scanner reads (the plain one compares volumes and keeps it).
TEST(DiskTreeScanner, MountPointsInsideTheRootAreAbsent) {
    TempTree tree, elsewhere;
    tree.file("here", 5000);
    elsewhere.file("bound-file", 5000);
    const auto tmpfs = TestSupport::ScopedMount::tmpfs(tree.folder("mounted"));
    const auto bind = TestSupport::ScopedMount::bind(elsewhere.root(), tree.folder("bound"));
    if (!tmpfs || !bind)
        GTEST_SKIP() << tmpfs.why() << bind.why();
    tree.file("mounted/there", 5000);
    for (const auto& [label, scan] : scanners()) {
        SCOPED_TRACE(label);
        const auto root = scan(tree.root(), 0, 100);
        const std::vector<std::string> expected = std::string_view(label) == "fast"
                                                      ? std::vector<std::string>{"here"}
                                                      : std::vector<std::string>{"bound", "here"};
        EXPECT_EQ(namesOf(*root), expected);
    }
}

TEST(DiskTreeScanner, AnUnreadableRootIsAnEmptyFolder) {
    TempTree tree;
    tree.file("inside", 10);
    TestSupport::FaultySystemCalls calls;
    calls.openFault = [](const char*) { return EACCES; };
    const Platform::ScopedSystemCalls scope(calls);
    Calls reports;
    const auto root = DiskTreeScanner{tree.root().string() + "/"}.scan(reports.reporter());
    EXPECT_EQ(root->path(), tree.root().string());
    EXPECT_TRUE(root->isDirectory());
    EXPECT_TRUE(root->children().empty());
    EXPECT_EQ(root->size(), 0);
    ASSERT_EQ(reports.seen.size(), 1u);
    EXPECT_EQ(reports.seen[0].first, 0);
}
