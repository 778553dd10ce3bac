#include "CleanerCore/Platform/MountTable.hpp"

#include <gtest/gtest.h>

#include <sys/sysmacros.h>

using namespace CleanerCore::Platform;

TEST(MountTable, ReadsMountPointsWithEscapesAndOptionalFields) {
    const auto mounts = MountTable::parse(
        "22 1 254:1 / / rw,relatime shared:1 - ext4 /dev/vda1 rw\n"
        "36 22 8:17 / /media/ana/My\\040Disk rw,nosuid shared:7 master:2 - vfat /dev/sdb1 rw\n"
        "garbage line\n"
        "40 22 0:45 / /home rw - btrfs /dev/sdc rw\n");
    ASSERT_EQ(mounts.size(), 3u);
    EXPECT_EQ(mounts[0], (MountPoint{"/", makedev(254, 1), "ext4"}));
    EXPECT_EQ(mounts[1], (MountPoint{"/media/ana/My Disk", makedev(8, 17), "vfat"}));
    EXPECT_EQ(mounts[2].type, "btrfs");
}

TEST(MountTable, TheTopDirectoryIsTheLongestMountAboveThePath) {
    const std::vector<MountPoint> mounts{
        {"/", 1, "ext4"}, {"/media/ana/Disk", 2, "vfat"}, {"/home", 3, "ext4"}};
    EXPECT_EQ(MountTable::topDirectory("/media/ana/Disk/photos/a.jpg", mounts), "/media/ana/Disk");
    EXPECT_EQ(MountTable::topDirectory("/media/ana/Disk", mounts), "/media/ana/Disk");
    EXPECT_EQ(MountTable::topDirectory("/media/ana/Disk2/x", mounts), "/") << "a shared prefix is no mount";
    EXPECT_EQ(MountTable::topDirectory("/home/ana/x", mounts), "/home");
    EXPECT_EQ(MountTable::topDirectory("/etc/x", {}), "/");
}
