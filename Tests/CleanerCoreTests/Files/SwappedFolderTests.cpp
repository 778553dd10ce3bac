#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <stdio.h>
#include <thread>

using namespace CleanerCore;
using TestSupport::TempTree;
namespace fs = std::filesystem;

namespace {

constexpr const char* secret = "secret-outside";

// "root/a/b/c/d/e/f/g/h" with a small file at each level, and beside the root a folder "outside"
// laid out the same way but holding one large file per level, and a link to it. Any path that
// passes through "root/a" while "a" is the link lands in "outside".
struct SwapScene {
    TempTree tree;
    std::int64_t inside = 0;

    SwapScene() {
        std::string path = "a";
        for (const char* name : {"b", "c", "d", "e", "f", "g", "h", ""}) {
            tree.file("root/" + path + "/small", 10);
            tree.file("outside/" + (path.size() > 1 ? path.substr(2) + "/" : "") + secret, 1 << 20);
            if (*name)
                path += std::string("/") + name;
        }
        tree.symlink("link", tree.path("outside"));
        inside = FileSize::referenceAllocatedSize(URL::file(tree.path("root")));
    }

    // Swaps "root/a" and the link, over and over, until `done`.
    std::thread swapper(const std::atomic<bool>& done) const {
        return std::thread([this, &done] {
            const std::string a = tree.path("root/a"), link = tree.path("link");
            while (!done)
                ::renameat2(AT_FDCWD, a.c_str(), AT_FDCWD, link.c_str(), RENAME_EXCHANGE);
        });
    }
};

bool holdsSecret(const DiskNode& node) {
    if (node.name() == secret)
        return true;
    for (const DiskNode::Pointer& child : node.children())
        if (holdsSecret(*child))
            return true;
    return false;
}

} // namespace

// Another process swaps a folder of the tree for a link to a folder outside it while walks run:
// whatever moment the swap hits, no walk may count or list what lies outside.
TEST(SwappedFolder, AFolderSwappedForALinkNeverLeadsAWalkOutOfTheTree) {
    const SwapScene scene;
    const URL root = URL::file(scene.tree.path("root"));
    std::atomic<bool> done{false};
    std::thread swapping = scene.swapper(done);
    int leaks = 0;
    for (int run = 0; run < 1000 && leaks == 0; ++run) {
        const std::int64_t sequential = FileSize::allocatedSize(root);
        const std::int64_t parallel = FileSize::parallelAllocatedSize(root);
        const auto tree = DiskTreeScanner{root.path(), 0, 1000}.scan(DiskTreeScanner::Reporting{});
        leaks += (sequential > scene.inside) + (parallel > scene.inside) + holdsSecret(*tree) +
                 (tree->size() > scene.inside);
    }
    done = true;
    swapping.join();
    EXPECT_EQ(leaks, 0);
}

// The same guarantee, seen from the calls themselves: below the top, every folder is opened by one
// name from its parent's descriptor, so there is no longer path for a link to hide in.
TEST(SwappedFolder, BelowTheTopEveryFolderIsOpenedByItsNameAlone) {
    const SwapScene scene;
    TestSupport::FaultySystemCalls calls;
    std::atomic<int> byPath{0};
    calls.openFault = [&](const char* name) {
        byPath += std::strchr(name, '/') != nullptr;
        return 0;
    };
    const Platform::ScopedSystemCalls scope(calls);
    const URL root = URL::file(scene.tree.path("root"));
    const std::vector<std::function<std::int64_t()>> walks{
        [&] { return FileSize::allocatedSize(root); },
        [&] { return FileSize::parallelAllocatedSize(root); },
        [&] { return DiskTreeScanner{root.path()}.scan(DiskTreeScanner::Reporting{})->size(); }};
    for (const auto& walk : walks) {
        byPath = 0;
        EXPECT_EQ(walk(), scene.inside);
        EXPECT_EQ(byPath, 1) << "only the top is opened by its path";
    }
}
