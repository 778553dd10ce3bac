#include "CleanerCore/LargeFiles/LargeFileScanner.hpp"
#include "CleanerCore/LargeFiles/ReferenceLargeFileScanner.hpp"
#include "RandomTree.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <algorithm>

using namespace CleanerCore;
using TestSupport::TempTree;
namespace fs = std::filesystem;

namespace {

constexpr std::int64_t minimum = 20 * 1024;

// A random home: folders nested past the depth where the walk stops fanning out, files on both
// sides of the minimum, packages (found whole, programs never), hidden names, "Library" at the top
// and further down, links to files, folders and the root, pipes, names that are not UTF-8.
const TestSupport::RandomTreeOptions home{
    .stems = {"a", "Docs", "caf\xc3\xa9", "bad\xff", "with space", ".hidden", "Library", "clip.mkv", "v1.2"},
    .fixedNames = {"Library"},
    .sizes = {0, 100, 16 * 1024, 20 * 1024, 20 * 1024 + 1, 40 * 1024},
    .steps = 150,
    .extraSteps = 150,
    .packages = {".app", ".photoslibrary", ".bundle", ".APP"}};

std::vector<LargeFile> byPath(std::vector<LargeFile> files) {
    std::sort(files.begin(), files.end(),
              [](const LargeFile& a, const LargeFile& b) { return a.url.path() < b.url.path(); });
    return files;
}

} // namespace

TEST(LargeFileAgreement, RandomHomesGiveWhatThePlainWalkFinds) {
    std::size_t everFound = 0;
    for (unsigned seed = 1; seed <= 16; ++seed) {
        TempTree tree;
        TestSupport::randomTree(tree.root(), seed, home);
        const auto scanner = LargeFileScanner::forHome(URL::file(tree.root().string()), minimum);
        std::int64_t visited = 0;
        const auto fast =
            scanner.scan(LargeFileScanner::Progress([&](std::int64_t count) { visited = count; }));
        const auto reference = ReferenceLargeFileScanner::scan(scanner);
        EXPECT_EQ(byPath(fast), byPath(reference.files)) << "seed " << seed;
        EXPECT_EQ(visited,
                  reference.visited / LargeFileScanner::visitedBatch * LargeFileScanner::visitedBatch);
        everFound += fast.size();
    }
    EXPECT_GT(everFound, 16u); // the homes do hold large files
}
