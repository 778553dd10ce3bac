#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "CleanerCore/Junk/JunkScanner.hpp"
#include "CleanerCore/Removal/Cleaner.hpp"
#include "FaultySystemCalls.hpp"
#include "JunkHome.hpp"
#include "Mapped.hpp"
#include "ScopedMount.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace CleanerCore;
using testing::ElementsAre;
using testing::IsEmpty;
using Source = JunkRule::Source;
namespace fs = std::filesystem;

namespace {

std::vector<std::string> names(const std::vector<URL>& urls) {
    return TestSupport::mapped(urls, &URL::lastPathComponent);
}

std::vector<std::string> names(const JunkGroup& group) {
    return TestSupport::mapped(group.items, &CleanupItem::name);
}

struct JunkHomeScan : testing::Test {
    TestSupport::TempTree tree;
    JunkScanner scanner{URL::file(tree.root().string()), JunkRule::defaults()};
    void SetUp() override { TestSupport::buildJunkHome(tree.root()); }
};

} // namespace

TEST(JunkRule, EveryRuleHasTextsThatStayInTheLanguageOfFirstUse) {
    for (const JunkRule& rule : JunkRule::defaults()) {
        EXPECT_THAT(rule.title, testing::Not(testing::StartsWith("core."))) << "no text for " << rule.id;
        EXPECT_THAT(rule.summary, testing::Not(testing::StartsWith("core."))) << "no text for " << rule.id;
    }
    const std::string before = CoreL10n::currentLanguage();
    const std::string title = JunkRule::defaults()[0].title;
    CoreL10n::setCurrentLanguage(before == "en" ? "pt-BR" : "en");
    EXPECT_EQ(JunkRule::defaults()[0].title, title);
    CoreL10n::setCurrentLanguage(before);
}

TEST_F(JunkHomeScan, CandidatesFollowTheKindOfSource) {
    // Hidden entries and empty folders are candidates; .DS_Store and protected names are not.
    EXPECT_THAT(
        names(scanner.candidates(JunkRule::defaults()[0].sources[0])),
        testing::UnorderedElementsAre("com.example.app", "com.example.tool", ".hidden-cache", "EmptyCache"));
    // Only what the exclusion names, compared exactly.
    tree.file("Library/Caches/cloudkit/x", 1);
    EXPECT_THAT(names(scanner.candidates(Source::contents("Library/Caches", {"CloudKit"}))),
                testing::Contains("cloudkit"));

    // Extensions are lower-cased, folders with one count, a subfolder is never entered.
    EXPECT_THAT(names(scanner.candidates(JunkRule::defaults()[5].sources[0])),
                testing::UnorderedElementsAre("movie.crdownload", "Report.PART", "Keynote.download"));

    EXPECT_THAT(names(scanner.candidates(Source::folder("Library/Developer/CoreSimulator/Caches"))),
                ElementsAre("Caches"));
    EXPECT_THAT(scanner.candidates(Source::folder("Library/pnpm/store")), IsEmpty());
    EXPECT_THAT(scanner.candidates(Source::contents("Library/Nowhere")), IsEmpty());
    EXPECT_THAT(scanner.candidates(Source::files("Library/Logs/app.log", {"log"})), IsEmpty());
}

TEST_F(JunkHomeScan, GroupsEveryRuleLargestFirstAndMarksRunningApplications) {
    const auto groups = scanner.scan({"com.example.app", "org.unrelated"});
    ASSERT_EQ(groups.size(), 6u);
    for (std::size_t i = 0; i < groups.size(); ++i)
        EXPECT_EQ(groups[i].rule, JunkRule::defaults()[i]);

    const JunkGroup& caches = groups[0];
    EXPECT_THAT(names(caches), ElementsAre("com.example.app", "com.example.tool", ".hidden-cache"));
    EXPECT_EQ(caches.items[0].note, CoreL10n::string("core.note.appOpen"));
    EXPECT_FALSE(caches.items[0].selectedByDefault);
    EXPECT_EQ(caches.items[1].note, std::nullopt);
    EXPECT_TRUE(caches.items[1].selectedByDefault);
    for (const CleanupItem& item : caches.items)
        EXPECT_EQ(item.size, FileSize::allocatedSize(item.url)) << item.name();
    EXPECT_EQ(caches.totalSize(), caches.items[0].size + caches.items[1].size + caches.items[2].size);

    EXPECT_THAT(names(groups[1]), ElementsAre("app.log"));
    // Each derived-data project on its own, the simulator caches as one.
    EXPECT_THAT(names(groups[2]), ElementsAre("ProjectA-abc", "Caches", "17.0 (21A329)", "ProjectB-def"));
    EXPECT_THAT(names(groups[3]), ElementsAre("_cacache", "cache"));
    EXPECT_THAT(names(groups[4]), ElementsAre("pip", "fontconfig"));
    EXPECT_FALSE(groups[4].items[0].selectedByDefault) << "the rule's choice reaches its items";
    EXPECT_THAT(names(groups[5]), ElementsAre("movie.crdownload", "Report.PART", "Keynote.download"));

    // Once the application quits, a new scan preselects its cache again.
    const auto later = scanner.scan({});
    EXPECT_TRUE(later[0].items[0].selectedByDefault);
    EXPECT_EQ(later[0].items[0].note, std::nullopt);
}

TEST_F(JunkHomeScan, EqualSizesKeepTheListingOrder) {
    for (const char* name : {"b.log", "a.log", "d.log", "c.log"})
        tree.file(std::string("Library/Logs/") + name, 4096);
    std::vector<std::string> listed = names(scanner.candidates(Source::contents("Library/Logs")));
    std::erase(listed, "app.log");
    std::vector<std::string> scanned = names(scanner.scan({})[1]);
    ASSERT_EQ(scanned.front(), "app.log");
    scanned.erase(scanned.begin());
    EXPECT_EQ(scanned, listed);
}

// ~/.cache and a folder source kept elsewhere through a link: their real folders are scanned, the
// items named where they really are, and what lies inside is still never followed.
TEST_F(JunkHomeScan, ASourceThatIsALinkToAFolderIsScannedThere) {
    const fs::path cache = tree.folder("elsewhere/cache");
    fs::rename(tree.path(".cache"), cache);
    tree.symlink(".cache", cache);
    const fs::path npm = tree.folder("elsewhere/npm");
    fs::rename(tree.path(".npm/_cacache"), npm / "_cacache");
    tree.symlink(".npm/_cacache", npm / "_cacache");
    tree.file("elsewhere/big/blob", 4096);
    tree.symlink("elsewhere/cache/to-big", tree.path("elsewhere/big"));

    const auto groups = scanner.scan({});
    EXPECT_THAT(names(groups[3]), ElementsAre("_cacache", "cache"));
    EXPECT_EQ(groups[3].items[0].url, URL::file((npm / "_cacache").string()));
    ASSERT_THAT(names(groups[4]), ElementsAre("pip", "fontconfig"));
    EXPECT_EQ(groups[4].items[0].url, URL::file((cache / "pip").string()));

    const Cleaner cleaner(RemovalMode::permanent, scanner.home, std::nullopt);
    const RemovalReport report = cleaner.remove(groups[4].items);
    EXPECT_EQ(report.removed.size(), 2u);
    EXPECT_FALSE(fs::exists(cache / "pip"));
    EXPECT_TRUE(fs::is_symlink(tree.path(".cache")));
    EXPECT_TRUE(fs::exists(tree.path("elsewhere/big/blob")));

    // A link that leads into the home's own folders: the guard judges the real places.
    fs::remove(tree.path(".cache"));
    tree.symlink(".cache", tree.root());
    const std::vector<CleanupItem> throughHome = scanner.scan({})[4].items;
    const auto downloads = std::ranges::find(throughHome, tree.path("Downloads").string(),
                                             [](const CleanupItem& item) { return item.url.path(); });
    ASSERT_NE(downloads, throughHome.end());
    EXPECT_EQ(cleaner.remove(std::span(downloads, 1)).failures.size(), 1u);
    EXPECT_TRUE(fs::exists(tree.path("Downloads/Report.PART")));
}

// A bind mount of system files or a tmpfs below a junk source is never junk.
TEST_F(JunkHomeScan, MountPointsAreNeverItems) {
    const fs::path doc = tree.file("outside/doc/manual.txt", 8192).parent_path();
    const TestSupport::ScopedMount bind = TestSupport::ScopedMount::bind(doc, tree.folder("Library/Logs/b"));
    if (!bind)
        GTEST_SKIP() << bind.why();
    const TestSupport::ScopedMount memory = TestSupport::ScopedMount::tmpfs(tree.folder(".cache/m"));
    const TestSupport::ScopedMount gradle = TestSupport::ScopedMount::tmpfs(tree.folder(".gradle/caches"));
    ASSERT_TRUE(memory && gradle);
    tree.file(".cache/m/x", 4096);
    tree.file(".gradle/caches/y", 4096);
    const auto groups = scanner.scan({});
    EXPECT_THAT(names(groups[1]), ElementsAre("app.log"));
    EXPECT_THAT(names(groups[3]), ElementsAre("_cacache", "cache"));
    EXPECT_THAT(names(groups[4]), ElementsAre("pip", "fontconfig"));
}

TEST(JunkScanner, BareOrUnreadableHomeGivesEmptyGroups) {
    TestSupport::TempTree tree;
    const JunkScanner scanner{URL::file(tree.root().string()), JunkRule::defaults()};
    auto groups = scanner.scan({});
    ASSERT_EQ(groups.size(), 6u);
    for (const JunkGroup& group : groups)
        EXPECT_THAT(group.items, IsEmpty()) << group.id();

    TestSupport::buildJunkHome(tree.root());
    TestSupport::FaultySystemCalls calls;
    calls.openFault = [](const char* path) {
        return std::string_view(path).ends_with("Caches") ? EACCES : 0;
    };
    const CleanerCore::Platform::ScopedSystemCalls scoped(calls);
    groups = scanner.scan({});
    EXPECT_THAT(groups[0].items, IsEmpty());
    EXPECT_THAT(names(groups[1]), ElementsAre("app.log"));
}

TEST(JunkGroup, RemovingKeepsTheGroupAndTheRest) {
    const JunkGroup group{JunkRule::defaults()[1],
                          {{URL::file("/h/a"), 30, std::nullopt, true}, {URL::file("/h/b"), 12, "n", false}}};
    const JunkGroup left = group.removing({URL::file("/h/a/"), URL::file("/elsewhere")});
    EXPECT_EQ(left.rule, group.rule);
    ASSERT_EQ(left.items.size(), 1u);
    EXPECT_EQ(left.items[0], group.items[1]);
    EXPECT_EQ(left.totalSize(), 12);
    EXPECT_THAT(group.removing({URL::file("/h/a"), URL::file("/h/b")}).items, IsEmpty());
    EXPECT_EQ(group.removing({URL::file("/h/a"), URL::file("/h/b")}).id(), "user-logs");
}
