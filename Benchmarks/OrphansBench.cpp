// The orphans judgement on a large home, with Google Benchmark:
//   OrphansBench [--benchmark_...]
// builds a temporary home with 5,000 entries across the searched folders (Library and XDG) and
// takes 300 known identifiers. Beside LeftoverFinder::orphans it times, in the same run:
//   - ListingFloor: listing the same folders and nothing else (what any tool must pay);
//   - PairwiseMatching: the listing plus the known-identifier tests done the obvious way, every
//     entry against every known identifier, without sizes;
// so the ratios show what hashing saves and how close the whole judgement is to the floor.
#include "CleanerCore/Apps/BundleIDMatcher.hpp"
#include "CleanerCore/Apps/LeftoverFinder.hpp"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unordered_set>

namespace fs = std::filesystem;
using namespace CleanerCore;

namespace {

constexpr int knownCount = 300;
constexpr int entryCount = 5000;

struct Home {
    fs::path root;
    std::unordered_set<std::string> known;

    Home() {
        std::string pattern = (fs::temp_directory_path() / "zephrane-orphans-bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            std::abort();
        root = pattern;
        const char* folders[] = {"Library/Preferences",
                                 "Library/Caches",
                                 "Library/Application Support",
                                 "Library/Containers",
                                 "Library/Logs",
                                 "Library/Saved Application State",
                                 ".var/app",
                                 ".cache",
                                 ".local/share",
                                 ".config"};
        for (const char* folder : folders)
            fs::create_directories(root / folder);
        for (int i = 0; i < knownCount; ++i)
            known.insert("com.vendor" + std::to_string(i) + ".app" + std::to_string(i));
        // Entries: a third of installed apps' files, a third of removed apps' files (some in
        // app-only folders), a third of names that are no identifiers at all.
        for (int i = 0; i < entryCount; ++i) {
            const char* folder = folders[i % std::size(folders)];
            std::string name;
            switch (i % 3) {
            case 0:
                name = "com.vendor" + std::to_string(i % knownCount) + ".app" +
                       std::to_string(i % knownCount) + ".part" + std::to_string(i);
                break;
            case 1:
                name = "org.gone" + std::to_string(i % 700) + ".tool.n" + std::to_string(i);
                break;
            default:
                name = "plain folder " + std::to_string(i);
            }
            if (std::string_view(folder) == "Library/Preferences")
                name += ".plist";
            std::ofstream(root / folder / name) << "x";
        }
    }
    ~Home() {
        std::error_code ignored;
        fs::remove_all(root, ignored);
    }
};

Home& home() {
    static Home instance;
    return instance;
}

void Orphans(benchmark::State& state) {
    const LeftoverFinder finder(URL::file(home().root.string()), std::nullopt);
    std::size_t groups = 0;
    for (auto _ : state) {
        groups = finder.orphans(home().known).size();
        benchmark::DoNotOptimize(groups);
    }
    state.counters["groups"] = static_cast<double>(groups);
}

void ListingFloor(benchmark::State& state) {
    const LeftoverFinder finder(URL::file(home().root.string()), std::nullopt);
    const auto folders = finder.searchFolders(false);
    for (auto _ : state) {
        std::size_t entries = 0;
        for (const auto& folder : folders) {
            std::error_code error;
            for (fs::directory_iterator it(folder.location.path(), error), end; !error && it != end;
                 it.increment(error))
                ++entries;
        }
        benchmark::DoNotOptimize(entries);
    }
}

void PairwiseMatching(benchmark::State& state) {
    const LeftoverFinder finder(URL::file(home().root.string()), std::nullopt);
    const auto folders = finder.searchFolders(false);
    for (auto _ : state) {
        std::size_t spared = 0;
        for (const auto& folder : folders) {
            std::error_code error;
            for (fs::directory_iterator it(folder.location.path(), error), end; !error && it != end;
                 it.increment(error)) {
                const std::string id = BundleIDMatcher::normalize(it->path().filename().string());
                for (const std::string& k : home().known)
                    if (BundleIDMatcher::vendor(k) == BundleIDMatcher::vendor(id) ||
                        BundleIDMatcher::entry(id, k) || BundleIDMatcher::entry(k, id)) {
                        ++spared;
                        break;
                    }
            }
        }
        benchmark::DoNotOptimize(spared);
    }
}

} // namespace

BENCHMARK(ListingFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(PairwiseMatching)->Unit(benchmark::kMillisecond);
BENCHMARK(Orphans)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
