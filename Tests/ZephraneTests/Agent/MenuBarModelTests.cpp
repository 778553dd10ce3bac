#include "Agent/MenuBarModel.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

using CleanerCore::RunningAppInfo;

namespace {

RunningAppInfo app(std::int32_t pid, const std::string& name) {
    return {pid, name, "org.example." + name, std::nullopt, true};
}

// Running applications and their sizes that a test changes between samples. Quit is never asked
// of these made-up pids.
struct FakeMachine {
    std::vector<RunningAppInfo> apps;
    std::map<std::int32_t, std::uint64_t> sizes;

    MenuBarModel::Sources sources() {
        MenuBarModel::Sources made;
        made.apps = [this] { return apps; };
        made.footprint = [this](std::int32_t pid) -> std::optional<std::uint64_t> {
            const auto found = sizes.find(pid);
            return found == sizes.end() ? std::nullopt : std::optional(found->second);
        };
        made.intervalMilliseconds = 40;
        return made;
    }
};

} // namespace

TEST(MenuBarModel, SamplesOnlyOnScreenAndEachUncoveringWaitsAnIntervalForRates) {
    FakeMachine machine;
    MenuBarModel menu(machine.sources());
    QSignalSpy samples(&menu, &MenuBarModel::snapshotChanged);

    QTest::qWait(150);
    EXPECT_EQ(samples.count(), 0) << "nothing runs before the popup is seen";
    EXPECT_FALSE(menu.isLive());

    menu.setOnScreen(true);
    EXPECT_TRUE(menu.isLive());
    EXPECT_FALSE(menu.hasRates()) << "memory and disk at once, rates only after an interval";
    EXPECT_GT(menu.snapshot().memoryTotal, 0u);
    QTRY_VERIFY_WITH_TIMEOUT(menu.hasRates(), 1000);

    menu.setOnScreen(false);
    EXPECT_FALSE(menu.isLive());
    EXPECT_FALSE(menu.hasRates());
    samples.clear();
    QTest::qWait(150);
    EXPECT_EQ(samples.count(), 0) << "covered or hidden, no timer fires";

    // Uncovering starts over with a new sampler: the rates wait again.
    menu.setOnScreen(true);
    EXPECT_FALSE(menu.hasRates());
    QTRY_VERIFY_WITH_TIMEOUT(menu.hasRates(), 1000);
    menu.setOnScreen(false);
}

TEST(MenuBarModel, APendingQuitIsDroppedOnCloseAndWhenItsHogLeavesTheTopThree) {
    FakeMachine machine;
    machine.apps = {app(10, "Alpha"), app(11, "Beta"), app(12, "Gamma"), app(13, "Delta")};
    machine.sizes = {{10, 400}, {11, 300}, {12, 200}, {13, 100}};
    MenuBarModel menu(machine.sources());
    menu.setOnScreen(true);
    ASSERT_EQ(menu.hogs().size(), 3u);
    EXPECT_EQ(menu.hogs().front().app.name, "Alpha");

    menu.setPendingQuit(12);
    machine.sizes[11] = 500; // reordering within the top three keeps the question
    QTRY_COMPARE_WITH_TIMEOUT(menu.hogs().front().app.name, std::string("Beta"), 1000);
    EXPECT_EQ(menu.pendingQuit(), 12);

    machine.sizes[13] = 900; // Gamma falls to fourth
    QTRY_COMPARE_WITH_TIMEOUT(menu.pendingQuit(), 0, 1000);
    EXPECT_EQ(menu.hogs().front().app.name, "Delta");

    menu.setPendingQuit(10);
    menu.setOnScreen(false);
    EXPECT_EQ(menu.pendingQuit(), 0);
}

TEST(MenuBarModel, RanksARealChildAndAsksItPolitelyToQuit) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::execl("/bin/sleep", "sleep", "30", static_cast<char*>(nullptr));
        ::_exit(127);
    }
    ASSERT_GT(child, 0);

    MenuBarModel::Sources sources;
    sources.apps = [child] { return std::vector<RunningAppInfo>{app(child, "Sleeper")}; };
    sources.intervalMilliseconds = 40;
    MenuBarModel menu(sources);
    QmlTestSupport::AnnouncementLog log;

    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(QStringLiteral("/proc/%1/smaps_rollup").arg(child)), 2000);
    menu.setOnScreen(true);
    ASSERT_EQ(menu.hogs().size(), 1u) << "its own footprint is read from /proc";
    EXPECT_EQ(menu.hogs().front().id(), child);
    EXPECT_GT(menu.hogs().front().bytes, 0u);

    menu.setPendingQuit(child);
    menu.quit(child);
    EXPECT_EQ(menu.pendingQuit(), 0);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGTERM) << "asked, never forced";
    EXPECT_EQ(log.said, QStringList{qtTrId("menubar.hogs.announce.quitting").arg("Sleeper")});
    menu.setOnScreen(false);
}
