#include "CleanerCore/Platform/RunningApplications.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <unistd.h>

using namespace CleanerCore::Platform;
using testing::ElementsAre;

namespace {

std::string infoPlist(const std::string& identifier, const std::string& name) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
           "<key>CFBundleIdentifier</key><string>" +
           identifier + "</string><key>CFBundleName</key><string>" + name + "</string></dict></plist>\n";
}

} // namespace

TEST(RunningApplications, BundlesComeFromTheExecutablesInnermostApp) {
    TestSupport::TempTree tree;
    const auto apps = tree.path("Applications");
    tree.text("Applications/Mail.app/Contents/Info.plist", infoPlist("com.example.mail", "Mail"));
    tree.text("Applications/Mail.app/Contents/MacOS/Mail", "");
    tree.text("Applications/Mail.app/Contents/Helpers/Sync.app/Contents/Info.plist",
              infoPlist("com.example.mail.sync", "Sync"));
    tree.text("Applications/Mail.app/Contents/Helpers/Sync.app/Contents/MacOS/sync", "");
    tree.text("Applications/Bare.app/Contents/MacOS/bare", ""); // no Info.plist

    const auto proc = tree.folder("proc");
    const auto process = [&](const std::string& pid, const std::string& comm,
                             const std::filesystem::path& exe) {
        tree.text("proc/" + pid + "/comm", comm + "\n");
        tree.symlink("proc/" + pid + "/exe", exe);
    };
    process("10", "Mail", apps / "Mail.app/Contents/MacOS/Mail");
    process("11", "sync", apps / "Mail.app/Contents/Helpers/Sync.app/Contents/MacOS/sync");
    process("12", "bash", "/usr/bin/bash (deleted)");
    process("13", "bare", apps / "Bare.app/Contents/MacOS/bare");
    tree.text("proc/14/comm", "kthreadd\n");   // no readable executable
    tree.folder("proc/15");                    // ended between listing and reading
    tree.text("proc/self/comm", "ignored\n");

    auto running = runningApplications(proc.string());
    std::ranges::sort(running, {}, &RunningApplication::pid);
    ASSERT_EQ(running.size(), 5u);
    EXPECT_EQ(running[0],
              (RunningApplication{10, "Mail", (apps / "Mail.app/Contents/MacOS/Mail").string(),
                                  "com.example.mail", (apps / "Mail.app").string(), std::nullopt, true}));
    EXPECT_EQ(running[1].bundleIdentifier, "com.example.mail.sync");
    EXPECT_EQ(running[1].bundlePath, (apps / "Mail.app/Contents/Helpers/Sync.app").string());
    EXPECT_EQ(running[2], (RunningApplication{12, "bash", "/usr/bin/bash", std::nullopt, std::nullopt}));
    EXPECT_EQ(running[3].name, "bare");
    EXPECT_EQ(running[3].bundleIdentifier, std::nullopt);
    EXPECT_EQ(running[4].executablePath, "");

    EXPECT_THAT(runningBundleIdentifiers(proc.string()),
                ElementsAre("com.example.mail", "com.example.mail.sync"));
    EXPECT_TRUE(runningApplications(tree.path("missing").string()).empty());
}

TEST(RunningApplications, FlatpakInstancesAndApplicationScopesNameTheirApps) {
    TestSupport::TempTree tree;
    const auto proc = tree.folder("proc");
    const auto process = [&](int pid, int parent, const std::string& unit) {
        tree.text("proc/" + std::to_string(pid) + "/comm", "proc" + std::to_string(pid) + "\n");
        tree.text("proc/" + std::to_string(pid) + "/status",
                  "Name:\tx\nUmask:\t0022\nState:\tS\nPPid:\t" + std::to_string(parent) + "\n");
        tree.text("proc/" + std::to_string(pid) + "/cgroup",
                  "0::/user.slice/user-1000.slice/user@1000.service/app.slice/" + unit + "\n");
    };
    process(20, 1, "app-flatpak-org.example.Viewer-4242.scope");
    tree.text("proc/20/root/.flatpak-info",
              "[Application]\nname = org.example.Viewer\nruntime=x\n[Instance]\nname=y\n");
    process(21, 20, "app-flatpak-org.example.Viewer-4242.scope");
    tree.text("proc/21/root/.flatpak-info", "[Application]\nname=org.example.Viewer\n");
    process(30, 1, "app-gnome-org.gnome.Terminal\\x2dPreview-777.scope");
    process(31, 30, "app-gnome-org.gnome.Terminal\\x2dPreview-777.scope");
    process(40, 1, "app-org.kde.dolphin@abc123.service");
    process(50, 1, "session-2.scope");

    auto running = runningApplications(proc.string());
    std::ranges::sort(running, {}, &RunningApplication::pid);
    ASSERT_EQ(running.size(), 6u);
    EXPECT_EQ(running[0].bundleIdentifier, "org.example.Viewer");
    EXPECT_TRUE(running[0].isRegular);
    EXPECT_EQ(running[1].bundleIdentifier, "org.example.Viewer");
    EXPECT_FALSE(running[1].isRegular) << "a child of the same app is a helper";
    EXPECT_EQ(running[2].bundleIdentifier, "org.gnome.Terminal-Preview");
    EXPECT_EQ(running[2].applicationUnit, "app-gnome-org.gnome.Terminal\\x2dPreview-777.scope");
    EXPECT_TRUE(running[2].isRegular);
    EXPECT_FALSE(running[3].isRegular);
    EXPECT_EQ(running[4].bundleIdentifier, "org.kde.dolphin");
    EXPECT_EQ(running[5].bundleIdentifier, std::nullopt);
    EXPECT_FALSE(running[5].isRegular);

    EXPECT_EQ(applicationIDOfUnit("app-firefox-123.scope"), "firefox");
    EXPECT_EQ(applicationIDOfUnit("app-gnome-firefox\\x2desr-123.scope"), "firefox-esr");
    EXPECT_EQ(applicationIDOfUnit("app-kde-google-chrome-123.scope"), "google-chrome");
    EXPECT_EQ(applicationIDOfUnit("app-.scope"), std::nullopt);
    EXPECT_EQ(applicationIDOfUnit("user@1000.service"), std::nullopt);
    EXPECT_EQ(applicationIDOfFlatpakInfo("[Instance]\nname=x\n"), std::nullopt);
}

TEST(RunningApplications, FindsThisProcessInTheRealProcTable) {
    const auto running = runningApplications();
    const auto self = std::ranges::find(running, static_cast<int>(::getpid()), &RunningApplication::pid);
    ASSERT_NE(self, running.end());
    EXPECT_THAT(self->executablePath, testing::EndsWith("CleanerCoreTests"));
    EXPECT_EQ(enclosingAppBundle("/opt/A.app/Contents/MacOS/a"), "/opt/A.app");
    EXPECT_EQ(enclosingAppBundle("/opt/.app/a"), std::nullopt);
    EXPECT_EQ(enclosingAppBundle("/usr/bin/a"), std::nullopt);
}
