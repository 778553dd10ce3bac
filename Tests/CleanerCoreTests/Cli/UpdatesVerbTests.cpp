#include "CliRun.hpp"
#include "FlatpakFixture.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using CliTest::run;
using testing::HasSubstr;

namespace {

nlohmann::json updateOf(const nlohmann::json& report, const std::string& id) {
    for (const auto& update : report)
        if (update["id"] == id)
            return update;
    return {};
}

} // namespace

TEST(UpdatesVerb, ReportsFlatpakUpdatesOnlineAndFromLocalDataOffline) {
    REQUIRE_FLATPAK(fixture);
    const std::string id = "org.zephrane.Test.CliUpdatable";
    fixture->exportApp({id, "Cli Updatable", "0.9"});
    fixture->install(id);
    fixture->exportApp({id, "Cli Updatable", "1.0-1"});

    // A bundle without a feed or receipt: nothing is fetched for it on a machine without Homebrew.
    TestSupport::TempTree home;
    home.text("Applications/Plain.app/Contents/Info.plist",
              "<plist><dict><key>CFBundleIdentifier</key><string>net.plain.App</string>"
              "<key>CFBundleShortVersionString</key><string>1.0</string></dict></plist>");
    const TestSupport::ScopedEnvironment scoped("HOME", home.root());

    const auto online = run({"updates", "--json"});
    ASSERT_EQ(online.status, 0) << online.err;
    const auto update = updateOf(nlohmann::json::parse(online.out), id);
    ASSERT_FALSE(update.is_null()) << online.out;
    EXPECT_EQ(update["source"], "flatpak");
    EXPECT_EQ(update["currentVersion"], "0.9");
    EXPECT_EQ(update["newVersion"], "1.0-1");
    EXPECT_EQ(update["canInstallDownload"], false);
    EXPECT_TRUE(updateOf(nlohmann::json::parse(online.out), "net.plain.App").is_null());

    const auto offline = run({"updates", "--offline"});
    ASSERT_EQ(offline.status, 0) << offline.err;
    EXPECT_THAT(offline.out, HasSubstr("flatpak\tCli Updatable\t" + id + "\t0.9\t1.0-1\t"));
    EXPECT_EQ(offline.err, "") << "no progress when stderr is no terminal";

    EXPECT_EQ(run({"updates", "somewhere"}).status, 2);
    EXPECT_EQ(run({"updates", "--fast"}).status, 2);
}
