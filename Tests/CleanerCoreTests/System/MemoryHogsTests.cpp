#include "CleanerCore/System/MemoryHogs.hpp"
#include "CleanerCore/System/ProcessMemory.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <map>
#include <vector>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using CleanerCore::RunningAppInfo;
using CleanerCore::MemoryHog;
namespace MemoryHogs = CleanerCore::MemoryHogs;

namespace {

constexpr std::int32_t ownPID = 500;
const std::optional<std::string> ownID = "dev.tavrix.zephrane";

RunningAppInfo bundle(std::int32_t pid, std::optional<std::string> id, std::optional<std::string> path,
                    bool regular = true) {
    return {pid, "App " + std::to_string(pid), std::move(id), std::move(path), regular};
}

// A Flatpak instance or the leader of an application scope: an id and no bundle.
RunningAppInfo linuxApp(std::int32_t pid, std::optional<std::string> id, bool regular = true) {
    return bundle(pid, std::move(id), std::nullopt, regular);
}

} // namespace

TEST(MemoryHogs, OnlyRegularApplicationsOutsideTheSystemAndTheDesktopAreQuittable) {
    const auto quittable = [](const RunningAppInfo& app) { return MemoryHogs::isQuittable(app, ownPID, ownID); };
    EXPECT_TRUE(quittable(bundle(10, "com.example.foo", "/Applications/Foo.app")));
    EXPECT_TRUE(quittable(bundle(10, "com.example.foo", "/Applications/Foo.app/")));
    EXPECT_TRUE(quittable(bundle(10, std::nullopt, "/opt/Foo.app")));
    EXPECT_TRUE(quittable(bundle(10, "com.apple.Safari", "/Applications/Safari.app")))
        << "only the listed identifiers protect";
    EXPECT_TRUE(quittable(linuxApp(10, "org.mozilla.firefox")));

    EXPECT_FALSE(quittable(bundle(10, "com.example.foo", "/Applications/Foo.app", false)));
    EXPECT_FALSE(quittable(linuxApp(10, "org.mozilla.firefox", false)));
    EXPECT_FALSE(quittable(bundle(10, "com.example.foo", "/usr/local/Foo.app")));
    EXPECT_FALSE(quittable(bundle(10, "com.apple.Music", "/System/Applications/Music.app")));
    EXPECT_FALSE(quittable(bundle(10, "com.example.foo", "/Applications/Foo")));
    EXPECT_FALSE(quittable(linuxApp(10, std::nullopt))) << "an application without a bundle is known by its id";

    EXPECT_FALSE(quittable(linuxApp(ownPID, "org.example.other"))) << "this program, by pid";
    EXPECT_FALSE(quittable(linuxApp(10, ownID))) << "this program, by id";
    EXPECT_FALSE(quittable(linuxApp(0, "org.example.a")));
    EXPECT_FALSE(quittable(linuxApp(1, "org.example.a")));
    for (const char* shell : {"org.gnome.Shell", "org.kde.plasmashell", "org.gnome.Nautilus", "Xwayland"})
        EXPECT_FALSE(quittable(linuxApp(10, shell))) << shell;
    EXPECT_FALSE(quittable(bundle(10, "com.apple.finder", "/Applications/Finder.app")));
    EXPECT_TRUE(quittable(bundle(10, "com.apple.Finder", "/Applications/Finder.app"))) << "case counts";
    EXPECT_TRUE(MemoryHogs::isQuittable(linuxApp(10, "org.example.a"), ownPID, std::nullopt));
}

TEST(MemoryHogs, TopRanksByFootprintLargestFirstAndKeepsTiesInOrder) {
    const std::vector<RunningAppInfo> apps{linuxApp(10, "org.example.a"), linuxApp(11, "org.example.b"),
                                         linuxApp(12, "org.example.gone"), linuxApp(13, "org.gnome.Shell"),
                                         linuxApp(14, "org.example.c"), linuxApp(15, "org.example.d")};
    const std::map<std::int32_t, std::uint64_t> bytes{{10, 300}, {11, 900}, {13, 5000}, {14, 300}, {15, 100}};
    const auto footprint = [&bytes](std::int32_t pid) -> std::optional<std::uint64_t> {
        const auto found = bytes.find(pid);
        return found == bytes.end() ? std::nullopt : std::optional(found->second);
    };
    const auto pids = [&](int limit) {
        std::vector<std::int32_t> result;
        for (const MemoryHog& hog : MemoryHogs::top(apps, limit, ownPID, ownID, footprint))
            result.push_back(hog.app.pid);
        return result;
    };
    EXPECT_THAT(pids(3), testing::ElementsAre(11, 10, 14));
    EXPECT_THAT(pids(10), testing::ElementsAre(11, 10, 14, 15)) << "no minimum size";
    EXPECT_THAT(pids(0), testing::IsEmpty());
    EXPECT_THAT(pids(-1), testing::IsEmpty());
    EXPECT_EQ(MemoryHogs::top(apps, 1, ownPID, ownID, footprint), (std::vector<MemoryHog>{{apps[1], 900}}));
}

TEST(ProcessMemory, ChargesAnApplicationScopeAsAWholeAndOtherProcessesTheirAnonymousMemory) {
    TestSupport::TempTree tree;
    const std::string scope = "/user.slice/user-1000.slice/user@1000.service/app.slice/"
                              "app-gnome-org.mozilla.firefox-4242.scope";
    const std::string rollup = "55d0c0a00000-7ffd8a1f2000 ---p 00000000 00:00 0    [rollup]\n"
                               "Rss:              300000 kB\nPss:              250000 kB\n"
                               "Anonymous:        200000 kB\nSwap:               1000 kB\nSwapPss:             900 kB\n";
    tree.text("proc/20/cgroup", "0::" + scope + "\n");
    tree.text("proc/20/smaps_rollup", rollup);
    tree.text("sys/fs/cgroup" + scope + "/memory.current", "1500000000\n");
    // A terminal's shell sits in a scope of its own that is no application's.
    tree.text("proc/21/cgroup", "0::/user.slice/user-1000.slice/user@1000.service/app.slice/"
                                "vte-spawn-1234.scope\n");
    tree.text("proc/21/smaps_rollup", rollup);
    // An application scope whose cgroup can't be read (cgroup v1) falls back to the process alone.
    tree.text("proc/22/cgroup", "1:name=systemd:/x\n0::/app.slice/app-org.kde.kate-7.scope\n");
    tree.text("proc/22/smaps_rollup", "Anonymous: 10 kB\n");
    tree.text("proc/23/cgroup", "0::/\n"); // gone before its memory was read

    const auto usages = CleanerCore::ProcessMemory::footprints({22, 20, 23, 21, 24}, tree.path("proc").string(),
                                                               tree.path("sys").string());
    EXPECT_EQ(usages, (std::vector<CleanerCore::AppMemoryUsage>{
                          {22, 10 * 1024}, {20, 1'500'000'000}, {21, 201'000ull * 1024}}));
}

namespace {

// Child processes that only hold memory and wait; those not reaped by the test are ended with it.
class Children {
public:
    ~Children() {
        for (const pid_t pid : running) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, nullptr, 0);
        }
    }
    pid_t spawn(std::size_t bytes) {
        int ready[2];
        if (::pipe(ready) != 0)
            return -1;
        const pid_t pid = ::fork();
        if (pid == 0) {
            // Only async-signal-safe calls after fork in a threaded program.
            void* block = bytes ? ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)
                                : nullptr;
            for (std::size_t i = 0; block != nullptr && block != MAP_FAILED && i < bytes; i += 4096)
                static_cast<char*>(block)[i] = 1;
            (void)!::write(ready[1], "r", 1);
            for (;;)
                ::pause();
        }
        ::close(ready[1]);
        char byte = 0;
        const bool started = pid > 0 && ::read(ready[0], &byte, 1) == 1;
        ::close(ready[0]);
        if (pid > 0)
            running.push_back(pid);
        return started ? pid : -1;
    }
    // How the child ended; it is no longer ours to end.
    int reap(pid_t pid) {
        int status = 0;
        ::waitpid(pid, &status, 0);
        std::erase(running, pid);
        return status;
    }

private:
    std::vector<pid_t> running;
};

} // namespace

// A real process, ranked by what it really uses and then asked to quit.
TEST(MemoryHogs, RanksARealChildAndAsksItPolitelyToQuit) {
    constexpr std::size_t heldBytes = 64 << 20;
    Children children;
    const pid_t small = children.spawn(0), large = children.spawn(heldBytes);
    ASSERT_GT(small, 0);
    ASSERT_GT(large, 0);
    const std::vector<RunningAppInfo> apps{linuxApp(small, "org.example.Small"), linuxApp(large, "org.example.Large"),
                                         linuxApp(::getpid(), "org.example.Tests")};

    const auto hogs = MemoryHogs::top(apps, 3, ::getpid(), std::nullopt);
    ASSERT_EQ(hogs.size(), 2u) << "the program itself is never offered";
    EXPECT_EQ(hogs[0].app.pid, large);
    EXPECT_GE(hogs[0].bytes, heldBytes);
    EXPECT_EQ(hogs[1].app.pid, small);

    // A record that no longer matches (the pid went to another application) or has gone sends nothing.
    EXPECT_FALSE(MemoryHogs::quit(hogs[0], linuxApp(large, "org.example.Other"), ::getpid(), std::nullopt));
    EXPECT_FALSE(MemoryHogs::quit(hogs[0], std::nullopt, ::getpid(), std::nullopt));
    EXPECT_EQ(::waitpid(large, nullptr, WNOHANG), 0) << "still running";

    EXPECT_TRUE(MemoryHogs::quit(hogs[0], hogs[0].app, ::getpid(), std::nullopt));
    const int status = children.reap(large);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGTERM) << "asked, never forced";

    ::kill(small, SIGKILL);
    children.reap(small);
    EXPECT_FALSE(MemoryHogs::quit(hogs[1], hogs[1].app, ::getpid(), std::nullopt)) << "gone";
}
