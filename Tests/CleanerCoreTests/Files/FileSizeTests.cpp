#include "CleanerCore/Files/FileSize.hpp"
#include "FaultySystemCalls.hpp"
#include "RandomTree.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

using namespace CleanerCore;
using TestSupport::allocatedBytes;
namespace fs = std::filesystem;

TEST(FileSize, FastRoutesAgreeWithTheReferenceOnRandomTrees) {
    for (unsigned seed = 1; seed <= 25; ++seed) {
        SCOPED_TRACE(seed);
        TestSupport::TempTree tree;
        // Names that are no UTF-8 and long ones, folders named like packages; no "._" names.
        const std::vector<fs::path> folders =
            TestSupport::randomTree(tree.root(), seed,
                                    {.stems = {"a", "caf\xc3\xa9", "bad\xff\xfe", "with space", "x.app",
                                               std::string(120, 'L'), ".hidden", "\x80"},
                                     .sizes = {0, 1, 4096, 4097, 300'000},
                                     .hardLinks = true,
                                     .sparseFiles = true});
        const std::int64_t expected = FileSize::referenceAllocatedSize(URL::file(tree.root()));
        EXPECT_EQ(FileSize::allocatedSize(URL::file(tree.root())), expected);
        EXPECT_EQ(FileSize::parallelAllocatedSize(URL::file(tree.root())), expected);
        std::vector<URL> urls;
        for (std::size_t i = 0; i < folders.size(); i += 3)
            urls.push_back(URL::file(folders[i]));
        for (const auto& [each, size] : FileSize::sizes(urls))
            EXPECT_EQ(size, FileSize::referenceAllocatedSize(each)) << each.path();

        // A folder that can't be opened takes only its own tree with it.
        const fs::path refused = folders[seed % folders.size()];
        TestSupport::FaultySystemCalls calls;
        calls.openFault = [&](const char* name) {
            return name == refused.filename() || name == refused ? EACCES : 0;
        };
        Platform::ScopedSystemCalls scope(calls);
        const std::int64_t rest =
            refused == tree.root() ? 0 : expected - FileSize::referenceAllocatedSize(URL::file(refused));
        EXPECT_EQ(FileSize::allocatedSize(URL::file(tree.root())), rest);
        EXPECT_EQ(FileSize::parallelAllocatedSize(URL::file(tree.root())), rest);
        const bool top = refused == tree.root();
        EXPECT_EQ(FileSize::measure(URL::file(tree.root())),
                  (FileSize::Measurement{rest, top ? EACCES : 0, top ? 0 : 1}));
        EXPECT_EQ(calls.openNow, 0);
    }
}

TEST(FileSize, CountsAllocatedBlocksOncePerNameAndNothingForLinks) {
    TestSupport::TempTree tree;
    const std::int64_t block = allocatedBytes(tree.file("box/small", 10).c_str());
    EXPECT_GT(block, 10);
    EXPECT_EQ(FileSize::allocatedSize(URL::file(tree.path("box"))), block);
    ASSERT_EQ(::link(tree.path("box/small").c_str(), tree.path("box/again").c_str()), 0);
    EXPECT_EQ(FileSize::allocatedSize(URL::file(tree.path("box"))), 2 * block);

    tree.file("big/data", 1 << 20);
    EXPECT_EQ(FileSize::allocatedSize(URL::file(tree.symlink("box/link", tree.path("big")))), 0);
    EXPECT_EQ(FileSize::parallelAllocatedSize(URL::file(tree.symlink("top", tree.path("big")))), 0);
    for (const char* written : {"top/", "top//", "top/.", "box/link/"}) { // a link however it is written
        EXPECT_EQ(FileSize::allocatedSize(URL::file(tree.path("").string() + written)), 0) << written;
        EXPECT_EQ(FileSize::measure(URL::file(tree.path("").string() + written)), FileSize::Measurement{})
            << written;
    }
    EXPECT_EQ(FileSize::parallelAllocatedSize(URL::file(tree.path("box"))), 2 * block);

    const fs::path companion = tree.file("box/._small", 5000);
    tree.file("box/._folder/inside", 5000);
    EXPECT_EQ(FileSize::allocatedSize(URL::file(tree.path("box"))), 2 * block)
        << "\"._\" names don't count in walks";
    EXPECT_EQ(FileSize::allocatedSize(URL::file(companion)), allocatedBytes(companion.c_str()));

    TestSupport::sparseFile(tree.path("hole"), 64 << 20);
    EXPECT_LT(FileSize::allocatedSize(URL::file(tree.path("hole"))), 1 << 20);
    EXPECT_EQ(FileSize::allocatedSize(URL::file(tree.path("missing"))), 0);
}

TEST(FileSize, SizesHasOneEntryForEachDistinctURL) {
    EXPECT_TRUE(FileSize::sizes({}).empty());
    TestSupport::TempTree tree;
    const std::int64_t file = allocatedBytes(tree.file("a/f", 9000).c_str());
    const std::int64_t contained = allocatedBytes(tree.file("Library/Containers/app/data", 20'000).c_str());
    const auto measured =
        FileSize::sizes({URL::file(tree.path("a")), URL::file(tree.path("a/")),
                         URL::file(tree.path("Library/Containers")), URL::file(tree.path("nothing"))});
    EXPECT_EQ(measured,
              (std::unordered_map<URL, std::int64_t>{{URL::file(tree.path("a")), file},
                                                     {URL::file(tree.path("Library/Containers")), contained},
                                                     {URL::file(tree.path("nothing")), 0}}));
}
