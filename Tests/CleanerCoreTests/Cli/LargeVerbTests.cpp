#include "CliRun.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

CliTest::Result large(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "large");
    return CliTest::run(arguments);
}

void makeOld(const std::filesystem::path& path) {
    TestSupport::setTimes(path, 1'000'000'000, 1'000'000'000); // 2001
}

} // namespace

TEST(LargeVerb, ReportsTheHomeFilteredAndSorted) {
    TestSupport::TempTree tree;
    const TestSupport::ScopedEnvironment home("HOME", tree.root());
    tree.file("Videos/new.mkv", 300'000);
    makeOld(tree.file("Videos/old.mkv", 200'000));
    makeOld(tree.file("Docs/report.pdf", 400'000));
    tree.file("Docs/small.pdf", 1000);
    tree.file("Library/cache.bin", 900'000);

    const auto text = large({"--min", "100000"});
    ASSERT_EQ(text.status, 0) << text.err;
    EXPECT_THAT(text.out, testing::MatchesRegex("[0-9]+\tdocument\t2001-09-09T01:46:40Z\t.*/Docs/report.pdf\n"
                                                "[0-9]+\tvideo\t[-0-9T:Z]+\t.*/Videos/new.mkv\n"
                                                "[0-9]+\tvideo\t2001-09-09T01:46:40Z\t.*/Videos/old.mkv\n"));

    const auto json = large({(tree.root() / "Videos").string(), "--min=100000", "--age", "1y", "--kind",
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
