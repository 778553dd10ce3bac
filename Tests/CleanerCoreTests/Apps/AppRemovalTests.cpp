#include "CleanerCore/Apps/AppIcon.hpp"
#include "CleanerCore/Apps/AppImageIntegration.hpp"
#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Platform/FlatpakUninstall.hpp"
#include "FlatpakFixture.hpp"
#include "Mapped.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace CleanerCore;
using testing::ElementsAre;
using TestSupport::FlatpakFixture;

TEST(AppImageIntegration, FindsTheEntryAndIconsNamedAfterTheFileURI) {
    TestSupport::TempTree home;
    const URL appImage = URL::file("/home/ana/Applications/My Tool.AppImage");
    // md5("file:///home/ana/Applications/My%20Tool.AppImage"): the URI is escaped before hashing.
    EXPECT_EQ(AppImageIntegration::stem(appImage), "appimagekit_55427409e57ceb5c50de49e3f4d6b104");

    const std::string stem = AppImageIntegration::stem(appImage);
    const auto data = AppIcon::dataHome(URL::file(home.root().string()));
    ASSERT_EQ(data.string().rfind(std::filesystem::temp_directory_path().string(), 0), 0u);
    const auto relative = [&](const std::string& path) {
        return (data / path).lexically_relative(home.root()).string();
    };
    home.file(relative("applications/" + stem + "-My_Tool.desktop"));
    home.file(relative("icons/hicolor/48x48/apps/" + stem + "_tool.png"));
    home.file(relative("icons/hicolor/256x256/apps/" + stem + "_tool.png"));
    home.file(relative("icons/hicolor/scalable/apps/" + stem + "_tool.svg"));
    home.file(relative("applications/appimagekit_ffff-Other.desktop"));
    home.file(relative("applications/" + stem.substr(0, 20) + ".desktop"));

    EXPECT_THAT(
        TestSupport::mapped(AppImageIntegration::files(appImage, URL::file(home.root().string())),
                            &URL::lastPathComponent),
        ElementsAre(stem + "-My_Tool.desktop", stem + "_tool.png", stem + "_tool.png", stem + "_tool.svg"));
    const auto icon = AppImageIntegration::icon(appImage, URL::file(home.root().string()));
    ASSERT_TRUE(icon);
    EXPECT_NE(icon->path().find("/256x256/"), std::string::npos) << "the largest raster icon";
}

TEST(FlatpakUninstall, ReadsTheInstallationAndRefOfADeployFolder) {
    const auto deployment =
        Platform::flatpakDeployment("/var/lib/flatpak/app/org.example.App/x86_64/stable/active");
    ASSERT_TRUE(deployment);
    EXPECT_EQ(deployment->installation, "/var/lib/flatpak");
    EXPECT_EQ(deployment->ref, "app/org.example.App/x86_64/stable");
    EXPECT_FALSE(
        Platform::flatpakDeployment("/var/lib/flatpak/runtime/org.example.Platform/x86_64/1/active"));
    EXPECT_FALSE(Platform::flatpakDeployment("/opt/Tool.AppImage"));
}

TEST(FlatpakUninstall, RemovesTheAppThroughItsInstallation) {
    REQUIRE_FLATPAK(fixture);
    fixture->exportApp({"org.zephrane.Test.Leaving", "Leaving", "1.0"});
    fixture->exportApp({"org.zephrane.Test.LeavingWide", "Leaving Wide", "1.0"});
    fixture->install("org.zephrane.Test.Leaving");
    fixture->install("org.zephrane.Test.LeavingWide", FlatpakFixture::Scope::system);
    TestSupport::TempTree home;
    const AppInventory::Sources sources{.home = URL::file(home.root().string()), .flatpaks = true};
    const auto apps = AppInventory::installedApps({}, sources);
    const auto app = std::ranges::find(apps, std::optional<std::string>("org.zephrane.Test.Leaving"),
                                       &InstalledApp::bundleID);
    ASSERT_NE(app, apps.end());

    EXPECT_EQ(Platform::uninstallFlatpak(app->url.path()), std::nullopt);
    std::string listed;
    FlatpakFixture::run({"flatpak", "list", "--user", "--app", "--columns=application"}, listed);
    EXPECT_EQ(listed.find("org.zephrane.Test.Leaving"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(app->url.path()));

    // A system installation is found among the system ones (as root no password is asked).
    const auto wide = std::ranges::find(apps, std::optional<std::string>("org.zephrane.Test.LeavingWide"),
                                        &InstalledApp::bundleID);
    ASSERT_NE(wide, apps.end());
    EXPECT_EQ(wide->kind, AppKind::flatpakSystem);
    EXPECT_EQ(Platform::uninstallFlatpak(wide->url.path()), std::nullopt);
    FlatpakFixture::run({"flatpak", "list", "--system", "--app", "--columns=application"}, listed);
    EXPECT_EQ(listed.find("org.zephrane.Test.LeavingWide"), std::string::npos);

    // A second try has a plain reason, not an error code.
    EXPECT_EQ(Platform::uninstallFlatpak(app->url.path()),
              CoreL10n::string("core.uninstall.failure.notInstalled"));
}
