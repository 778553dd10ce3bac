#include "Cli.hpp"
#include "DiskTreeJson.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

TEST(TreeVerb, PrintsTheTreeAsJsonOrText) {
    TestSupport::TempTree tree;
    tree.file("box/big", 50'000);
    tree.file("box/small", 10);
    tree.file("top", 10);
    tree.file("odd\xff name\"\n", 10);

    std::ostringstream out, err;
    ASSERT_EQ(ZephraneCli::run(
                  {"tree", tree.root().string(), "--json", "--keep", "1", "--min-node-size=20000"}, out, err),
              0)
        << err.str();
    const auto root = nlohmann::json::parse(out.str());
    EXPECT_EQ(root["path"], tree.root().string());
    EXPECT_EQ(root["itemCount"], 4);
    EXPECT_EQ(root["isDirectory"], true);
    ASSERT_EQ(root["children"].size(), 2u);
    const auto& box = root["children"][0];
    EXPECT_EQ(box["name"], "box");
    EXPECT_EQ(box["children"][0]["name"], "big");
    EXPECT_EQ(box["children"][0]["isDirectory"], false);
    EXPECT_EQ(box["children"][1]["isAggregate"], true);
    EXPECT_EQ(root["children"][1]["isAggregate"], true);
    EXPECT_EQ(root["children"][1]["itemCount"], 2);
    EXPECT_TRUE(err.str().empty());

    std::ostringstream text, textErr;
    ASSERT_EQ(ZephraneCli::run({"tree", tree.root().string()}, text, textErr), 0);
    EXPECT_NE(text.str().find("box/"), std::string::npos);
    EXPECT_NE(text.str().find("  big"), std::string::npos) << "two levels below the root are shown";
}

TEST(TreeVerb, AMissingRootIsAnEmptyTreeWithOneWarning) {
    TestSupport::TempTree tree;
    const std::string missing = tree.path("gone").string();
    std::ostringstream out, err;
    EXPECT_EQ(ZephraneCli::run({"tree", missing, "--json"}, out, err), 0);
    const auto root = nlohmann::json::parse(out.str());
    EXPECT_EQ(root["size"], 0);
    EXPECT_TRUE(root["children"].empty());
    const std::string warning = err.str();
    EXPECT_EQ(std::count(warning.begin(), warning.end(), '\n'), 1);
    EXPECT_NE(warning.find(missing), std::string::npos);

    std::ostringstream none, noneErr;
    EXPECT_EQ(ZephraneCli::run({"tree"}, none, noneErr), 2);
    EXPECT_EQ(ZephraneCli::run({"tree", missing, "--keep", "many"}, none, noneErr), 2);
}

TEST(TreeVerb, JsonStringsAreEscapedAndAlwaysUtf8) {
    const auto literal = [](std::string_view text) {
        std::string out;
        ZephraneCli::DiskTreeJson::appendString(out, text);
        return out;
    };
    EXPECT_EQ(literal("plain"), "\"plain\"");
    EXPECT_EQ(literal("q\"b\\n\n\x01"), "\"q\\\"b\\\\n\\n\\u0001\"");
    EXPECT_EQ(literal("caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80"),
              "\"caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80\"");
    // Stray, overlong, surrogate and truncated sequences each become U+FFFD.
    EXPECT_EQ(literal("a\xff"
                      "b\xc0\xaf"
                      "c\xed\xa0\x80"
                      "d\xe2\x82"),
              "\"a\xef\xbf\xbd"
              "b\xef\xbf\xbd\xef\xbf\xbd"
              "c\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"
              "d\xef\xbf\xbd\xef\xbf\xbd\"");
    EXPECT_EQ(nlohmann::json::parse(literal("bad\xfe\xff")), "bad\xef\xbf\xbd\xef\xbf\xbd");
}
