#include "Cli.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <sys/stat.h>

namespace {

// Points HOME at a tree for the life of the object.
class ScopedHome {
public:
    explicit ScopedHome(const std::filesystem::path& home) : previous(std::getenv("HOME")) {
        ::setenv("HOME", home.c_str(), 1);
    }
    ~ScopedHome() { ::setenv("HOME", previous.c_str(), 1); }

private:
    std::string previous;
};

struct VerbRun {
    int status;
    std::string out, err;
};

VerbRun large(const std::vector<std::string>& arguments) {
    std::vector<std::string> words{"large"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::ostringstream out, err;
    const int status = ZephraneCli::run(words, out, err);
    return {status, out.str(), err.str()};
}

void makeOld(const std::filesystem::path& path) {
    const struct timespec times[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}}; // 2001
    ::utimensat(AT_FDCWD, path.c_str(), times, 0);
}

} // namespace

TEST(LargeVerb, ReportsTheHomeFilteredAndSorted) {
    TestSupport::TempTree tree;
    const ScopedHome home(tree.root());
    tree.file("Videos/new.mkv", 300'000);
    makeOld(tree.file("Videos/old.mkv", 200'000));
    makeOld(tree.file("Docs/report.pdf", 400'000));
    tree.file("Docs/small.pdf", 1000);
    tree.file("Library/cache.bin", 900'000);

    const VerbRun text = large({"--min", "100000"});
    ASSERT_EQ(text.status, 0) << text.err;
    EXPECT_THAT(text.out, testing::MatchesRegex("[0-9]+\tdocument\t2001-09-09T01:46:40Z\t.*/Docs/report.pdf\n"
                                                "[0-9]+\tvideo\t[-0-9T:Z]+\t.*/Videos/new.mkv\n"
                                                "[0-9]+\tvideo\t2001-09-09T01:46:40Z\t.*/Videos/old.mkv\n"));

    const VerbRun json = large({(tree.root() / "Videos").string(), "--min=100000", "--age", "1y", "--kind",
                                "video", "--sort", "name", "--json"});
    ASSERT_EQ(json.status, 0) << json.err;
    const auto files = nlohmann::json::parse(json.out);
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(files[0]["path"], (tree.root() / "Videos/old.mkv").string());
    EXPECT_EQ(files[0]["kind"], "video");
    EXPECT_EQ(files[0]["lastUsed"], "2001-09-09T01:46:40Z");
    EXPECT_GE(files[0]["allocatedBytes"].get<std::int64_t>(), 200'000);
    EXPECT_TRUE(json.err.empty()); // no progress where stderr is no terminal
}

TEST(LargeVerb, BadValuesGiveOneLineAndStatusTwo) {
    TestSupport::TempTree tree;
    for (const std::vector<std::string>& bad :
         std::vector<std::vector<std::string>>{{"--min", "-5"},
                                               {"--min", "12k"},
                                               {"--age", "2y"},
                                               {"--kind", "movie"},
                                               {"--sort", "date"},
                                               {"--min"},
                                               {"--colour"},
                                               {tree.root().string(), tree.root().string()},
                                               {(tree.root() / "missing").string()}}) {
        const VerbRun run = large(bad);
        EXPECT_EQ(run.status, 2) << bad.front();
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
        EXPECT_TRUE(run.out.empty());
    }
}
