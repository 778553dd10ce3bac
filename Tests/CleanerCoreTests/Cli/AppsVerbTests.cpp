#include "CliRun.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using CliTest::run;
using testing::HasSubstr;

namespace {

// A home with one bundle (and its preferences), one AppImage and what a removed Flatpak left.
void buildHome(const TestSupport::TempTree& home) {
    home.text("Applications/Mapper.app/Contents/Info.plist",
              "<plist><dict><key>CFBundleIdentifier</key><string>net.mapper.App</string>"
              "<key>CFBundleShortVersionString</key><string>3.1</string></dict></plist>");
    home.file("Library/Preferences/net.mapper.App.plist", 100);
    home.file("Library/Group Containers/group.net.mapper.App/db", 5000);
    home.text(".local/bin/Tiled", std::string("\177ELF\2\1\1\0AI\2", 11) + std::string(8192, 'x'));
    home.file(".var/app/io.removed.Player/data/cache.bin", 9000);
    home.file(".local/share/io.removed.Player/x", 10);
}

} // namespace

TEST(AppsVerb, ListsBundlesAndAppImagesWithSizesAndIdentifiers) {
    TestSupport::TempTree home;
    buildHome(home);
    const TestSupport::ScopedEnvironment scoped("HOME", home.root());

    const auto json = run({"apps", "--json"});
    ASSERT_EQ(json.status, 0) << json.err;
    nlohmann::json mapper, tiled;
    for (const auto& app : nlohmann::json::parse(json.out)) {
        if (app["name"] == "Mapper")
            mapper = app;
        if (app["name"] == "Tiled")
            tiled = app;
    }
    ASSERT_FALSE(mapper.is_null()) << json.out;
    EXPECT_EQ(mapper["kind"], "bundle");
    EXPECT_EQ(mapper["id"], "net.mapper.App");
    EXPECT_EQ(mapper["version"], "3.1");
    EXPECT_TRUE(mapper["blocker"].is_null());
    EXPECT_GT(mapper["allocatedBytes"].get<std::int64_t>(), 0);
    ASSERT_FALSE(tiled.is_null()) << json.out;
    EXPECT_EQ(tiled["kind"], "appImage");
    EXPECT_TRUE(tiled["id"].is_null());
    EXPECT_GE(tiled["allocatedBytes"].get<std::int64_t>(), 8192);

    EXPECT_THAT(run({"apps"}).out, HasSubstr("\tMapper\tnet.mapper.App\t3.1\t"));
}

TEST(LeftoversVerb, ReportsOrphanGroupsOrOneAppsLeftovers) {
    TestSupport::TempTree home;
    buildHome(home);
    const TestSupport::ScopedEnvironment scoped("HOME", home.root());

    const auto json = run({"leftovers", "--json"});
    ASSERT_EQ(json.status, 0) << json.err;
    const auto groups = nlohmann::json::parse(json.out);
    ASSERT_EQ(groups.size(), 1u) << json.out; // the installed bundle's files are no orphans
    EXPECT_EQ(groups[0]["id"], "io.removed.player");
    EXPECT_EQ(groups[0]["items"].size(), 2u);
    EXPECT_EQ(groups[0]["items"][0]["path"], home.path(".var/app/io.removed.Player").string());

    const auto app = run({"leftovers", "--app", "NET.MAPPER.APP", "--json"});
    ASSERT_EQ(app.status, 0) << app.err;
    const auto report = nlohmann::json::parse(app.out);
    EXPECT_EQ(report["id"], "net.mapper.App");
    ASSERT_EQ(report["leftovers"].size(), 2u);
    std::int64_t sum = 0;
    for (const auto& leftover : report["leftovers"])
        sum += leftover["allocatedBytes"].get<std::int64_t>();
    EXPECT_EQ(report["totalBytes"], sum);

    EXPECT_THAT(
        run({"leftovers", "--app=net.mapper.App"}).out,
        HasSubstr("\tdata\t" + home.path("Library/Group Containers/group.net.mapper.App").string() + "\t("));
    const auto unknown = run({"leftovers", "--app", "org.not.installed"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_THAT(unknown.err, HasSubstr("org.not.installed"));
}
