#include "CleanerCore/LargeFiles/LargeFileScanner.hpp"
#include "CleanerCore/LargeFiles/ReferenceLargeFileScanner.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sys/stat.h>

using namespace CleanerCore;
using TestSupport::TempTree;
namespace fs = std::filesystem;

namespace {

constexpr std::int64_t minimum = 20 * 1024;

// A random home: folders nested past the depth where the walk stops fanning out, files on both
// sides of the minimum, packages (found whole, programs never), hidden names, "Library" at the top
// and further down, links to files, folders and the root, pipes, names that are not UTF-8.
void randomHome(const TempTree& tree, unsigned seed) {
    std::mt19937 random(seed);
    const auto pick = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
    const std::vector<std::string> stems{"a",       "Docs",    "caf\xc3\xa9", "bad\xff", "with space",
                                         ".hidden", "Library", "clip.mkv",    "v1.2"};
    const std::vector<std::size_t> sizes{0, 100, 16 * 1024, 20 * 1024, 20 * 1024 + 1, 40 * 1024};
    std::vector<fs::path> folders{tree.root()};
    const auto write = [&](const fs::path& path, std::size_t bytes) {
        tree.file(fs::relative(path, tree.root()).string(), bytes);
    };
    for (int step = 0, steps = 150 + static_cast<int>(pick(150)); step < steps; ++step) {
        const fs::path parent = folders[pick(folders.size())];
        std::string name = stems[pick(stems.size())];
        if (name != "Library")
            name += std::to_string(step);
        else if (fs::exists(fs::symlink_status(parent / name)))
            continue;
        switch (pick(10)) {
        case 0:
        case 1:
        case 2: {
            const fs::path folder = (random() % 3 ? folders.back() : parent) / name;
            if (fs::exists(fs::symlink_status(folder)))
                break;
            fs::create_directories(folder);
            folders.push_back(folder);
            break;
        }
        case 3: {
            const char* extensions[] = {".app", ".photoslibrary", ".bundle", ".APP"};
            const fs::path package = parent / (name + extensions[pick(4)]);
            write(package / "Contents" / "part", sizes[pick(sizes.size())]);
            write(package / "more", sizes[pick(sizes.size())]);
            break;
        }
        case 4:
            fs::create_symlink(random() % 2 ? folders[pick(folders.size())] : fs::path("/"), parent / name);
            break;
        case 5:
            ::mkfifo((parent / name).c_str(), 0600);
            break;
        default:
            write(parent / name, sizes[pick(sizes.size())]);
        }
    }
}

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
        randomHome(tree, seed);
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
