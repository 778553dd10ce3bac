#include "Cli.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>
#include <sys/stat.h>

namespace {

std::int64_t blocksOf(const std::filesystem::path& path) {
    struct stat info {};
    EXPECT_EQ(::lstat(path.c_str(), &info), 0) << path;
    return static_cast<std::int64_t>(info.st_blocks) * 512;
}

} // namespace

TEST(SizeVerb, PrintsEachPathInOrderAsLinesOrJson) {
    TestSupport::TempTree tree;
    const auto file = tree.file("box/data", 50'000);
    const auto link = tree.symlink("link", tree.path("box"));
    const std::string box = tree.path("box").string(), missing = tree.path("missing").string();

    std::ostringstream out, err;
    EXPECT_EQ(ZephraneCli::run({"size", box, link.string(), box}, out, err), 0);
    const std::int64_t bytes = blocksOf(file);
    EXPECT_EQ(out.str(), std::to_string(bytes) + "\t" + box + "\n0\t" + link.string() + "\n" +
                             std::to_string(bytes) + "\t" + box + "\n");
    EXPECT_TRUE(err.str().empty());

    std::ostringstream json, jsonErr;
    EXPECT_EQ(
        ZephraneCli::run({"size", "--json", box, missing, tree.path("bad\xff").string()}, json, jsonErr), 1);
    const auto report = nlohmann::json::parse(json.str());
    ASSERT_EQ(report.size(), 3u);
    EXPECT_EQ(report[0]["path"], box);
    EXPECT_EQ(report[0]["allocatedBytes"], bytes);
    EXPECT_EQ(report[1]["allocatedBytes"], 0);
    EXPECT_NE(jsonErr.str().find(missing), std::string::npos);

    std::ostringstream none, noneErr;
    EXPECT_EQ(ZephraneCli::run({"size"}, none, noneErr), 2);
    EXPECT_EQ(ZephraneCli::run({"size", "--bytes", box}, none, noneErr), 2);
}
