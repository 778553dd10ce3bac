#include "Cli.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

TEST(SizeVerb, PrintsEachPathInOrderAsLinesOrJson) {
    TestSupport::TempTree tree;
    const std::string bytes =
        std::to_string(TestSupport::allocatedBytes(tree.file("box/data", 50'000).c_str()));
    const std::string box = tree.path("box"), link = tree.symlink("link", box),
                      missing = tree.path("missing");
    std::ostringstream out, err;
    EXPECT_EQ(ZephraneCli::run({"size", box, link, box}, out, err), 0);
    EXPECT_EQ(out.str(), bytes + "\t" + box + "\n0\t" + link + "\n" + bytes + "\t" + box + "\n");

    out.str("");
    EXPECT_EQ(ZephraneCli::run({"size", "--json", box, missing}, out, err), 1);
    const auto report = nlohmann::json::parse(out.str());
    ASSERT_EQ(report.size(), 1u) << "what can't be measured is not reported as 0";
    EXPECT_EQ(report[0],
              (nlohmann::json{{"path", box}, {"allocatedBytes", std::stoll(bytes)}, {"unreadable", 0}}));
    EXPECT_EQ(err.str().find('\n'), err.str().size() - 1);
    EXPECT_NE(err.str().find(missing), std::string::npos);
    EXPECT_EQ(ZephraneCli::run({"size"}, out, err), 2);
}
