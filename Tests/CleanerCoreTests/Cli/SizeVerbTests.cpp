#include "CliRun.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

TEST(SizeVerb, PrintsEachPathInOrderAsLinesOrJson) {
    TestSupport::TempTree tree;
    const std::string bytes =
        std::to_string(TestSupport::allocatedBytes(tree.file("box/data", 50'000).c_str()));
    const std::string box = tree.path("box"), link = tree.symlink("link", box),
                      missing = tree.path("missing");
    const auto lines = CliTest::run({"size", box, link, box});
    EXPECT_EQ(lines.status, 0);
    EXPECT_EQ(lines.out, bytes + "\t" + box + "\n0\t" + link + "\n" + bytes + "\t" + box + "\n");

    const auto json = CliTest::run({"size", "--json", box, missing});
    EXPECT_EQ(json.status, 1);
    const auto report = nlohmann::json::parse(json.out);
    ASSERT_EQ(report.size(), 1u) << "what can't be measured is not reported as 0";
    EXPECT_EQ(report[0],
              (nlohmann::json{{"path", box}, {"allocatedBytes", std::stoll(bytes)}, {"unreadable", 0}}));
    EXPECT_TRUE(CliTest::oneLine(json.err));
    EXPECT_NE(json.err.find(missing), std::string::npos);
}
