#include "CleanerCore/Platform/FreedesktopTrash.hpp"

#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

using namespace CleanerCore::Platform;
namespace fs = std::filesystem;

namespace {

// Items on a volume other than the home's: the data home sits in a tmpfs, and the temporary tree
// is declared a mount point of its own so that its top-directory trash is used.
class VolumeTrash : public testing::Test {
protected:
    void SetUp() override {
        struct stat shm, tmp;
        if (::stat("/dev/shm", &shm) != 0 || ::stat(volume.root().c_str(), &tmp) != 0 ||
            shm.st_dev == tmp.st_dev || ::access("/dev/shm", W_OK) != 0)
            GTEST_SKIP() << "needs a writable /dev/shm on a volume of its own";
        char pattern[] = "/dev/shm/zephrane-data-XXXXXX";
        ASSERT_NE(::mkdtemp(pattern), nullptr);
        dataHome = pattern;
    }
    void TearDown() override {
        if (!dataHome.empty())
            fs::remove_all(dataHome);
    }

    FreedesktopTrash trash() const {
        return FreedesktopTrash(dataHome, {{"/", 0, "ext4"}, {volume.root(), 0, "ext4"}});
    }
    std::string uid() const { return std::to_string(::getuid()); }

    TestSupport::TempTree volume;
    fs::path dataHome;
};

} // namespace

TEST_F(VolumeTrash, UsesTheUsersOwnTopDirectoryTrashWithRelativePaths) {
    const fs::path item = volume.file("photos/a b.jpg", 3);
    EXPECT_EQ(trash().trash(item.string()).error, 0);
    const fs::path bin = volume.path(".Trash-" + uid());
    EXPECT_TRUE(fs::exists(bin / "files/a b.jpg"));
    EXPECT_TRUE(TestSupport::readText(bin / "info/a b.jpg.trashinfo")
                    .starts_with("[Trash Info]\nPath=photos/a%20b.jpg\n"));
    EXPECT_EQ(fs::status(bin).permissions(), fs::perms::owner_all);
    EXPECT_FALSE(fs::exists(dataHome / "Trash/files/a b.jpg"));
}

TEST_F(VolumeTrash, PrefersASharedStickyTrashButNeverALinkOrAnUnstickyOne) {
    const fs::path shared = volume.folder(".Trash");
    fs::permissions(shared, fs::perms::all | fs::perms::sticky_bit);
    EXPECT_EQ(trash().trash(volume.file("a.txt", 1).string()).error, 0);
    EXPECT_TRUE(fs::exists(shared / uid() / "files/a.txt"));

    fs::permissions(shared, fs::perms::all); // no sticky bit: anyone could swap the user's folder
    EXPECT_EQ(trash().trash(volume.file("b.txt", 1).string()).error, 0);
    EXPECT_TRUE(fs::exists(volume.path(".Trash-" + uid() + "/files/b.txt")));

    fs::remove_all(shared);
    const fs::path elsewhere = volume.folder("elsewhere");
    fs::permissions(elsewhere, fs::perms::all | fs::perms::sticky_bit);
    fs::create_directory_symlink(elsewhere, shared);
    EXPECT_EQ(trash().trash(volume.file("c.txt", 1).string()).error, 0);
    EXPECT_TRUE(fs::exists(volume.path(".Trash-" + uid() + "/files/c.txt")));
    EXPECT_TRUE(fs::is_empty(elsewhere));
}

TEST_F(VolumeTrash, AVolumeWithoutAUsableTrashKeepsTheItem) {
    const fs::path item = volume.file("a.txt", 1);
    TestSupport::FaultySystemCalls calls;
    calls.mkdirFault = [](const char* name) {
        return std::string_view(name).starts_with(".Trash") ? EACCES : 0;
    };
    ScopedSystemCalls installed(calls);
    EXPECT_EQ(trash().trash(item.string()),
              RemovalResult::noTrash(EXDEV, volume.path(".Trash-" + uid()).string()));
    EXPECT_TRUE(fs::exists(item));
}

TEST(FreedesktopTrash, InfoTextFollowsTheTrashFormat) {
    using namespace std::chrono;
    const auto when = sys_days{year{2026} / 1 / 2} + hours{3} + minutes{4} + seconds{5};
    const std::string text = FreedesktopTrash::infoText("/a b/\u00e9", when);
    EXPECT_TRUE(text.starts_with("[Trash Info]\nPath=/a%20b/%C3%A9\nDeletionDate=2026-01-0")) << text;
    EXPECT_EQ(text.size(),
              std::string("[Trash Info]\nPath=/a%20b/%C3%A9\nDeletionDate=2026-01-02T03:04:05\n").size());
}

TEST(FreedesktopTrash, VeryLongNamesStillGetAnInfoFile) {
    TestSupport::TempTree tree;
    const std::string name = std::string(250, 'x') + ".txt";
    const fs::path item = tree.file(name, 1);
    FreedesktopTrash trash((tree.root() / "data").string());
    ASSERT_EQ(trash.trash(item.string()).error, 0);
    std::size_t infos = 0;
    for (const auto& entry : fs::directory_iterator(tree.path("data/Trash/info"))) {
        EXPECT_LE(entry.path().filename().string().size(), 255u);
        ++infos;
    }
    EXPECT_EQ(infos, 1u);
}
