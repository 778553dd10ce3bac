#include "Cli.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <fstream>
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

void writeText(const std::filesystem::path& path, const std::string& text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

// A home with one bundle (and its preferences), one AppImage and what a removed Flatpak left.
void buildHome(const TestSupport::TempTree& home) {
    writeText(home.path("Applications/Mapper.app/Contents/Info.plist"),
              "<plist><dict><key>CFBundleIdentifier</key><string>net.mapper.App</string>"
              "<key>CFBundleShortVersionString</key><string>3.1</string></dict></plist>");
    home.file("Library/Preferences/net.mapper.App.plist", 100);
    home.file("Library/Group Containers/group.net.mapper.App/db", 5000);
    writeText(home.path(".local/bin/Tiled"), std::string("\x7f"
                                                         "ELF\x02\x01\x01\x00"
                                                         "AI\x02",
                                                         11) +
                                                 std::string(8192, 'x'));
    home.file(".var/app/io.removed.Player/data/cache.bin", 9000);
    home.file(".local/share/io.removed.Player/x", 10);
}

} // namespace

TEST(AppsVerb, ListsBundlesAndAppImagesWithSizesAndIdentifiers) {
    TestSupport::TempTree home;
    buildHome(home);
    const ScopedHome scoped(home.root());

    std::ostringstream json, err;
    ASSERT_EQ(ZephraneCli::run({"apps", "--json"}, json, err), 0) << err.str();
    nlohmann::json mapper, tiled;
    for (const auto& app : nlohmann::json::parse(json.str())) {
        if (app["name"] == "Mapper")
            mapper = app;
        if (app["name"] == "Tiled")
            tiled = app;
    }
    ASSERT_FALSE(mapper.is_null()) << json.str();
    EXPECT_EQ(mapper["kind"], "bundle");
    EXPECT_EQ(mapper["id"], "net.mapper.App");
    EXPECT_EQ(mapper["version"], "3.1");
    EXPECT_TRUE(mapper["blocker"].is_null());
    EXPECT_GT(mapper["allocatedBytes"].get<std::int64_t>(), 0);
    ASSERT_FALSE(tiled.is_null()) << json.str();
    EXPECT_EQ(tiled["kind"], "appImage");
    EXPECT_TRUE(tiled["id"].is_null());
    EXPECT_GE(tiled["allocatedBytes"].get<std::int64_t>(), 8192);

    std::ostringstream text;
    ASSERT_EQ(ZephraneCli::run({"apps"}, text, err), 0);
    EXPECT_THAT(text.str(), testing::HasSubstr("\tMapper\tnet.mapper.App\t3.1\t"));
    EXPECT_EQ(ZephraneCli::run({"apps", "/tmp"}, text, err), 2);
}

TEST(LeftoversVerb, ReportsOrphanGroupsOrOneAppsLeftovers) {
    TestSupport::TempTree home;
    buildHome(home);
    const ScopedHome scoped(home.root());

    std::ostringstream json, err;
    ASSERT_EQ(ZephraneCli::run({"leftovers", "--json"}, json, err), 0) << err.str();
    const auto groups = nlohmann::json::parse(json.str());
    ASSERT_EQ(groups.size(), 1u) << json.str(); // the installed bundle's files are no orphans
    EXPECT_EQ(groups[0]["id"], "io.removed.player");
    EXPECT_EQ(groups[0]["items"].size(), 2u);
    EXPECT_EQ(groups[0]["items"][0]["path"], home.path(".var/app/io.removed.Player").string());

    std::ostringstream app;
    ASSERT_EQ(ZephraneCli::run({"leftovers", "--app", "NET.MAPPER.APP", "--json"}, app, err), 0) << err.str();
    const auto report = nlohmann::json::parse(app.str());
    EXPECT_EQ(report["id"], "net.mapper.App");
    ASSERT_EQ(report["leftovers"].size(), 2u);
    std::int64_t sum = 0;
    for (const auto& leftover : report["leftovers"])
        sum += leftover["allocatedBytes"].get<std::int64_t>();
    EXPECT_EQ(report["totalBytes"], sum);

    std::ostringstream text;
    ASSERT_EQ(ZephraneCli::run({"leftovers", "--app=net.mapper.App"}, text, err), 0);
    EXPECT_THAT(text.str(), testing::HasSubstr(
                                "\tdata\t" +
                                home.path("Library/Group Containers/group.net.mapper.App").string() + "\t("));
    std::ostringstream unknownErr;
    EXPECT_EQ(ZephraneCli::run({"leftovers", "--app", "org.not.installed"}, text, unknownErr), 1);
    EXPECT_THAT(unknownErr.str(), testing::HasSubstr("org.not.installed"));
    EXPECT_EQ(ZephraneCli::run({"leftovers", "--app"}, text, err), 2);
    EXPECT_EQ(ZephraneCli::run({"leftovers", "somewhere"}, text, err), 2);
}
