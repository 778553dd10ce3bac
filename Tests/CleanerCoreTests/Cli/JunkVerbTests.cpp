#include "Cli.hpp"
#include "JunkHome.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <sstream>

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

} // namespace

TEST(JunkVerb, ReportsEveryRuleOfTheHomeAsTextOrJson) {
    TestSupport::TempTree tree;
    TestSupport::buildJunkHome(tree.root());
    const ScopedHome home(tree.root());

    std::ostringstream json, err;
    ASSERT_EQ(ZephraneCli::run({"junk", "--json"}, json, err), 0) << err.str();
    const auto groups = nlohmann::json::parse(json.str());
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

    std::ostringstream text;
    ASSERT_EQ(ZephraneCli::run({"junk"}, text, err), 0);
    EXPECT_THAT(text.str(), testing::HasSubstr("\tuser-caches\t"));
    EXPECT_THAT(text.str(), testing::HasSubstr("/.cache/pip\t[off]\n"));
    EXPECT_THAT(text.str(), testing::Not(testing::HasSubstr("CloudKit")));

    EXPECT_EQ(ZephraneCli::run({"junk", "/tmp"}, text, err), 2);
}

TEST(JunkVerb, AHomeThatIsNoFolderIsSaidPlainly) {
    TestSupport::TempTree tree;
    for (const char* home : {"missing", "file"}) {
        tree.file("file", 10);
        const ScopedHome scoped(tree.path(home));
        std::ostringstream out, err;
        EXPECT_EQ(ZephraneCli::run({"junk"}, out, err), 1) << home;
        EXPECT_TRUE(out.str().empty());
        EXPECT_NE(err.str().find("HOME"), std::string::npos) << err.str();
        EXPECT_EQ(err.str().find('\n'), err.str().size() - 1);
    }
}
