#include "CleanerCore/Updates/AppUpdateFinder.hpp"
#include "CleanerCore/Updates/ConcurrentCompactMap.hpp"
#include "CleanerCore/Updates/IgnoredUpdateVersions.hpp"
#include "CleanerCore/Updates/UpdateFetching.hpp"
#include "CannedFetcher.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace CleanerCore;
using TestSupport::CannedFetcher;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

AppBundleInfo app(std::string name, std::optional<std::string> id, std::optional<std::string> shortVersion,
                  std::optional<std::string> build = std::nullopt) {
    AppBundleInfo info;
    info.url = URL::file("/Applications/" + name + ".app");
    info.name = std::move(name);
    info.bundleID = std::move(id);
    info.shortVersion = std::move(shortVersion);
    info.buildVersion = std::move(build);
    return info;
}

std::string item(std::string_view shortVersion, std::string_view enclosure, std::string_view extra = "") {
    return "<item><title>x</title><description><![CDATA[<ul><li>Faster</li></ul>]]></description>" +
           std::string(extra) + "<enclosure url=\"" + std::string(enclosure) + "\" sparkle:shortVersionString=\"" +
           std::string(shortVersion) + "\"/></item>";
}

std::string feed(const std::string& items) { return "<rss><channel>" + items + "</channel></rss>"; }

AppUpdateFinder::Settings settingsIn(const TestSupport::TempTree& tree) {
    AppUpdateFinder::Settings settings;
    settings.system = {6, 1, 0};
    settings.caskroomFolders = {tree.path("Caskroom").string()};
    settings.cacheFolder = tree.path("cache").string();
    settings.excludedBundleIDs = {"Dev.Tavrix.Zephrane"};
    settings.region = "BR";
    return settings;
}

} // namespace

TEST(AppUpdateFinder, PlansEachAppIntoOneSource) {
    TestSupport::TempTree tree;
    CannedFetcher fetcher;
    const AppUpdateFinder finder(fetcher, settingsIn(tree));
    AppBundleInfo both = app("Both", "a.both", "1");
    both.hasAppStoreReceipt = true;
    both.feedURL = URL::parse("https://e.org/feed");
    AppBundleInfo receiptOnly = app("NoID", std::nullopt, "1");
    receiptOnly.hasAppStoreReceipt = true;
    AppBundleInfo feedOnly = app("Feed", "a.feed", "1");
    feedOnly.feedURL = URL::parse("https://e.org/feed");
    const auto plan = finder.plan({both, app("Self", "dev.tavrix.ZEPHRANE", "1"), receiptOnly, feedOnly});
    EXPECT_THAT(plan.appStore, ElementsAre(both)) << "a receipt wins over a feed";
    EXPECT_THAT(plan.sparkle, ElementsAre(feedOnly));
    EXPECT_THAT(plan.others, ElementsAre(receiptOnly)) << "without an identifier the store can't be asked";
}

TEST(AppUpdateFinder, ReadsFeedUpdates) {
    const OperatingSystemVersion system{6, 1, 0};
    const AppBundleInfo installed = app("Feed", "a.feed", "1.0", "100");
    const auto update = AppUpdateFinder::sparkleUpdate(
        installed, feed(item("1.1", "https://e.org/Feed-1.1.zip") + item("1.2", "http://e.org/Feed-1.2.zip", "<s:version>120</s:version>")),
        system, {"en"});
    ASSERT_TRUE(update.has_value());
    EXPECT_EQ(update->newVersion, "1.2");
    EXPECT_EQ(update->newBuild, "120");
    EXPECT_EQ(update->currentVersion, "1.0");
    EXPECT_EQ(update->notes, "\u2022 Faster");
    EXPECT_FALSE(update->canInstallDownload()) << "an unencrypted enclosure is reported, not installed";

    const auto informational = AppUpdateFinder::sparkleUpdate(
        installed, feed(item("2.0", "https://e.org/Feed.zip", "<s:informationalUpdate/>")), system, {});
    ASSERT_TRUE(informational.has_value());
    EXPECT_EQ(informational->downloadURL, std::nullopt);
    EXPECT_FALSE(informational->canInstallDownload());

    EXPECT_EQ(AppUpdateFinder::sparkleUpdate(installed, feed(item("1.0", "https://e.org/x.zip")), system, {}), std::nullopt);
    EXPECT_EQ(AppUpdateFinder::sparkleUpdate(app("X", "x", std::nullopt), feed(item("9", "https://e.org/x.zip")), system, {}),
              std::nullopt)
        << "an app that declares no version can't be judged";
    EXPECT_EQ(AppUpdateFinder::sparkleUpdate(installed, "not a feed", system, {}), std::nullopt);
}

TEST(AppUpdateFinder, ReadsStoreLookups) {
    TestSupport::TempTree tree;
    CannedFetcher fetcher;
    const AppUpdateFinder finder(fetcher, settingsIn(tree));
    EXPECT_EQ(finder.lookupURL("com.example.A&B", "br")->absoluteString(),
              "https://itunes.apple.com/lookup?bundleId=com.example.A%26B&country=br&entity=macSoftware");

    const AppBundleInfo installed = app("Store", "com.example.Store", "2.0");
    const std::string lookup = R"json({"resultCount": 3, "results": [
        {"bundleId": "com.example.store", "kind": "software", "version": "9.0"},
        {"bundleId": "COM.EXAMPLE.STORE", "kind": "mac-software", "version": "2.1 (210)", "trackId": 42,
         "releaseNotes": "<b>kept as it is</b>", "trackViewUrl": "https://apps.apple.com/app/id42"}]})json";
    const auto update = AppUpdateFinder::appStoreUpdate(installed, lookup);
    ASSERT_TRUE(update.has_value());
    EXPECT_EQ(update->newVersion, "2.1 (210)");
    EXPECT_EQ(update->notes, "<b>kept as it is</b>");
    EXPECT_EQ(update->storeURL, URL::parse("macappstore://apps.apple.com/app/id42"));
    EXPECT_EQ(update->source, AppUpdateSource::appStore);

    EXPECT_EQ(AppUpdateFinder::appStoreUpdate(installed, R"json({"results": [{"bundleId": "com.example.store",
                                                              "version": "2.0 (123)"}]})json"),
              std::nullopt);
    for (const char* wrongShape : {"[]", "{\"results\": {}}", "{\"results\": [{\"bundleId\": 1}]}", "nonsense",
                                   "{\"results\": [{\"bundleId\": \"com.example.store\", \"version\": 3}]}"})
        EXPECT_EQ(AppUpdateFinder::appStoreUpdate(installed, wrongShape), std::nullopt) << wrongShape;
}

TEST(AppUpdateFinder, MatchesInstalledCasksByBundleNameBeforeIdentifier) {
    HomebrewCask byName{"by-name", "3.0,1", {"Named.app"}, {"org.other"}, URL::parse("https://e.org/n.zip"), std::nullopt};
    HomebrewCask byID{"by-id", "2.0", {"Else.app"}, {"ORG.EXAMPLE.NAMED"}, std::nullopt, std::nullopt};
    HomebrewCask notInstalled{"absent", "9.0", {"Named.app"}, {}, std::nullopt, std::nullopt};
    const std::vector<HomebrewCask> casks{byName, byID, notInstalled};
    const auto updates = AppUpdateFinder::homebrewUpdates(
        {app("named", "org.example.named", "1.0"), app("Other", "org.example.named", "1.0 (5)"),
         app("Current", "org.other", "3.0")},
        casks, {"by-name", "by-id"});
    ASSERT_EQ(updates.size(), 2u);
    EXPECT_EQ(updates[0].caskToken, "by-name");
    EXPECT_EQ(updates[0].newVersion, "3.0");
    EXPECT_EQ(updates[0].brewCommand(), "brew upgrade --cask by-name");
    EXPECT_EQ(updates[1].caskToken, "by-id");
}

TEST(AppUpdateFinder, AsksEverySourceAndSortsByName) {
    TestSupport::TempTree tree;
    tree.folder("Caskroom/zed");
    CannedFetcher fetcher;
    AppUpdateFinder::Settings settings = settingsIn(tree);
    settings.caskIndexURL = "https://casks.example/cask.json";
    settings.storeLookupBase = "https://store.example/lookup";
    fetcher.bodies["https://casks.example/cask.json"] =
        R"([{"token": "zed", "version": "5.0", "artifacts": [{"app": ["Same.app"]}]}])";
    fetcher.bodies["https://store.example/lookup?bundleId=s.same&country=br&entity=macSoftware"] =
        R"({"results": [{"bundleId": "s.same", "version": "4.0"}]})";
    fetcher.bodies["https://e.org/app10"] = feed(item("2", "https://e.org/a.zip"));
    fetcher.bodies["https://e.org/same"] = feed(item("3", "https://e.org/b.zip"));

    AppBundleInfo store = app("Same", "s.same", "1");
    store.hasAppStoreReceipt = true;
    AppBundleInfo app10 = app("App 10", "a.ten", "1");
    app10.feedURL = URL::parse("https://e.org/app10");
    AppBundleInfo sameFeed = app("Same", "f.same", "1");
    sameFeed.feedURL = URL::parse("https://e.org/same");
    AppBundleInfo unreachable = app("App 9", "a.nine", "1");
    unreachable.feedURL = URL::parse("https://e.org/offline");
    AppBundleInfo cask = app("Same", "c.same", "1");

    const AppUpdateFinder finder(fetcher, settings);
    const auto updates = finder.updates({cask, sameFeed, unreachable, app10, store});
    std::vector<std::pair<std::string, AppUpdateSource>> seen;
    for (const AppUpdate& update : updates)
        seen.emplace_back(update.name, update.source);
    EXPECT_THAT(seen, ElementsAre(std::pair{"App 10", AppUpdateSource::sparkle}, std::pair{"Same", AppUpdateSource::appStore},
                                  std::pair{"Same", AppUpdateSource::sparkle}, std::pair{"Same", AppUpdateSource::homebrew}));

    // Offline, only the cask cache written just now answers.
    settings.offline = true;
    fetcher.asked.clear();
    const auto offline = AppUpdateFinder(fetcher, settings).updates({cask, sameFeed, store});
    ASSERT_EQ(offline.size(), 1u);
    EXPECT_EQ(offline[0].source, AppUpdateSource::homebrew);
    EXPECT_THAT(fetcher.asked, IsEmpty());

    // Without a Caskroom the index is neither read nor downloaded.
    settings.offline = false;
    settings.caskroomFolders = {tree.path("no-caskroom").string()};
    fetcher.asked.clear();
    EXPECT_THAT(AppUpdateFinder(fetcher, settings).updates({cask}), IsEmpty());
    EXPECT_THAT(fetcher.asked, IsEmpty());
}

TEST(AppUpdateFinder, KeepsOrderAndLimitsWorkInFlight) {
    std::vector<int> inputs(40);
    for (int i = 0; i < 40; ++i)
        inputs[static_cast<std::size_t>(i)] = i;
    std::atomic<int> running{0}, most{0};
    const auto odd = concurrentCompactMap(inputs, 3, [&](const int& value) -> std::optional<int> {
        const int now = ++running;
        for (int seen = most.load(); now > seen && !most.compare_exchange_weak(seen, now);) {
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        --running;
        return value % 2 == 1 ? std::optional<int>(value) : std::nullopt;
    });
    ASSERT_EQ(odd.size(), 20u);
    EXPECT_TRUE(std::is_sorted(odd.begin(), odd.end()));
    EXPECT_LE(most.load(), 3);
    EXPECT_THAT(concurrentCompactMap(std::vector<int>{}, 0, [](const int& v) { return std::optional<int>(v); }), IsEmpty());

    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(concurrentCompactMap(inputs, 3, [](const int& v) { return std::optional<int>(v); }, stop.get_token()),
                IsEmpty());
}

TEST(AppUpdate, DerivesSummaryKeysAndCommandsFromItsFields) {
    AppUpdate update;
    update.appURL = URL::file("/Applications/Editor.app");
    update.newVersion = "2.0";
    EXPECT_EQ(update.ignoreKey(), "/Applications/Editor.app");
    update.bundleID = "org.editor";
    EXPECT_EQ(update.ignoreKey(), "org.editor");
    EXPECT_EQ(update.notesSummary(), std::nullopt);
    update.notes = "\n \t\n\u2022\n \u2022 Faster saving \n\u2022 Fewer crashes";
    EXPECT_EQ(update.notesSummary(), "\u2022 Faster saving");
    update.notes = "\u2022\n\n";
    EXPECT_EQ(update.notesSummary(), std::nullopt);

    for (const auto& [url, installable] : {std::pair{"https://e.org/Editor.DMG", true}, {"https://e.org/Editor.zip?x=1", true},
                                           {"http://e.org/Editor.zip", false}, {"https://e.org/Editor.pkg", false}}) {
        update.downloadURL = URL::parse(url);
        EXPECT_EQ(update.canInstallDownload(), installable) << url;
    }
    update.source = AppUpdateSource::homebrew;
    EXPECT_FALSE(update.canInstallDownload()) << "only feed downloads are installed here";
}

TEST(AppUpdate, OffersAnActionBySource) {
    AppUpdate update;
    update.downloadURL = URL::parse("https://e.org/Editor.pkg");
    EXPECT_EQ(update.action(), AppUpdateAction::openApp) << "a package is left to the app's own updater";
    update.downloadURL = URL::parse("https://e.org/Editor.zip");
    EXPECT_EQ(update.action(), AppUpdateAction::install);
    update.source = AppUpdateSource::homebrew;
    EXPECT_EQ(update.action(), AppUpdateAction::copyCommand) << "even with a download";
    update.source = AppUpdateSource::appStore;
    EXPECT_EQ(update.action(), AppUpdateAction::openStore);
    update.source = AppUpdateSource::flatpak;
    update.downloadURL.reset();
    EXPECT_EQ(update.action(), AppUpdateAction::install);
}

TEST(IgnoredUpdateVersions, HidesOneVersionAndRestoresOnlyWhatIsListed) {
    const auto offer = [](const char* id, const char* version) {
        AppUpdate update;
        update.appURL = URL::file(std::string("/Applications/") + id + ".app");
        update.bundleID = id;
        update.newVersion = version;
        return update;
    };
    IgnoredUpdateVersions ignored;
    ignored.versions["org.gone"] = "9.0"; // an app uninstalled since
    ignored.ignore(offer("org.editor", "2.0"));
    const std::vector<AppUpdate> first{offer("org.editor", "2.0"), offer("org.viewer", "1.1")};
    EXPECT_EQ(ignored.visible(first), std::vector<AppUpdate>{offer("org.viewer", "1.1")});
    EXPECT_EQ(ignored.hiddenCount(first), 1u);

    const std::vector<AppUpdate> later{offer("org.editor", "2.1"), offer("org.viewer", "1.1")};
    EXPECT_EQ(ignored.visible(later), later) << "a later version shows again";
    ignored.restore(later);
    EXPECT_EQ(ignored.versions.count("org.editor"), 1u) << "nothing of the current list was hidden";

    ignored.restore(first);
    EXPECT_EQ(ignored.versions, (std::map<std::string, std::string>{{"org.gone", "9.0"}}));
}
