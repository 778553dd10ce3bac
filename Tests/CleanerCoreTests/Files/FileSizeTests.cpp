#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <fstream>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

using namespace CleanerCore;
using Platform::ScopedSystemCalls;
using TestSupport::FaultySystemCalls;
using TestSupport::TempTree;
namespace fs = std::filesystem;

namespace {

URL url(const fs::path& path) {
    return URL::file(path.string());
}

std::int64_t blocksOf(const fs::path& path) {
    struct stat info {};
    EXPECT_EQ(::lstat(path.c_str(), &info), 0) << path;
    return static_cast<std::int64_t>(info.st_blocks) * 512;
}

// A file of `length` bytes of which only the last 100 are written: the rest is a hole.
void sparseFile(const fs::path& path, off_t length) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ASSERT_GE(fd, 0);
    const std::string tail(100, 's');
    ASSERT_EQ(::pwrite(fd, tail.data(), tail.size(), length - 100), 100);
    ::close(fd);
}

// A random home-like tree: nested folders (deeper than the fan-out), files of every size class,
// sparse files, hard links within and across folders, links to files and to big folders, pipes,
// empty folders and names that are not valid UTF-8. No "._" names. Returns its folders.
std::vector<fs::path> randomTree(const TempTree& tree, unsigned seed) {
    std::mt19937 random(seed);
    const auto pick = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
    const std::vector<std::string> stems{"a",          "Cache", "caf\xc3\xa9",         "bad\xff\xfe",
                                         "with space", "x.app", std::string(120, 'L'), "-dash",
                                         ".hidden",    "\x80"};
    std::vector<fs::path> folders{tree.root()}, files;
    for (int step = 0, steps = 150 + static_cast<int>(pick(150)); step < steps; ++step) {
        const fs::path parent = folders[pick(folders.size())];
        const fs::path target = parent / (stems[pick(stems.size())] + std::to_string(step));
        switch (pick(10)) {
        case 0:
        case 1:
        case 2: { // folders, often under the most recent one so that the tree gets deep
            const fs::path folder = (random() % 2 ? folders.back() : parent) / target.filename();
            fs::create_directory(folder);
            folders.push_back(folder);
            break;
        }
        case 3:
            sparseFile(target, 1 << (16 + pick(6)));
            files.push_back(target);
            break;
        case 4:
            if (!files.empty()) {
                EXPECT_EQ(::link(files[pick(files.size())].c_str(), target.c_str()), 0);
            }
            break;
        case 5:
            fs::create_symlink(random() % 2 ? folders[pick(folders.size())] : tree.root(), target);
            break;
        case 6:
            EXPECT_EQ(::mkfifo(target.c_str(), 0600), 0);
            break;
        default: {
            static constexpr std::size_t lengths[] = {0, 1, 10, 4095, 4096, 4097, 65'536, 300'000};
            std::ofstream(target, std::ios::binary) << std::string(lengths[pick(std::size(lengths))], 'f');
            files.push_back(target);
        }
        }
    }
    return folders;
}

// Refuses to open one folder, wherever it is asked for (by name or by full path).
void refuseFolder(FaultySystemCalls& calls, const fs::path& folder) {
    calls.openFault = [name = folder.filename().string(), full = folder.string()](const char* asked) {
        return asked == name || asked == full ? EACCES : 0;
    };
}

} // namespace

TEST(FileSize, FastRoutesAgreeWithTheReferenceOnRandomTrees) {
    for (unsigned seed = 1; seed <= 25; ++seed) {
        SCOPED_TRACE(seed);
        TempTree tree;
        const std::vector<fs::path> folders = randomTree(tree, seed);
        const std::int64_t expected = FileSize::referenceAllocatedSize(url(tree.root()));
        EXPECT_GT(expected, 0);
        EXPECT_EQ(FileSize::allocatedSize(url(tree.root())), expected);
        EXPECT_EQ(FileSize::parallelAllocatedSize(url(tree.root())), expected);

        std::vector<URL> urls;
        for (std::size_t i = 0; i < folders.size(); i += 3)
            urls.push_back(url(folders[i]));
        const auto measured = FileSize::sizes(urls);
        ASSERT_EQ(measured.size(), urls.size());
        for (const URL& each : urls)
            EXPECT_EQ(measured.at(each), FileSize::referenceAllocatedSize(each)) << each.path();

        // One folder that can't be opened: only its own tree goes missing.
        ASSERT_GT(folders.size(), 1u);
        const fs::path refused = folders[1 + seed % (folders.size() - 1)];
        FaultySystemCalls calls;
        refuseFolder(calls, refused);
        ScopedSystemCalls scope(calls);
        const std::int64_t withoutRefused = expected - FileSize::referenceAllocatedSize(url(refused));
        EXPECT_EQ(FileSize::allocatedSize(url(tree.root())), withoutRefused) << refused;
        EXPECT_EQ(FileSize::parallelAllocatedSize(url(tree.root())), withoutRefused) << refused;
        EXPECT_EQ(calls.openNow, 0) << "every descriptor closed";
    }
}

TEST(FileSize, MeasuresAllocatedBlocksOfWhatAPathIs) {
    TempTree tree;
    const fs::path small = tree.file("box/small", 10);
    EXPECT_EQ(FileSize::allocatedSize(url(tree.path("box"))), blocksOf(small));
    EXPECT_GT(blocksOf(small), 10) << "a whole block, not ten bytes";

    const fs::path hole = tree.path("hole");
    sparseFile(hole, 64 << 20);
    EXPECT_LT(FileSize::allocatedSize(url(hole)), 1 << 20) << "a sparse file counts what it occupies";

    tree.file("big/data", 1 << 20);
    const fs::path link = tree.symlink("box/link", tree.path("big"));
    const fs::path topLink = tree.symlink("topLink", tree.path("big"));
    EXPECT_EQ(FileSize::allocatedSize(url(link)), 0);
    EXPECT_EQ(FileSize::parallelAllocatedSize(url(topLink)), 0);
    EXPECT_EQ(FileSize::allocatedSize(url(tree.path("box"))), blocksOf(small))
        << "links inside count nothing";

    ASSERT_EQ(::link(small.c_str(), tree.path("box/again").c_str()), 0);
    EXPECT_EQ(FileSize::allocatedSize(url(tree.path("box"))), 2 * blocksOf(small)) << "each name counts";

    ASSERT_EQ(::mkfifo(tree.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(FileSize::allocatedSize(url(tree.path("pipe"))), 0);
    EXPECT_EQ(FileSize::allocatedSize(url(tree.path("missing"))), 0);
    EXPECT_EQ(FileSize::parallelAllocatedSize(url(tree.path("missing"))), 0);
}

TEST(FileSize, AppleDoubleCompanionsCountOnlyWhenMeasuredThemselves) {
    TempTree tree;
    const fs::path companion = tree.file("box/._photo", 5000);
    tree.file("box/._folder/inside", 5000);
    const fs::path photo = tree.file("box/photo", 10);
    EXPECT_EQ(FileSize::allocatedSize(url(tree.path("box"))), blocksOf(photo));
    EXPECT_EQ(FileSize::parallelAllocatedSize(url(tree.path("box"))), blocksOf(photo));
    EXPECT_EQ(FileSize::allocatedSize(url(companion)), blocksOf(companion));
    EXPECT_GT(FileSize::referenceAllocatedSize(url(tree.path("box"))), blocksOf(photo));
}

TEST(FileSize, SizesHasOneEntryForEachDistinctPath) {
    EXPECT_TRUE(FileSize::sizes({}).empty());
    TempTree tree;
    const fs::path file = tree.file("a/f", 9000);
    const fs::path contained = tree.file("home/Library/Containers/app/data", 20'000);
    const URL a = url(tree.path("a"));
    const URL containers = url(tree.path("home/Library/Containers"));
    const auto measured =
        FileSize::sizes({a, url(tree.path("a/")), containers, url(file), url(tree.path("nothing"))});
    EXPECT_EQ(measured.size(), 4u);
    EXPECT_EQ(measured.at(a), blocksOf(file));
    EXPECT_EQ(measured.at(url(file)), blocksOf(file));
    EXPECT_EQ(measured.at(containers), blocksOf(contained));
    EXPECT_EQ(measured.at(url(tree.path("nothing"))), 0);
}
