#include "Cli.hpp"

#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace fs = std::filesystem;

namespace {

struct Result {
    int status;
    std::string out, err;
};

Result guard(std::vector<std::string> paths) {
    paths.insert(paths.begin(), "guard");
    std::ostringstream out, err;
    const int status = ZephraneCli::run(paths, out, err);
    return {status, out.str(), err.str()};
}

} // namespace

TEST(GuardVerb, SaysForEachPathWhatRemovalWouldDoAndRemovesNothing) {
    TestSupport::TempTree tree;
    const fs::path downloads = tree.folder("Downloads");
    const fs::path file = tree.file("Downloads/a.zip", 3);
    tree.symlink("dl", downloads);
    const std::string previousHome = std::getenv("HOME");
    ::setenv("HOME", tree.root().c_str(), 1);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    const Result result =
        guard({file.string(), downloads.string() + "/", (tree.root() / "dl/a.zip").string(), "/"});
    ::setenv("HOME", previousHome.c_str(), 1);
    ::unsetenv("LC_ALL");

    EXPECT_EQ(result.status, 0);
    const std::string real = fs::canonical(downloads).string();
    EXPECT_EQ(result.out, "allowed " + real + "/a.zip\n" + "refused “" + downloads.string() +
                              "” is protected and was not removed.\n" + "allowed " + real + "/a.zip\n" +
                              "refused “/” is protected and was not removed.\n");
    EXPECT_TRUE(fs::exists(file));
}

TEST(GuardVerb, WithoutAPathIsBadUsage) {
    EXPECT_EQ(guard({}).status, 2);
    EXPECT_EQ(guard({"--force", "/tmp/x"}).status, 2);
}
