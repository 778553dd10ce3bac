#include "CleanerCore/DiskTree/DiskNode.hpp"
#include "DiskTreeChecks.hpp"
#include "Mapped.hpp"

#include <gtest/gtest.h>

using namespace CleanerCore;
using DiskTreeChecks::difference;
using DiskTreeChecks::malformation;

namespace {

using DiskTreeChecks::folder;
using DiskTreeChecks::leaf;

// /r: big 1000, a/ (x 300, y 200), ab/ (z 50), and an aggregate of 3 items, 900 bytes.
DiskNode::Pointer sample() {
    return folder("/r", {leaf("/r/big", 1000), folder("/r/a", {leaf("/r/a/x", 300), leaf("/r/a/y", 200)}),
                         folder("/r/ab", {leaf("/r/ab/z", 50)}), DiskTreeChecks::aggregate("/r", 900)});
}

} // namespace

TEST(DiskNode, FindsNodesAndPathsByUrl) {
    const auto root = sample();
    EXPECT_EQ(root->name(), "r");
    EXPECT_EQ(DiskNode::find(root, URL::file("/r")), root);
    EXPECT_EQ(DiskNode::find(root, URL::file("/r/ab/z"))->size(), 50);
    EXPECT_EQ(DiskNode::find(root, URL::file("/r/ab/"))->name(), "ab")
        << "a trailing slash names the same item";
    EXPECT_EQ(DiskNode::find(root, URL::file("/r/.zephrane-small-items"))->itemCount(), 3);
    EXPECT_EQ(DiskNode::find(root, URL::file("/r/a/z")), nullptr);
    EXPECT_EQ(DiskNode::find(root, URL::file("/other")), nullptr);

    const auto path = DiskNode::pathTo(root, URL::file("/r/a/y"));
    ASSERT_TRUE(path.has_value());
    EXPECT_EQ(
        TestSupport::mapped(*path, [](const DiskNode::Pointer& node) { return std::string(node->name()); }),
        (std::vector<std::string>{"r", "a", "y"}));
    EXPECT_EQ(DiskNode::pathTo(root, URL::file("/r/a/nothing")), std::nullopt);
}

TEST(DiskNode, RemovingSharesUntouchedSubtreesAndSumsChangedFoldersAgain) {
    const auto root = sample();
    EXPECT_EQ(DiskNode::removing(root, {URL::file("/r/nothing"), URL::file("/elsewhere")}), root);
    EXPECT_EQ(DiskNode::removing(root, {}), root);

    const auto pruned = DiskNode::removing(root, {URL::file("/r/a/x"), URL::file("/r/big")});
    EXPECT_EQ(malformation(*pruned), "");
    EXPECT_EQ(pruned->size(), 200 + 50 + 900);
    EXPECT_EQ(pruned->itemCount(), 1 + 1 + 3);
    ASSERT_EQ(pruned->children().size(), 3u);
    EXPECT_EQ(pruned->children()[0]->name(), "a");
    EXPECT_EQ(pruned->children()[0]->size(), 200);
    EXPECT_EQ(pruned->children()[0]->path(), "/r/a");
    EXPECT_EQ(pruned->children()[1], root->children()[2]) << "/r/ab is shared, not copied";
    EXPECT_TRUE(pruned->children()[2]->isAggregate()) << "the aggregate stays last";
    EXPECT_EQ(pruned->children()[2], root->children()[3]);
    EXPECT_EQ(difference(*root, *sample()), "") << "the original tree is unchanged";

    const auto emptied = DiskNode::removing(root, {URL::file("/r/ab/z")});
    EXPECT_EQ(DiskNode::find(emptied, URL::file("/r/ab"))->size(), 0);
    EXPECT_TRUE(DiskNode::find(emptied, URL::file("/r/ab"))->isDirectory());
}

TEST(DiskNode, LargestFirstRanksBySizeThenName) {
    const auto a = leaf("/a", 10), b = leaf("/b", 10), big = leaf("/c", 11);
    EXPECT_TRUE(largestFirst(*big, *a));
    EXPECT_TRUE(largestFirst(*a, *b));
    EXPECT_FALSE(largestFirst(*b, *a));
    EXPECT_FALSE(largestFirst(*a, *a));
    EXPECT_EQ(leaf("/", 0)->name(), "/");
}
