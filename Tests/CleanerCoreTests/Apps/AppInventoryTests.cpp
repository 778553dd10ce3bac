#include "CleanerCore/Apps/AppBundleInfo.hpp"
#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"
#include "Mapped.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace CleanerCore;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

std::string plist(const std::vector<std::pair<std::string, std::string>>& entries) {
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>";
    for (const auto& [key, value] : entries)
        xml += "<key>" + key + "</key>" + (value.starts_with('<') ? value : "<string>" + value + "</string>");
    return xml + "</dict></plist>\n";
}

// An app bundle with an Info.plist; `entries` empty gives a plist without keys.
std::filesystem::path bundle(const TestSupport::TempTree& tree, const std::string& relative,
                             const std::vector<std::pair<std::string, std::string>>& entries) {
    tree.text(relative + "/Contents/Info.plist", plist(entries));
    return tree.path(relative);
}

std::vector<std::string> names(const std::vector<InstalledApp>& apps) {
    return TestSupport::mapped(apps, &InstalledApp::name);
}

// {CFBundleIdentifier: "com.binary.app", CFBundleShortVersionString: "2.0"} as a binary plist.
const std::string
    binaryPlist("bplist00\xd2\x01\x02\x03\x04_\x10\x12"
                "CFBundleIdentifier_\x10\x1a"
                "CFBundleShortVersionString^com.binary.appS2.0\x08\x0d\x22?N\0\0\0\0\0\0\x01\x01"
                "\0\0\0\0\0\0\0\x05\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0R",
                119);

} // namespace

TEST(AppInventory, FindsBundlesOneFolderDeepSortedNaturallyWithoutDeduplication) {
    TestSupport::TempTree tree;
    const auto system = tree.folder("Applications");
    const auto user = tree.folder("home/Applications");
    bundle(tree, "Applications/App 10.app",
           {{"CFBundleIdentifier", "com.example.ten"}, {"CFBundleShortVersionString", "10"}});
    bundle(tree, "Applications/app 9.app", {{"CFBundleIdentifier", "com.example.nine"}});
    bundle(tree, "Applications/Utilities/Tool.app", {{"CFBundleIdentifier", "com.example.tool"}});
    bundle(tree, "Applications/Vendor/Sub/Deep.app", {{"CFBundleIdentifier", "com.example.deep"}});
    bundle(tree, "Applications/.Hidden.app", {});
    bundle(tree, "Applications/Upper.APP", {{"CFBundleIdentifier", "com.example.upper"}});
    bundle(tree, "Applications/Folder.app/Inner.app",
           {{"CFBundleIdentifier", "com.example.inner"}}); // never opened
    tree.folder("Applications/Empty.app");                 // no Info.plist
    tree.symlink("Applications/Linked.app", system / "App 10.app");
    tree.text("Applications/Broken.app/Contents/Info.plist", "<plist><dict><key>CFBundle");
    tree.text("Applications/Array.app/Contents/Info.plist",
              "<plist><array><string>x</string></array></plist>");
    tree.text("Applications/Garbage.app/Contents/Info.plist", std::string("bplist00\xff\xff\x00\x01", 12));
    tree.text("Applications/Binary.app/Contents/Info.plist", binaryPlist);
    bundle(tree, "home/Applications/Tool.app", {{"CFBundleIdentifier", "<integer>7</integer>"}});

    const auto apps = AppInventory::installedApps(
        {URL::file(system.string()), URL::file(user.string()), URL::file(tree.path("missing").string())},
        AppInventory::Sources::none());
    EXPECT_THAT(names(apps), ElementsAre(".Hidden", "app 9", "App 10", "Binary", "Tool", "Tool"));
    EXPECT_EQ(apps[0].bundleID, std::nullopt);
    EXPECT_EQ(apps[2].version, "10");
    EXPECT_EQ(apps[3].bundleID, "com.binary.app");
    EXPECT_EQ(apps[3].version, "2.0");
    EXPECT_EQ(apps[4].url.path(), (system / "Utilities/Tool.app").string())
        << "the stable sort keeps folder order";
    EXPECT_EQ(apps[5].bundleID, std::nullopt) << "a number is no identifier";
    EXPECT_EQ(apps[0].kind, AppKind::bundle);
    EXPECT_EQ(apps[0].lastUsed, std::nullopt);
}

TEST(AppInventory, KnownIdentifiersReachFiveLevelsAndSkipHiddenEntries) {
    TestSupport::TempTree tree;
    const auto root = tree.folder("Applications");
    bundle(tree, "Applications/Top.app", {{"CFBundleIdentifier", "COM.Example.Top"}});
    bundle(tree, "Applications/Top.app/Contents/Helpers/Helper.app",
           {{"CFBundleIdentifier", "com.example.top.helper"}});
    bundle(tree, "Applications/a/b/c/d/Level5.app", {{"CFBundleIdentifier", "com.example.five"}});
    bundle(tree, "Applications/a/b/c/d/e/Level6.app", {{"CFBundleIdentifier", "com.example.six"}});
    bundle(tree, "Applications/.hidden/Secret.app", {{"CFBundleIdentifier", "com.example.secret"}});
    bundle(tree, "Applications/NoID.app", {});
    tree.text("share/applications/org.example.Desk.desktop", "[Desktop Entry]\n");
    tree.text("share/applications/kde4/okular.desktop", "[Desktop Entry]\n");
    tree.text("share/applications/readme.txt", "");

    AppInventory::Sources sources;
    sources.desktopEntryFolders = {tree.path("share/applications").string(), tree.path("nowhere").string()};
    EXPECT_THAT(AppInventory::allKnownBundleIDs({URL::file(root.string())}, sources),
                UnorderedElementsAre("com.example.top", "com.example.top.helper", "com.example.five",
                                     "org.example.desk", "kde4-okular"));
}

TEST(InstalledApp, FolderNamesBlockersAndAppleIdentifiers) {
    TestSupport::TempTree tree;
    const auto path = bundle(tree, "Zed.app", {{"CFBundleName", "Zed Editor"}});
    const auto zed = InstalledApp::fromBundle(URL::file(path.string()));
    ASSERT_TRUE(zed.has_value());
    EXPECT_THAT(zed->folderNames(), UnorderedElementsAre("zed", "zed editor"));
    const auto qq = InstalledApp::fromBundle(URL::file(bundle(tree, "QQ.app", {}).string()));
    ASSERT_TRUE(qq.has_value());
    EXPECT_THAT(qq->folderNames(), IsEmpty());

    const auto blocker = [](std::optional<std::string> id, std::set<std::string> running) {
        const InstalledApp app{URL::file("/Applications/X.app"), "X", std::move(id)};
        return app.uninstallBlocker(running, {"dev.tavrix.zephrane"});
    };
    EXPECT_EQ(blocker(std::nullopt, {"anything"}), std::nullopt);
    EXPECT_EQ(blocker("dev.tavrix.zephrane.helper", {}), UninstallBlocker::zephrane);
    EXPECT_EQ(blocker("dev.tavrix.zephraneX", {}), std::nullopt);
    EXPECT_EQ(blocker("COM.APPLE.Foo", {"com.apple.foo"}), UninstallBlocker::apple);
    EXPECT_EQ(blocker("org.Example.App", {"ORG.example.app"}), UninstallBlocker::running);
    EXPECT_EQ(blocker("org.example.app", {"org.example.app.helper"}), std::nullopt);
    EXPECT_TRUE((InstalledApp{URL::file("/a"), "a", "COM.APPLE.Foo"}.isApple()));
    EXPECT_FALSE((InstalledApp{URL::file("/a"), "a", "com.applesauce"}.isApple()));
}

TEST(AppBundleInfo, FeedAddressesAreTrimmedAndOnlyWebSchemesKept) {
    TestSupport::TempTree tree;
    const auto path = bundle(tree, "Feed.app",
                             {{"CFBundleIdentifier", "com.feed"},
                              {"CFBundleVersion", "42"},
                              {"SUFeedURL", " \n https://example.com/appcast.xml\t"}});
    tree.text("Feed.app/Contents/_MASReceipt/receipt", "");
    const auto info = AppBundleInfo::fromBundle(URL::file(path.string()));
    ASSERT_TRUE(info.has_value());
    EXPECT_EQ(info->name, "Feed");
    EXPECT_EQ(info->displayVersion(), "42");
    ASSERT_TRUE(info->feedURL.has_value());
    EXPECT_EQ(info->feedURL->absoluteString(), "https://example.com/appcast.xml");
    EXPECT_TRUE(info->hasAppStoreReceipt);

    EXPECT_TRUE(AppBundleInfo::feedURLFrom("HTTP://example.com/a").has_value());
    EXPECT_FALSE(AppBundleInfo::feedURLFrom("ftp://example.com/a").has_value());
    EXPECT_FALSE(AppBundleInfo::feedURLFrom("file:///etc/passwd").has_value());
    EXPECT_FALSE(AppBundleInfo::feedURLFrom("https://exa mple.com").has_value());
    EXPECT_FALSE(AppBundleInfo::feedURLFrom("example.com/appcast.xml").has_value());
    EXPECT_FALSE(AppBundleInfo::fromBundle(URL::file(tree.path("Missing.app").string())).has_value());
}

TEST(AppInventory, AppImagesAreKnownByTheirMagicNotTheirName) {
    TestSupport::TempTree home;
    const std::string elf("\177ELF\2\1\1\0", 8);
    home.text("Applications/Krita-5.2.AppImage", elf + "AI\x02" + std::string(100, '\0'));
    home.text(".local/bin/renamed", elf + std::string("AI\x01", 3) + std::string(100, '\0'));
    home.text(".local/bin/plain-elf", elf + std::string(100, '\0'));
    home.text("bin/Fake.AppImage", "#!/bin/sh\n");
    home.text("bin/truncated", elf + "A");
    home.symlink("bin/linked", home.path("Applications/Krita-5.2.AppImage"));

    const URL homeURL = URL::file(home.root().string());
    AppInventory::Sources sources = AppInventory::Sources::forHome(homeURL);
    sources.flatpaks = false;
    const auto apps = AppInventory::installedApps({}, sources);
    EXPECT_THAT(names(apps), ElementsAre("Krita-5.2", "renamed"));
    EXPECT_EQ(apps[0].kind, AppKind::appImage);
    EXPECT_EQ(apps[0].bundleID, std::nullopt);

    // The folders that hold AppImages stay; the AppImages in them may go.
    for (const char* folder : {"Applications", ".local/bin", "bin", ".var", ".var/app"})
        EXPECT_TRUE(SafetyGuard::isProtected(URL::file(home.path(folder).string()), homeURL, std::nullopt))
            << folder;
    EXPECT_FALSE(SafetyGuard::isProtected(apps[0].url, homeURL, std::nullopt));
    EXPECT_FALSE(
        SafetyGuard::isProtected(URL::file(home.path("bin/renamed").string()), homeURL, std::nullopt));
    EXPECT_FALSE(SafetyGuard::isProtected(URL::file(home.path(".var/app/org.gone.App").string()), homeURL,
                                          std::nullopt));
    EXPECT_TRUE(SafetyGuard::isProtected(URL::file(home.path(".local/share/flatpak/app/org.x.Y").string()),
                                         homeURL, std::nullopt));
}
