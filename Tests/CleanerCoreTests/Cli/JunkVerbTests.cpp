#include "CliRun.hpp"
#include "JunkHome.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using CliTest::run;
using testing::HasSubstr;
using TestSupport::ScopedEnvironment;

TEST(JunkVerb, ReportsEveryRuleOfTheHomeAsTextOrJson) {
    TestSupport::TempTree tree;
    TestSupport::buildJunkHome(tree.root());
    const ScopedEnvironment home("HOME", tree.root());

    const auto json = run({"junk", "--json"});
    ASSERT_EQ(json.status, 0) << json.err;
    const auto groups = nlohmann::json::parse(json.out);
    ASSERT_EQ(groups.size(), 6u);
    EXPECT_EQ(groups[0]["id"], "user-caches");
    EXPECT_EQ(groups[5]["id"], "incomplete-downloads");
    const auto& caches = groups[0]["items"];
    ASSERT_EQ(caches.size(), 3u);
    EXPECT_EQ(caches[0]["path"], (tree.root() / "Library/Caches/com.example.app").string());
    EXPECT_TRUE(caches[0]["note"].is_null());
    EXPECT_EQ(caches[0]["selectedByDefault"], true);
    std::int64_t sum = 0;
    for (const auto& item : caches)
        sum += item["allocatedBytes"].get<std::int64_t>();
    EXPECT_EQ(groups[0]["totalBytes"], sum);
    EXPECT_EQ(groups[4]["items"][0]["selectedByDefault"], false);

    const auto text = run({"junk"});
    ASSERT_EQ(text.status, 0);
    EXPECT_THAT(text.out, HasSubstr("\tuser-caches\t"));
    EXPECT_THAT(text.out, HasSubstr("/.cache/pip\t[off]\n"));
    EXPECT_THAT(text.out, testing::Not(HasSubstr("CloudKit")));
}

TEST(JunkVerb, AHomeThatIsNoFolderIsSaidPlainly) {
    TestSupport::TempTree tree;
    for (const char* home : {"missing", "file"}) {
        tree.file("file", 10);
        const ScopedEnvironment scoped("HOME", tree.path(home));
        const auto result = run({"junk"});
        EXPECT_EQ(result.status, 1) << home;
        EXPECT_TRUE(result.out.empty());
        EXPECT_NE(result.err.find("HOME"), std::string::npos) << result.err;
        EXPECT_TRUE(CliTest::oneLine(result.err));
    }
}
