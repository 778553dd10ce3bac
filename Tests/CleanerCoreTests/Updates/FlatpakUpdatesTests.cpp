#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Platform/FlatpakUpdates.hpp"
#include "CleanerCore/Updates/AppUpdateFinder.hpp"
#include "CannedFetcher.hpp"
#include "FlatpakFixture.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace CleanerCore;

namespace {

const Platform::FlatpakUpdate* findUpdate(const std::vector<Platform::FlatpakUpdate>& updates, const std::string& id) {
    for (const auto& update : updates)
        if (update.id == id)
            return &update;
    return nullptr;
}

} // namespace

TEST(FlatpakUpdates, OffersTheRemotesNewerCommitWithItsAppStreamVersion) {
    REQUIRE_FLATPAK(fixture);
    const std::string id = "org.zephrane.Test.Updatable";
    const std::string current = "org.zephrane.Test.Current";
    fixture->exportApp({id, "Updatable", "1.0"});
    fixture->exportApp({current, "Current", "4.2"});
    fixture->install(id);
    fixture->install(current);
    EXPECT_EQ(findUpdate(Platform::flatpakUpdates(true), id), nullptr) << "nothing newer is known yet";
    fixture->exportApp({id, "Updatable", "2.0"});

    const auto updates = Platform::flatpakUpdates(false);
    const auto* update = findUpdate(updates, id);
    ASSERT_NE(update, nullptr);
    EXPECT_EQ(update->installedVersion, "1.0");
    EXPECT_EQ(update->offeredVersion, "2.0") << "read from the remote's refreshed AppStream data";
    EXPECT_NE(update->offeredCommit, update->installedCommit);
    EXPECT_TRUE(update->installation.isUser);
    EXPECT_EQ(findUpdate(updates, current), nullptr);
    EXPECT_NE(findUpdate(Platform::flatpakUpdates(true), id), nullptr) << "once seen, known offline too";

    // The finder asks the Flatpak source alone for Flatpak apps, and never the network for them.
    TestSupport::TempTree home;
    const AppInventory::Sources sources{.home = URL::file(home.root().string()), .flatpaks = true};
    const TestSupport::CannedFetcher network{}; // nothing answers
    AppUpdateFinder::Settings settings;
    settings.cacheFolder = home.path("cache").string();
    settings.caskroomFolders = {};
    const auto found = AppUpdateFinder(network, settings).updates(AppInventory::installedApps({}, sources));
    const auto mine = std::find_if(found.begin(), found.end(), [&](const AppUpdate& u) { return u.bundleID == id; });
    ASSERT_NE(mine, found.end());
    EXPECT_EQ(mine->source, AppUpdateSource::flatpak);
    EXPECT_EQ(mine->currentVersion, "1.0");
    EXPECT_EQ(mine->newVersion, "2.0");
    EXPECT_EQ(mine->name, "Updatable");

    fixture->update(id);
    EXPECT_EQ(findUpdate(Platform::flatpakUpdates(false), id), nullptr) << "updated: nothing left to offer";
}

TEST(FlatpakUpdates, AnUpdateTransactionDeploysTheOfferedVersion) {
    REQUIRE_FLATPAK(fixture);
    const std::string id = "org.zephrane.Test.Installable";
    fixture->exportApp({id, "Installable", "1.0"});
    fixture->install(id);
    fixture->exportApp({id, "Installable", "2.0"});
    const auto updates = Platform::flatpakUpdates(false);
    const auto* update = findUpdate(updates, id);
    ASSERT_NE(update, nullptr);

    const auto version = [&] {
        std::optional<std::string> found;
        for (const auto& installed : Platform::installedFlatpaks())
            if (installed.id == id)
                found = installed.version;
        return found;
    };
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_THROW(Platform::installFlatpakUpdate(*update, [](Platform::FlatpakUpdateStage) {}, stopped.get_token()),
                 Platform::FlatpakUpdateError);
    EXPECT_EQ(version(), "1.0") << "a stopped transaction leaves the old deployment";

    std::vector<Platform::FlatpakUpdateStage> stages;
    Platform::installFlatpakUpdate(*update, [&](Platform::FlatpakUpdateStage stage) { stages.push_back(stage); });
    EXPECT_THAT(stages, testing::ElementsAre(Platform::FlatpakUpdateStage::downloading,
                                             Platform::FlatpakUpdateStage::installing));
    EXPECT_EQ(version(), "2.0");
    EXPECT_EQ(findUpdate(Platform::flatpakUpdates(false), id), nullptr);

    fixture->uninstall(id);
    EXPECT_THROW(Platform::installFlatpakUpdate(*update, [](Platform::FlatpakUpdateStage) {}),
                 Platform::FlatpakUpdateError);
}
