#include "CleanerCore/Updates/HomebrewCask.hpp"
#include "CleanerCore/Updates/UpdateFetching.hpp"
#include "CannedFetcher.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace CleanerCore;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::string_view api = R"([
  {"token": "foo", "version": "1.2.3,abc123", "url": "https://example.org/foo.dmg",
   "homepage": "https://example.org", "artifacts": [
     {"app": ["Foo.app", {"target": "Sub/Foo Bar.app"}]},
     {"uninstall": [{"quit": "org.example.foo"}, {"quit": ["org.example.bar", 3]}, {"delete": "/x"}]},
     {"zap": [{"trash": "~/Library/Foo"}]}]},
  {"token": "font-x", "version": "2.0", "artifacts": [{"font": ["X.ttf"]}]},
  {"token": "latest-app", "version": "latest", "artifacts": [{"app": [{"target": "L.app"}]}]},
  {"token": 7, "version": "1", "artifacts": [{"app": ["Seven.app"]}]},
  {"token": "no-url", "version": "3", "url": 5, "artifacts": [{"app": ["N.app"]}]}
])";

void setAge(const std::filesystem::path& file, std::chrono::hours age) {
    std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() - age);
}

} // namespace

TEST(HomebrewCask, ReadsAppCasksFromTheIndex) {
    const auto casks = HomebrewCask::index(api);
    ASSERT_EQ(casks.size(), 3u) << "casks without an app, or with a token that is no string, are dropped";
    const HomebrewCask& foo = casks[0];
    EXPECT_THAT(foo.appNames, ElementsAre("Foo.app", "Foo Bar.app"));
    EXPECT_THAT(foo.bundleIDs, ElementsAre("org.example.foo", "org.example.bar"));
    EXPECT_EQ(foo.downloadURL, URL::parse("https://example.org/foo.dmg"));
    EXPECT_EQ(foo.comparableVersion(), "1.2.3");
    EXPECT_EQ(casks[1].comparableVersion(), std::nullopt) << "latest";
    EXPECT_THAT(casks[1].bundleIDs, IsEmpty());
    EXPECT_EQ(casks[2].downloadURL, std::nullopt);

    HomebrewCask odd;
    for (const auto& [version, comparable] :
         {std::pair<std::string, std::optional<std::string>>{",1", "1"}, {"", std::nullopt}, {",,", ",,"}, {"2,", "2"}}) {
        odd.version = version;
        EXPECT_EQ(odd.comparableVersion(), comparable) << version;
    }

    EXPECT_THAT(HomebrewCask::index("{\"token\": \"x\"}"), IsEmpty());
    EXPECT_THAT(HomebrewCask::index("[1, 2]"), IsEmpty());
    EXPECT_THAT(HomebrewCask::index("not json"), IsEmpty());
    EXPECT_EQ(HomebrewCask::decode(HomebrewCask::encode(casks)), casks) << "the compact cache reads back whole";
}

TEST(HomebrewCask, CacheIsUsedWhileFreshRefetchedWhenStaleAndKeptWhenOffline) {
    TestSupport::TempTree tree;
    const std::string folder = tree.path("cache/Updates").string();
    const auto cacheFile = tree.path("cache/Updates/homebrew-casks.json");
    TestSupport::CannedFetcher fetcher;
    fetcher.anyOther = std::string(api);
    const HomebrewCaskIndex index(fetcher, folder, std::chrono::hours(24));

    ASSERT_EQ(index.casks()->size(), 3u);
    EXPECT_EQ(fetcher.asked.size(), 1u);
    EXPECT_TRUE(std::filesystem::exists(cacheFile)) << "the folder is made as needed";
    EXPECT_EQ(index.casks()->size(), 3u);
    EXPECT_EQ(fetcher.asked.size(), 1u) << "a fresh cache is enough";

    setAge(cacheFile, std::chrono::hours(25));
    fetcher.anyOther.reset();
    ASSERT_TRUE(index.casks().has_value()) << "a stale cache beats no index at all";
    EXPECT_EQ(index.casks()->size(), 3u);
    EXPECT_EQ(fetcher.asked.size(), 3u);

    fetcher.anyOther = "[]"; // an empty index never replaces a good cache
    EXPECT_EQ(index.casks()->size(), 3u);

    std::ofstream(cacheFile) << "{corrupt";
    fetcher.anyOther = std::string(api);
    EXPECT_EQ(index.casks()->size(), 3u) << "a fresh but corrupt cache leads to a fetch";

    std::filesystem::remove(cacheFile);
    fetcher.anyOther.reset();
    EXPECT_EQ(index.casks(), std::nullopt);
}

TEST(HomebrewCask, InstalledTokensComeFromEveryReadableCaskroom) {
    TestSupport::TempTree tree;
    tree.folder("one/.metadata");
    EXPECT_THAT(installedCaskTokens({tree.path("one").string()}), IsEmpty());
    tree.folder("one/foo/1.2.3");
    tree.folder("two/bar");
    EXPECT_THAT(installedCaskTokens({tree.path("one").string(), tree.path("missing").string(), tree.path("two").string()}),
                ElementsAre("bar", "foo"));
}
