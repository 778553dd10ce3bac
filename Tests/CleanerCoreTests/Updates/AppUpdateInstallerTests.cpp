#include "CannedFetcher.hpp"
#include "CleanerCore/Updates/AppUpdateInstaller.hpp"
#include "CleanerCore/Updates/SpawnCommandRunner.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

using namespace CleanerCore;
using Failure = AppUpdateInstaller::Failure;
using Kind = Failure::Kind;
using Stage = AppUpdateInstaller::Stage;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

namespace {

std::string infoPlist(const std::string& identifier, const std::string& version) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
           "<key>CFBundleIdentifier</key><string>" +
           identifier + "</string><key>CFBundleShortVersionString</key><string>" + version +
           "</string></dict></plist>\n";
}

void makeApp(const TestSupport::TempTree& tree, const std::string& relative, const std::string& identifier,
             const std::string& version) {
    tree.text(relative + "/Contents/Info.plist", infoPlist(identifier, version));
    tree.text(relative + "/Contents/MacOS/run", version);
}

std::optional<std::string> versionAt(const fs::path& app) {
    auto info = AppBundleInfo::fromBundle(URL::file(app.string()));
    return info ? info->shortVersion : std::nullopt;
}

// Unpacks by copying a prepared tree where the tool would write; answers the checks with canned
// statuses by tool, and records every call.
class FakeRunner final : public CommandRunning {
public:
    fs::path payload; // what the archive holds
    std::map<std::string, CommandResult> answers;
    mutable std::vector<std::string> calls;
    bool realUnpack = false; // run the unpacking and copying tools themselves

    CommandResult run(const std::string& path, const std::vector<std::string>& arguments,
                      std::chrono::milliseconds timeout) const override {
        const std::string tool = fs::path(path).filename().string();
        calls.push_back(tool);
        if (realUnpack && (tool == "bsdtar" || tool == "cp"))
            return SpawnCommandRunner().run(path, arguments, timeout);
        if (const auto found = answers.find(tool); found != answers.end() && found->second.status != 0)
            return found->second;
        if (tool == "bsdtar")
            fs::copy(payload, arguments.at(4), fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        else if (tool == "7z")
            fs::copy(payload, arguments.at(2).substr(2),
                     fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        else if (tool == "cp")
            fs::copy(arguments.at(2), arguments.at(3),
                     fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        const auto found = answers.find(tool);
        return found == answers.end() ? CommandResult{} : found->second;
    }
};

// An installed Foo 1.0, a download that holds Foo 2.0, and an installer whose tools all pass.
struct Fixture {
    TestSupport::TempTree tree;
    FakeRunner runner;
    TestSupport::CannedFetcher fetcher;
    AppUpdateInstaller installer{fetcher, runner};
    AppUpdate update;
    std::vector<URL> trashed;

    Fixture() {
        makeApp(tree, "Applications/Foo.app", "org.example.foo", "1.0");
        makeApp(tree, "payload/Foo.app", "org.example.foo", "2.0");
        runner.payload = tree.path("payload");
        fetcher.archive = tree.text("Foo.zip", "PK\x03\x04 zipped");
        installer.workFolder = URL::file(tree.path("work").string());
        installer.trash = [this](const URL& url) {
            trashed.push_back(url);
            AppUpdateInstaller::moveToTrash(url);
        };
        installer.tools.signature = "/usr/bin/codesign";
        installer.tools.assessment = "/usr/sbin/spctl";
        installer.tools.team = "/usr/bin/codesign-team";
        runner.answers["codesign-team"] = {0, "", "Identifier=org.example.foo\nTeamIdentifier=ABCDE12345\n"};
        update = AppUpdate::forApp(*AppBundleInfo::fromBundle(URL::file(installed().string())),
                                   AppUpdateSource::sparkle, "2.0");
        update.downloadURL = URL::parse("https://example.org/Foo.zip");
    }

    fs::path installed() const { return tree.path("Applications/Foo.app"); }

    std::optional<Kind> install(bool running = false) {
        try {
            installer.install(
                update, [&](const std::string&) { return running; }, [](Stage) {});
        } catch (const Failure& failure) {
            return failure.kind();
        }
        return std::nullopt;
    }

    // The old app stands as it was; no incoming copy and no job folder are left behind.
    void expectUntouched() const {
        EXPECT_EQ(versionAt(installed()), "1.0");
        expectNothingLeftOver();
    }

    void expectNothingLeftOver() const {
        EXPECT_THAT(TestSupport::namesIn(tree.path("Applications")), ElementsAre("Foo.app"));
        EXPECT_TRUE(!fs::exists(tree.path("work")) || fs::is_empty(tree.path("work")));
    }
};

} // namespace

TEST(AppUpdateInstaller, TellsArchivesByContentBeforeName) {
    TestSupport::TempTree tree;
    std::string image(600, 'x');
    image.replace(image.size() - 512, 4, "koly");
    const auto kindOf = [&](const char* name, const std::string& content) {
        return AppUpdateInstaller::archiveKind(URL::file(tree.text(name, content).string()));
    };
    EXPECT_EQ(kindOf("image.zip", image), AppUpdateInstaller::ArchiveKind::diskImage);
    EXPECT_EQ(kindOf("archive", std::string("PK\x03\x04rest", 8)), AppUpdateInstaller::ArchiveKind::zip);
    EXPECT_EQ(kindOf("small.DMG", "koly"), AppUpdateInstaller::ArchiveKind::diskImage)
        << "too small: by name";
    EXPECT_EQ(kindOf("notes.txt", image + "y"), std::nullopt) << "trailer off by one";
    EXPECT_EQ(AppUpdateInstaller::archiveKind(URL::file(tree.path("missing.zip").string())), std::nullopt);
}

TEST(AppUpdateInstaller, FindsTheAppAtMostOneFolderDownWithoutFollowingLinks) {
    TestSupport::TempTree tree;
    AppUpdate update;
    update.appURL = URL::file("/Applications/Foo.app");
    update.bundleID = "org.example.foo";
    const auto found = [&](const char* folder) -> std::optional<std::string> {
        auto app = AppUpdateInstaller::findApp(URL::file(tree.path(folder).string()), update);
        return app ? std::optional(app->path().substr(tree.path(folder).string().size())) : std::nullopt;
    };

    makeApp(tree, "root/Foo.app", "org.example.foo", "2");
    makeApp(tree, "elsewhere/Deep.app", "org.example.foo", "2");
    tree.symlink("root/Applications", tree.path("elsewhere"));
    EXPECT_EQ(found("root"), "/Foo.app");

    makeApp(tree, "sub/Volume/Renamed.app", "org.example.foo", "2");
    makeApp(tree, "sub/Volume/Other.app", "org.example.other", "2");
    EXPECT_EQ(found("sub"), "/Volume/Renamed.app") << "the identifier wins over names";

    makeApp(tree, "deep/a/b/Foo.app", "org.example.foo", "2");
    EXPECT_EQ(found("deep"), std::nullopt);
    tree.symlink("link/Applications", tree.path("elsewhere"));
    EXPECT_EQ(found("link"), std::nullopt) << "a link to a folder of apps is never entered";

    makeApp(tree, "named/Foo.app", "org.example.impostor", "2");
    EXPECT_EQ(found("named"), "/Foo.app") << "the installed name is the fallback";
    makeApp(tree, "lone/Bar.app", "org.example.bar", "2");
    EXPECT_EQ(found("lone"), std::nullopt);
}

TEST(AppUpdateInstaller, ReadsTheTeamFromCodesignDetails) {
    EXPECT_EQ(AppUpdateInstaller::teamID("Executable=/x\nTeamIdentifier=\t AB12 \nTeamIdentifier=ZZ\n"),
              "AB12");
    EXPECT_EQ(AppUpdateInstaller::teamID("TeamIdentifier=not set\n"), std::nullopt);
    EXPECT_EQ(AppUpdateInstaller::teamID("TeamIdentifier=  \n"), std::nullopt);
    EXPECT_EQ(AppUpdateInstaller::teamID(" TeamIdentifier=AB12"), std::nullopt) << "only at a line's start";
}

TEST(AppUpdateInstaller, SwapsInTheNewVersionAndTrashesTheOldOne) {
    Fixture fixture;
    std::vector<Stage> stages;
    fixture.installer.install(
        fixture.update, [](const std::string&) { return false; },
        [&](Stage stage) { stages.push_back(stage); });
    EXPECT_THAT(stages, ElementsAre(Stage::downloading, Stage::verifying, Stage::installing));
    EXPECT_EQ(versionAt(fixture.installed()), "2.0");
    ASSERT_EQ(fixture.trashed.size(), 1u);
    EXPECT_EQ(fixture.trashed[0].lastPathComponent(), "Foo 1.0.app");
    EXPECT_FALSE(fs::exists(fixture.trashed[0].path()));
    EXPECT_THAT(fixture.runner.calls,
                ElementsAre("bsdtar", "codesign", "spctl", "codesign-team", "codesign-team"));
    fixture.expectNothingLeftOver();
}

TEST(AppUpdateInstaller, UnpacksDiskImagesWithTheirTool) {
    Fixture fixture;
    fixture.fetcher.archive = fixture.tree.text("Foo.dmg", "not a zip");
    fixture.update.downloadURL = URL::parse("https://example.org/Foo.dmg");
    fixture.installer.tools.imageUnpack = "/usr/bin/7z";
    fs::create_directories(fixture.tree.path("payload/Volume Foo"));
    fs::rename(fixture.tree.path("payload/Foo.app"), fixture.tree.path("payload/Volume Foo/Foo.app"));
    EXPECT_EQ(fixture.install(), std::nullopt);
    EXPECT_EQ(versionAt(fixture.installed()), "2.0");
    EXPECT_THAT(fixture.runner.calls, testing::Contains("cp"));
}

// Each way an install can fail leaves the installed app and its folder as they were.
TEST(AppUpdateInstaller, EveryFailureLeavesTheInstalledAppUntouched) {
    struct Case {
        const char* name;
        std::function<void(Fixture&)> arrange;
        Kind expected;
        std::vector<std::string> calls; // empty: not checked
    };
    const auto answer = [](const char* tool, CommandResult result) {
        return [tool, result](Fixture& f) { f.runner.answers[tool] = result; };
    };
    const auto download = [](const char* name) {
        return [name](Fixture& f) { f.fetcher.archive = f.tree.text(name, "not a zip"); };
    };
    const auto packed = [](const char* version, const char* identifier = "org.example.foo") {
        return [=](Fixture& f) {
            f.tree.text("payload/Foo.app/Contents/Info.plist", infoPlist(identifier, version));
        };
    };
    const auto failOnRename = [](int which) {
        return [which](Fixture& f) {
            f.installer.moves.rename = [which, count = 0](const std::string& from,
                                                          const std::string& to) mutable {
                if (++count == which)
                    throw std::system_error(EXDEV, std::generic_category());
                fs::rename(from, to);
            };
        };
    };
    const std::vector<Case> cases{
        {"plain http",
         [](Fixture& f) { f.update.downloadURL = URL::parse("http://example.org/Foo.zip"); },
         Kind::noDownload,
         {}},
        {"not an archive", download("Foo.tar"), Kind::unsupportedArchive, {}},
        {"disk image without its tool", download("Foo.dmg"), Kind::unsupportedArchive, {}},
        {"unpack fails", answer("bsdtar", {1, "", "damaged"}), Kind::commandFailed, {}},
        {"empty archive",
         [](Fixture& f) { fs::remove_all(f.tree.path("payload/Foo.app")); },
         Kind::noAppInArchive,
         {}},
        {"another app by that name", packed("2.0", "org.example.bad"), Kind::bundleIDMismatch, {"bsdtar"}},
        {"same version as the feed claims newer", packed("1.0"), Kind::notNewer, {"bsdtar"}},
        {"bad signature", answer("codesign", {1, "", ""}), Kind::signatureInvalid, {"bsdtar", "codesign"}},
        {"no signature tools on this system",
         [](Fixture& f) { f.installer.tools = AppUpdateInstaller::Tools::installed(); },
         Kind::signatureInvalid,
         {}},
        {"not notarized",
         answer("spctl", {3, "", "rejected"}),
         Kind::notNotarized,
         {"bsdtar", "codesign", "spctl"}},
        {"no team", answer("codesign-team", {0, "", "TeamIdentifier=not set"}), Kind::teamMismatch, {}},
        {"running", [](Fixture&) {}, Kind::appRunning, {}},
        {"copy fails",
         [](Fixture& f) {
             f.installer.moves.copy = [](const std::string& from, const std::string& to) {
                 fs::create_directories(to);
                 fs::copy(from + "/Contents", to + "/Contents", fs::copy_options::recursive);
                 throw std::system_error(ENOSPC, std::generic_category());
             };
         },
         Kind::swapFailed,
         {}},
        {"moving the old copy aside fails", failOnRename(1), Kind::swapFailed, {}},
        {"moving the new copy in fails", failOnRename(2), Kind::swapFailed, {}},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.name);
        Fixture fixture;
        test.arrange(fixture);
        EXPECT_EQ(fixture.install(std::string_view(test.name) == "running"), test.expected);
        if (!test.calls.empty()) {
            EXPECT_EQ(fixture.runner.calls, test.calls);
        }
        fixture.expectUntouched();
    }
}

TEST(AppUpdateInstaller, AStopDuringTheDownloadEndsBeforeAnythingIsUnpacked) {
    Fixture fixture;
    std::stop_source stop;
    EXPECT_THROW(fixture.installer.install(
                     fixture.update, [](const std::string&) { return false; },
                     [&](Stage stage) {
                         if (stage == Stage::downloading)
                             stop.request_stop();
                     },
                     stop.get_token()),
                 AppUpdateInstaller::OperationCancelled);
    EXPECT_THAT(fixture.runner.calls, IsEmpty());
    fixture.expectUntouched();
}

TEST(AppUpdateInstaller, ATakenBackupNameGetsATag) {
    Fixture fixture;
    fixture.tree.text("Applications/Foo 1.0.app", "someone else's");
    ASSERT_EQ(fixture.install(), std::nullopt);
    EXPECT_EQ(TestSupport::readText(fixture.tree.path("Applications/Foo 1.0.app")), "someone else's");
    ASSERT_EQ(fixture.trashed.size(), 1u);
    EXPECT_THAT(fixture.trashed[0].lastPathComponent(), testing::MatchesRegex("Foo 1\\.0 [0-9A-F]{8}\\.app"));
}

TEST(AppUpdateInstaller, ReportsAFailingToolByNameAndItsFirstError) {
    Fixture fixture;
    fixture.runner.answers["bsdtar"] = {2, "", std::string(300, 'e')};
    try {
        fixture.installer.run("/usr/bin/bsdtar", {}, std::chrono::seconds(1));
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure, Failure(Kind::commandFailed, "bsdtar: " + std::string(200, 'e')));
    }
}

TEST(AppUpdateInstaller, UnpacksARealZipKeepingLinksInsideTheBundle) {
    if (!fs::exists("/usr/bin/bsdtar"))
        GTEST_SKIP() << "bsdtar is not installed";
    Fixture fixture;
    fixture.tree.folder("payload/Foo.app/Contents/Frameworks/A");
    fixture.tree.symlink("payload/Foo.app/Contents/Frameworks/Current", "A");
    const auto zipped =
        SpawnCommandRunner().run("/usr/bin/bsdtar",
                                 {"--format", "zip", "-cf", fixture.tree.path("Foo download").string(), "-C",
                                  fixture.runner.payload.string(), "Foo.app"},
                                 std::chrono::seconds(30));
    ASSERT_EQ(zipped.status, 0) << zipped.standardError;
    fixture.fetcher.archive = fixture.tree.path("Foo download");
    fixture.runner.realUnpack = true;

    ASSERT_EQ(fixture.install(), std::nullopt);
    EXPECT_EQ(versionAt(fixture.installed()), "2.0");
    EXPECT_EQ(fs::read_symlink(fixture.installed() / "Contents/Frameworks/Current"), "A");
    fixture.expectNothingLeftOver();
}
