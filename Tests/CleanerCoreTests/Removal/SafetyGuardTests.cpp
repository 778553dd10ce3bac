#include "CleanerCore/Removal/SafetyGuard.hpp"

#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace CleanerCore;
namespace fs = std::filesystem;

namespace {

// A home at a fixed, made-up place: these cases are decided on text alone.
const URL kHome = URL::file("/Users/ana");
const std::optional<URL> kBundle = URL::file("/Applications/Zephrane.app");

bool refused(const std::string& path, const URL& home = kHome) {
    return SafetyGuard::isProtected(URL::file(path), home, kBundle);
}

} // namespace

TEST(SafetyGuard, RefusesTheRootAndAnythingThatIsNoAbsoluteFileURL) {
    for (const URL& url : {URL::parse("file:///"), URL::parse("https://example.com/Users/ana/x"),
                           URL::file("relative/x"), URL::file(""), URL::file("//")}) {
        EXPECT_THROW(SafetyGuard::check(url, kHome, kBundle), SafetyGuard::Refusal) << url.absoluteString();
    }
    try {
        SafetyGuard::check(URL::parse("https://example.com/a/b/"), kHome, kBundle);
        FAIL();
    } catch (const SafetyGuard::Refusal& refusal) {
        EXPECT_EQ(refusal.path, "/a/b");
        EXPECT_EQ(refusal.localizedDescription("en"), "“/a/b” is protected and was not removed.");
    }
}

struct Case {
    const char* path;
    bool protectedPath;

    friend void PrintTo(const Case& row, std::ostream* out) { *out << row.path; }
};

// "Refused_Users_Shared", "Allowed_Users_Shared_x": readable, and the same on every build.
std::string caseName(const testing::TestParamInfo<Case>& row) {
    std::string name = row.param.protectedPath ? "Refused" : "Allowed";
    for (const char c : std::string_view(row.param.path))
        if (c == '/')
            name += '_';
        else if (std::isalnum(static_cast<unsigned char>(c)))
            name += c;
    return name;
}

class SafetyGuardTable : public testing::TestWithParam<Case> {};

TEST_P(SafetyGuardTable, DecidesOnTextAlone) {
    EXPECT_EQ(refused(GetParam().path), GetParam().protectedPath) << GetParam().path;
}

INSTANTIATE_TEST_SUITE_P(
    MacPlaces, SafetyGuardTable,
    testing::Values(
        Case{"/Users/Shared", true}, Case{"/Users/Shared/x", false}, Case{"/users/other/x", true},
        Case{"/Users/other", true}, Case{"/Users/ana/Downloads/file.zip", false},
        Case{"/Users/ana/Downloads", true}, Case{"/Users/ana/Downloads/", true},
        Case{"/Users/ana/Library/Caches", true}, Case{"/Users/ana/Library/Caches/com.example.app", false},
        Case{"/Users/ana/Library/Foo", true}, Case{"/Users/ana/Library/Foo/bar", false},
        Case{"/Users/ana/Library/Messages/chat.db", true},
        Case{"/Users/ana/Pictures/Photos Library.photoslibrary/database/x/y", true},
        Case{"/Users/ana/Pictures/Photos Library.photoslibrary2", false},
        Case{"/Users/ana/Library/Mobile Documents/com~apple~CloudDocs", true},
        Case{"/Users/ana/Library/Mobile Documents/com~apple~CloudDocs/a.txt", false},
        Case{"/Users/ana/Library/Preferences/ByHost", true},
        Case{"/Users/ana/Library/Preferences/ByHost/x.plist", false}, Case{"/Users/ana/LIBRARY/caches", true},
        Case{"/Users", true}, Case{"/", true}, Case{"/anything", true},
        Case{"/System/Library/Fonts/a.ttf", true}, Case{"/Library/Foo", true},
        Case{"/Library/Foo/bar", false}, Case{"/Library/Apple/x/y", true}, Case{"/private/var/db/x/y", true},
        Case{"/private/var/folders", true}, Case{"/private/var/folders/ab/cd", false},
        Case{"/Volumes/Backup", true}, Case{"/Volumes/Backup/.Trashes", true},
        Case{"/Volumes/Backup/.Trashes/501", true}, Case{"/Volumes/Backup/.Trashes/501/old.txt", false},
        Case{"/Volumes/Backup/photos/x.jpg", false},
        Case{"/Applications/Zephrane.app/Contents/MacOS/x", true}, Case{"/Applications/Other.app", false},
        Case{"/Users/ana/.ssh", true}, Case{"/Users/ana/.ssh/known_hosts", true},
        Case{"/Users/ana/.Trash", true}, Case{"/Users/ana/.Trash/old.txt", false}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    LinuxPlaces, SafetyGuardTable,
    testing::Values(
        Case{"/etc/passwd", true}, Case{"/boot/vmlinuz", true}, Case{"/proc/1/mem", true},
        Case{"/lib64/ld-linux-x86-64.so.2", true}, Case{"/libx32/a/b", true},
        Case{"/var/lib/dpkg/status", true}, Case{"/var/log", true}, Case{"/var/log/syslog.1", false},
        Case{"/mnt/disk", true}, Case{"/mnt/disk/old.iso", false}, Case{"/media/ana/USB", true},
        Case{"/media/ana/USB/old.iso", false}, Case{"/home/bob/x", true}, Case{"/root/.bashrc", true},
        Case{"/Users/ana/.gnupg/pubring.kbx", true}, Case{"/Users/ana/.config", true},
        Case{"/Users/ana/.config/app", false}, Case{"/Users/ana/.cache", true},
        Case{"/Users/ana/.cache/thumbnails", false}, Case{"/Users/ana/.local/share", true},
        Case{"/Users/ana/.local/share/Trash", true}, Case{"/Users/ana/.local/share/Trash/files", true},
        Case{"/Users/ana/.local/share/Trash/info", true},
        Case{"/Users/ana/.local/share/Trash/files/old.txt", false},
        Case{"/Users/ana/.local/share/Trash/info/old.txt.trashinfo", false}, Case{"/mnt/disk/.Trash", true},
        Case{"/mnt/disk/.Trash/1000", true}, Case{"/mnt/disk/.Trash/1000/files", true},
        Case{"/mnt/disk/.Trash/1000/files/a", false}, Case{"/mnt/disk/.Trash-1000", true},
        Case{"/mnt/disk/.Trash-1000/info", true}, Case{"/mnt/disk/.Trash-1000/info/a.trashinfo", false}),
    caseName);

TEST(SafetyGuard, OtherCaseAndDecomposedSpellingsGiveTheSameAnswers) {
    const URL composedHome = URL::file("/Users/jos\u00e9");
    const URL decomposedHome = URL::file("/Users/jose\u0301");
    for (const URL& home : {composedHome, decomposedHome}) {
        for (const char* prefix :
             {"/Users/jos\u00e9", "/Users/jose\u0301", "/USERS/JOS\u00c9", "/users/JOSE\u0301"}) {
            const std::string base(prefix);
            EXPECT_TRUE(refused(base + "/Library/Caches", home)) << base;
            EXPECT_TRUE(refused(base + "/LIBRARY/caches/", home)) << base;
            EXPECT_FALSE(refused(base + "/Library/Caches/com.example.app", home)) << base;
            EXPECT_TRUE(refused(base, home)) << base;
        }
    }
}

TEST(SafetyGuard, ResolvesTheParentButNeverTheLastComponent) {
    TestSupport::TempTree tree;
    const fs::path home = tree.folder("home");
    tree.symlink("home/x", "/System");
    tree.symlink("home/etc-link", "/etc");
    tree.symlink("home/to-downloads", home / "Downloads");
    tree.folder("home/Downloads/keep");
    const auto inHome = [&](const char* relative, const fs::path& homeAt) {
        return SafetyGuard::isProtected(URL::file((home / relative).string()), URL::file(homeAt),
                                        std::nullopt);
    };

    // Removing a link removes the link: where it points does not matter.
    const URL target =
        SafetyGuard::check(URL::file((home / "x").string()), URL::file(home.string()), std::nullopt);
    EXPECT_EQ(target.path(), (fs::canonical(home) / "x").string());
    // Through a link in the parent, the real place decides.
    EXPECT_TRUE(inHome("etc-link/passwd", home));
    EXPECT_FALSE(inHome("to-downloads/keep", home));
    // The home reached through a link is the same home.
    EXPECT_TRUE(inHome("Documents", tree.symlink("home-link", home)));

    // A parent the caller has resolved itself is taken as given, and decides like a resolved one.
    const URL inLink = URL::file((home / "etc-link/passwd").string());
    EXPECT_TRUE(
        SafetyGuard::isProtected(inLink, std::string("/etc"), URL::file(home.string()), std::nullopt));
    EXPECT_FALSE(SafetyGuard::isProtected(inLink, (home / "Downloads").string(), URL::file(home.string()),
                                          std::nullopt));
    EXPECT_TRUE(SafetyGuard::isProtected(URL::file((home / "Downloads/Documents").string()), home.string(),
                                         URL::file(home.string()), std::nullopt));
}

TEST(SafetyGuard, NamesThatAreNoUTF8NeverFoldAlike) {
    EXPECT_NE(SafetyGuard::folded("/home/a\x80"), SafetyGuard::folded("/home/a\x81"));
    EXPECT_NE(SafetyGuard::folded("/home/a\x80"), SafetyGuard::folded("/home/a\xef\xbf\xbd"));
    EXPECT_EQ(SafetyGuard::folded("/HOME/\xc3\x89\x80/"), "/home/\xc3\xa9\x80");
}

// Another user's home that differs from ours only in case, or in a byte that is no UTF-8, is
// someone else's on a case-sensitive file system. Checked on real folders: a private tmpfs on /home
// in a mount namespace of a child process, so nothing outside the test sees it.
TEST(SafetyGuard, OtherUsersHomesAreComparedAsTheFileSystemDoes) {
    if (::geteuid() != 0 || !fs::is_directory("/home"))
        GTEST_SKIP() << "needs root and a /home to mount over";
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto child = [] {
        if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("zephrane-test", "/home", "tmpfs", 0, nullptr) != 0) {
            std::fprintf(stderr, "no private mount\n");
            std::exit(2);
        }
        for (const char* folder : {"/home/ana", "/home/Ana", "/home/b\x80", "/home/b\x81"})
            fs::create_directory(folder);
        const auto refusedFor = [](const char* home, const char* path) {
            return SafetyGuard::isProtected(URL::file(path), URL::file(home), std::nullopt);
        };
        // Where nothing stands at the other spelling, nothing of anyone's is there: text decides.
        const bool right = !refusedFor("/home/ana", "/home/ana/x") && refusedFor("/home/ana", "/home/Ana/x") &&
                           refusedFor("/home/Ana", "/home/ana/x") && !refusedFor("/home/ana", "/home/ANA/x") &&
                           !refusedFor("/home/b\x80", "/home/b\x80/x") &&
                           refusedFor("/home/b\x80", "/home/b\x81/x");
        std::fprintf(stderr, right ? "as the file system\n" : "folded\n");
        std::exit(right ? 0 : 1);
    };
    EXPECT_EXIT(child(), testing::ExitedWithCode(0), "as the file system");
}

TEST(SafetyGuard, TheRunningProgramProtectsItsOwnFileNotTheFolderItStartedFrom) {
    const std::optional<URL>& own = SafetyGuard::runningAppBundle();
    ASSERT_TRUE(own.has_value());
    const fs::path program = fs::canonical("/proc/self/exe");
    EXPECT_EQ(own->path(), program.string());
    TestSupport::TempTree tree;
    const URL home = URL::file(tree.folder("home").string());
    EXPECT_TRUE(SafetyGuard::isProtected(URL::file(program.string()), home, own));
    EXPECT_TRUE(SafetyGuard::isProtected(URL::file(program.parent_path().string()), home, own));
    // A file beside the program is judged as if the program were elsewhere.
    const URL beside = URL::file((program.parent_path() / "beside.txt").string());
    EXPECT_EQ(SafetyGuard::isProtected(beside, home, own), SafetyGuard::isProtected(beside, home, std::nullopt));
}
