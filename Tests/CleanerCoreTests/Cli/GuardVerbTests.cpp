#include "CliRun.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;

TEST(GuardVerb, SaysForEachPathWhatRemovalWouldDoAndRemovesNothing) {
    TestSupport::TempTree tree;
    const fs::path downloads = tree.folder("Downloads");
    const fs::path file = tree.file("Downloads/a.zip", 3);
    tree.symlink("dl", downloads);
    const TestSupport::ScopedEnvironment home("HOME", tree.root()), locale("LC_ALL", "C.UTF-8");
    const auto result = CliTest::run(
        {"guard", file.string(), downloads.string() + "/", (tree.root() / "dl/a.zip").string(), "/"});

    EXPECT_EQ(result.status, 0);
    const std::string real = fs::canonical(downloads).string();
    EXPECT_EQ(result.out, "allowed " + real + "/a.zip\n" + "refused “" + downloads.string() +
                              "” is protected and was not removed.\n" + "allowed " + real + "/a.zip\n" +
                              "refused “/” is protected and was not removed.\n");
    EXPECT_TRUE(fs::exists(file));
}
