#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Apps/LeftoverFinder.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"
#include "FlatpakFixture.hpp"
#include "Mapped.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace CleanerCore;
using testing::Contains;
using TestSupport::FlatpakFixture;

namespace {

const InstalledApp* findApp(const std::vector<InstalledApp>& apps, const std::string& id) {
    for (const InstalledApp& app : apps)
        if (app.bundleID == id)
            return &app;
    return nullptr;
}

AppInventory::Sources flatpaksOf(const TestSupport::TempTree& home) {
    return {.home = URL::file(home.root().string()), .flatpaks = true};
}

} // namespace

TEST(FlatpakInventory, ListsUserAndSystemAppsWithTheirAppStreamFacts) {
    REQUIRE_FLATPAK(fixture);
    fixture->exportApp({"org.zephrane.Test.Editor", "Zephrane Editor", "1.4.2", "stable", 64 * 1024});
    fixture->exportApp({"org.zephrane.Test.Bare", std::nullopt, std::nullopt});
    fixture->exportApp({"org.zephrane.Test.Wide", "Wide Viewer", "3.0"});
    fixture->install("org.zephrane.Test.Editor");
    fixture->install("org.zephrane.Test.Bare");
    fixture->install("org.zephrane.Test.Wide", FlatpakFixture::Scope::system);

    TestSupport::TempTree home;
    const auto apps = AppInventory::installedApps({}, flatpaksOf(home));

    const InstalledApp* editor = findApp(apps, "org.zephrane.Test.Editor");
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->kind, AppKind::flatpakUser);
    EXPECT_EQ(editor->name, "Zephrane Editor"); // the untranslated name
    EXPECT_EQ(editor->version, "1.4.2");
    EXPECT_EQ(editor->origin, FlatpakFixture::remoteName);
    EXPECT_GE(editor->installedSize.value_or(0), 64 * 1024);
    EXPECT_TRUE(
        editor->url.isInside(URL::file(FlatpakFixture::installation(FlatpakFixture::Scope::user).string())));
    EXPECT_TRUE(std::filesystem::is_directory(editor->url.path() + "/files/bin"));
    EXPECT_EQ(editor->lastUsed, std::nullopt); // never run: no state, no ~/.var/app folder

    // No AppStream at all: the id stands in for the name, and the version is unknown.
    const InstalledApp* bare = findApp(apps, "org.zephrane.Test.Bare");
    ASSERT_NE(bare, nullptr);
    EXPECT_EQ(bare->name, "org.zephrane.Test.Bare");
    EXPECT_EQ(bare->version, std::nullopt);

    const InstalledApp* wide = findApp(apps, "org.zephrane.Test.Wide");
    ASSERT_NE(wide, nullptr);
    EXPECT_EQ(wide->kind, AppKind::flatpakSystem);
    EXPECT_EQ(wide->version, "3.0");
    EXPECT_EQ(findApp(apps, FlatpakFixture::runtimeID), nullptr) << "runtimes are no apps";

    // Every ref protects its files from being called orphans, runtimes included.
    const auto known = AppInventory::allKnownBundleIDs({}, flatpaksOf(home));
    EXPECT_THAT(known, Contains("org.zephrane.test.editor"));
    EXPECT_THAT(known, Contains("org.zephrane.test.wide"));
    EXPECT_THAT(known, Contains("org.zephrane.fixture.platform"));

    // Removal never reaches into an installation, whatever a scan proposes.
    const URL homeURL = URL::file(home.root().string());
    EXPECT_TRUE(SafetyGuard::isProtected(editor->url, homeURL, std::nullopt));
    EXPECT_TRUE(SafetyGuard::isProtected(wide->url, homeURL, std::nullopt));
    const auto system = FlatpakFixture::installation(FlatpakFixture::Scope::system);
    EXPECT_TRUE(SafetyGuard::isProtected(URL::file(system.parent_path().string()), homeURL, std::nullopt))
        << "nor the folder that holds one";
    const auto overrides = FlatpakFixture::installation(FlatpakFixture::Scope::user) / "overrides";
    EXPECT_TRUE(SafetyGuard::isProtected(URL::file(overrides.string()), homeURL, std::nullopt));
    EXPECT_FALSE(SafetyGuard::isProtected(URL::file((overrides / "org.zephrane.Test.Gone").string()), homeURL,
                                          std::nullopt));
}

TEST(FlatpakInventory, LastUseComesFromTheShellElseFromTheAppsOwnFolder) {
    REQUIRE_FLATPAK(fixture);
    fixture->exportApp({"org.zephrane.Test.Seen", "Seen", "1"});
    fixture->exportApp({"org.zephrane.Test.Sandboxed", "Sandboxed", "1"});
    fixture->install("org.zephrane.Test.Seen");
    fixture->install("org.zephrane.Test.Sandboxed");

    TestSupport::TempTree home;
    home.text(".local/share/gnome-shell/application_state",
              "<?xml version=\"1.0\"?>\n<application-state>\n <context id=\"\">\n"
              "  <application id=\"org.zephrane.Test.Seen.desktop\" score=\"3\" last-seen=\"1600000000\"/>\n"
              " </context>\n <context id=\"work\">\n"
              "  <application id=\"org.zephrane.Test.Seen.desktop\" score=\"1\" last-seen=\"1650000000\"/>\n"
              " </context>\n</application-state>\n");
    home.file(".var/app/org.zephrane.Test.Sandboxed/config/settings.ini", 10);
    for (const auto& [place, time] :
         {std::pair{"/config/settings.ini", 1700000000}, {"/config", 1500000000}, {"", 1500000000}})
        ASSERT_TRUE(TestSupport::setTimes(
            home.path(".var/app/org.zephrane.Test.Sandboxed" + std::string(place)), time, time));

    const auto apps = AppInventory::installedApps({}, flatpaksOf(home));
    const InstalledApp* seen = findApp(apps, "org.zephrane.Test.Seen");
    const InstalledApp* sandboxed = findApp(apps, "org.zephrane.Test.Sandboxed");
    ASSERT_NE(seen, nullptr);
    ASSERT_NE(sandboxed, nullptr);
    EXPECT_EQ(seen->lastUsed, std::chrono::system_clock::time_point(std::chrono::seconds(1650000000)));
    EXPECT_EQ(sandboxed->lastUsed, std::chrono::system_clock::time_point(std::chrono::seconds(1700000000)));
}

TEST(FlatpakInventory, WhatAnUninstallLeavesInVarAppIsAnOrphanGroupedWithItsOtherFiles) {
    REQUIRE_FLATPAK(fixture);
    fixture->exportApp({"io.leftbehind.Gone", "Gone", "1"});
    fixture->exportApp({"org.zephrane.Test.Kept", "Kept", "1"});
    fixture->install("io.leftbehind.Gone");
    fixture->install("org.zephrane.Test.Kept");

    // Another vendor: any installed app of a vendor protects all of that vendor's files.
    TestSupport::TempTree home;
    home.file(".var/app/io.leftbehind.Gone/data/db.sqlite", 8192);
    home.file(".cache/io.leftbehind.Gone/thumbs", 4096);
    home.file(".config/io.leftbehind.Gone.conf/x", 1);
    home.file(".var/app/org.zephrane.Test.Kept/config/k", 10);
    home.file(".local/share/org.zephrane.Test.Kept/k", 10);
    fixture->uninstall("io.leftbehind.Gone");

    const auto known = AppInventory::allKnownBundleIDs({}, flatpaksOf(home));
    const auto groups = LeftoverFinder(URL::file(home.root().string()), std::nullopt).orphans(known);
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].bundleID, "io.leftbehind.gone");
    EXPECT_THAT(TestSupport::mapped(groups[0].items, [](const CleanupItem& item) { return item.url.path(); }),
                testing::UnorderedElementsAre(home.path(".var/app/io.leftbehind.Gone").string(),
                                              home.path(".cache/io.leftbehind.Gone").string(),
                                              home.path(".config/io.leftbehind.Gone.conf").string()));
    EXPECT_EQ(groups[0].items[0].url.path(), home.path(".var/app/io.leftbehind.Gone").string());
}

TEST(FlatpakInventory, AnUpdatedAppShowsItsNewVersion) {
    REQUIRE_FLATPAK(fixture);
    fixture->exportApp({"org.zephrane.Test.Updated", "Updated", "1.0"});
    fixture->install("org.zephrane.Test.Updated");
    fixture->exportApp({"org.zephrane.Test.Updated", "Updated", "2.0"}); // waits in the remote

    TestSupport::TempTree home;
    const auto first = AppInventory::installedApps({}, flatpaksOf(home));
    const InstalledApp* before = findApp(first, "org.zephrane.Test.Updated");
    ASSERT_NE(before, nullptr);
    EXPECT_EQ(before->version, "1.0");

    fixture->update("org.zephrane.Test.Updated");
    const auto second = AppInventory::installedApps({}, flatpaksOf(home));
    const InstalledApp* after = findApp(second, "org.zephrane.Test.Updated");
    ASSERT_NE(after, nullptr);
    EXPECT_EQ(after->version, "2.0");
    EXPECT_NE(after->url, before->url) << "each commit is deployed in a folder of its own";
}
