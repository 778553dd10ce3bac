#include "CliRun.hpp"
#include "DeepChain.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstring>

using CliTest::oneLine;
using CliTest::Result;
using CliTest::run;

TEST(TreeVerb, PrintsTheTreeAsJsonOrText) {
    TestSupport::TempTree tree;
    tree.file("box/big", 50'000);
    tree.file("box/small", 10);
    tree.file("top", 10);
    tree.file("odd\xff name\"\n", 10);

    const Result json = run({"tree", tree.root().string(), "--json", "--keep", "1", "--min-node-size=20000"});
    ASSERT_EQ(json.status, 0) << json.err;
    EXPECT_TRUE(json.err.empty());
    const auto root = nlohmann::json::parse(json.out);
    EXPECT_EQ(root["path"], tree.root().string());
    EXPECT_EQ(root["unreadable"], 0);
    EXPECT_EQ(root["itemCount"], 4);
    EXPECT_EQ(root["isDirectory"], true);
    ASSERT_EQ(root["children"].size(), 2u);
    const auto& box = root["children"][0];
    EXPECT_EQ(box["name"], "box");
    EXPECT_FALSE(box.contains("path")) << "nested nodes carry names only";
    EXPECT_EQ(box["children"][0]["name"], "big");
    EXPECT_EQ(box["children"][0]["isDirectory"], false);
    EXPECT_EQ(box["children"][1]["isAggregate"], true);
    EXPECT_EQ(root["children"][1]["isAggregate"], true);
    EXPECT_EQ(root["children"][1]["itemCount"], 2);

    const Result text = run({"tree", tree.root().string()});
    ASSERT_EQ(text.status, 0);
    EXPECT_NE(text.out.find("box/"), std::string::npos);
    EXPECT_NE(text.out.find("  big"), std::string::npos) << "two levels below the root are shown";
}

// A chain far deeper than any real tree: each node writes its own name, never the path above it.
TEST(TreeVerb, JsonGrowsWithTheTreeNotWithItsDepth) {
    TestSupport::TempTree tree;
    const TestSupport::DeepChain chain(tree.root(), 2000);
    const Result json = run({"tree", tree.root().string(), "--json", "--keep", "1"});
    ASSERT_EQ(json.status, 0) << json.err;
    EXPECT_LT(json.out.size(), 2000u * 250) << "about one node's fields per level";
    auto node = nlohmann::json::parse(json.out);
    int depth = 0;
    for (const nlohmann::json* at = &node; !(*at)["children"].empty(); at = &(*at)["children"][0])
        depth += (*at)["children"][0]["isDirectory"].get<bool>();
    EXPECT_EQ(depth, 2000);
}

// However the root is written, what can't be read as a folder is one line on stderr and status 1,
// and nothing pretends to be its tree; an empty path is bad usage.
TEST(TreeVerb, ARootThatCannotBeReadIsAnErrorAndALinkIsNeverFollowed) {
    TestSupport::TempTree tree;
    tree.file("folder/inside", 5000);
    tree.file("file", 10);
    tree.symlink("link", tree.path("folder"));
    const std::string base = tree.root().string() + "/";
    for (const std::string written : {"gone", "file", "link", "link/", "link/.", "link//"}) {
        const Result result = run({"tree", base + written, "--json"});
        EXPECT_EQ(result.status, 1) << written;
        EXPECT_TRUE(result.out.empty()) << written;
        EXPECT_TRUE(oneLine(result.err)) << written << ": " << result.err;
    }
    EXPECT_NE(run({"tree", base + "link/"}).err.find("symbolic link"), std::string::npos);
    EXPECT_EQ(run({"tree", std::string(5000, 'x')}).status, 1) << "a path past PATH_MAX";
    // The size of the same link, however written, is the link's: nothing.
    const Result size = run({"size", base + "link/", base + "link"});
    EXPECT_EQ(size.status, 0);
    EXPECT_EQ(size.out, "0\t" + base + "link/\n0\t" + base + "link\n");
}

TEST(TreeVerb, FoldersThatCannotBeReadAreCountedReportedAndMakeTheStatusOne) {
    TestSupport::TempTree tree;
    tree.file("open/file", 5000);
    tree.file("locked/secret", 5000);
    tree.file("open/locked/deeper", 5000);
    TestSupport::FaultySystemCalls calls;
    calls.openFault = [](const char* name) { return std::strcmp(name, "locked") == 0 ? EACCES : 0; };
    const CleanerCore::Platform::ScopedSystemCalls scope(calls);
    const Result json = run({"tree", tree.root().string(), "--json"});
    EXPECT_EQ(json.status, 1);
    EXPECT_TRUE(oneLine(json.err)) << json.err;
    EXPECT_NE(json.err.find("2 folders"), std::string::npos) << json.err;
    const auto root = nlohmann::json::parse(json.out);
    EXPECT_EQ(root["unreadable"], 2);
    EXPECT_EQ(root["itemCount"], 1) << "what could be read is still reported";
    EXPECT_EQ(run({"tree", tree.root().string()}).status, 1);
    const Result size = run({"size", tree.root().string(), "--json"});
    EXPECT_EQ(size.status, 1);
    EXPECT_EQ(nlohmann::json::parse(size.out)[0]["unreadable"], 2);
}

// Names are bytes: three names that differ only where they are not UTF-8 stay apart in JSON, and
// a plain name gains nothing.
TEST(TreeVerb, JsonNamesKeepTheirExactBytes) {
    TestSupport::TempTree tree;
    for (const char* name : {"a\x80", "a\x81", "a\xef\xbf\xbd", "plain"})
        tree.file(std::string("box/") + name, 10);
    const Result json = run({"tree", tree.path("box").string(), "--json"});
    ASSERT_EQ(json.status, 0) << json.err;
    std::map<std::string, nlohmann::json> byName;
    const auto box = nlohmann::json::parse(json.out);
    for (const auto& child : box["children"])
        byName[child.value("nameBytes", child["name"].get<std::string>())] = child;
    EXPECT_EQ(byName.count("YYA="), 1u);
    EXPECT_EQ(byName.count("YYE="), 1u);
    EXPECT_EQ(byName.count("a\xef\xbf\xbd"), 1u) << "valid UTF-8, so no bytes field";
    EXPECT_EQ(byName.count("plain"), 1u);
    EXPECT_EQ(byName["YYA="]["name"], "a\xef\xbf\xbd");

    const Result size = run({"size", tree.path("box/a\x80").string(), "--json"});
    const auto entry = nlohmann::json::parse(size.out)[0];
    EXPECT_EQ(entry["pathBytes"].get<std::string>().back(), '=');
    EXPECT_FALSE(nlohmann::json::parse(run({"size", tree.path("box").string(), "--json"}).out)[0].contains(
        "pathBytes"));
}

// On a terminal a name can't forge a line or reach the terminal's controls; in a pipe it is exact.
TEST(TreeVerb, TextToATerminalEscapesControlCharacters) {
    TestSupport::TempTree tree;
    const std::string evil = "x\n4 GB  fake\x1b[31m\r\\";
    tree.file("box/" + evil, 10);
    const Result shown = run({"tree", tree.path("box").string()}, true);
    EXPECT_NE(shown.out.find("x\\n4 GB  fake\\e[31m\\r\\\\"), std::string::npos) << shown.out;
    EXPECT_EQ(shown.out.find('\x1b'), std::string::npos);
    const Result piped = run({"tree", tree.path("box").string()});
    EXPECT_NE(piped.out.find(evil), std::string::npos);
    EXPECT_EQ(run({"size", tree.path("box/" + evil).string()}, true).out.find('\r'), std::string::npos);
}
