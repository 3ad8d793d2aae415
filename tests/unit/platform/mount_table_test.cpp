// From the kernel's mount table to drive letters.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/portable/mount_table.h"

using namespace platform;

namespace {

const char kDesktop[] = "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                        "23 27 0:22 / /sys rw,relatime - sysfs sysfs rw\n"
                        "25 24 0:23 / /dev/shm rw shared:4 - tmpfs tmpfs rw\n"
                        "27 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
                        "28 27 8:1 / /boot/efi rw shared:2 - vfat /dev/sda1 rw\n"
                        "29 27 7:0 / /snap/core/1 ro shared:3 - squashfs /dev/loop0 ro\n"
                        "30 27 8:17 / /media/me/My\\040stick rw shared:5 master:1 - vfat /dev/sdb1 rw\n"
                        "31 27 11:0 / /media/me/DISC ro - udf /dev/sr0 ro\n"
                        "32 27 0:50 / /mnt/share rw - nfs4 server:/share rw\n"
                        "33 27 0:51 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
                        "34 27 8:2 /var/log /mnt/log rw - ext4 /dev/sda2 rw\n"
                        "35 27 0:52 / /tank rw - zfs tank rw\n";

std::vector<std::string> points(const std::string& table) {
    std::vector<std::string> found;
    for (const Mount& mount : real_mounts(table))
        found.push_back(mount.point);
    return found;
}

using Points = std::vector<std::string>;

TEST(MountTable, FilesOfTheUserMakeADrive) {
    EXPECT_EQ(points(kDesktop),
              (Points{"", "/boot/efi", "/media/me/My stick", "/media/me/DISC", "/mnt/share", "/tank"}));
    const std::vector<Mount> mounts = real_mounts(kDesktop);
    EXPECT_EQ(mounts[0].device, "8:2");
    EXPECT_EQ(mounts[0].type, "ext4");
    EXPECT_EQ(mounts[0].source, "/dev/sda2");
    EXPECT_FALSE(mounts[0].remote);
    EXPECT_EQ(mounts[2].source, "/dev/sdb1");
    EXPECT_TRUE(mounts[4].remote);
    EXPECT_FALSE(mounts[5].remote);
}

TEST(MountTable, TheRootComesFirstWhateverItIs) {
    EXPECT_EQ(points("1 0 8:1 / /home rw - ext4 /dev/sda1 rw\n2 0 0:30 / / rw - overlay overlay rw\n"),
              (Points{"", "/home"}));
    EXPECT_EQ(points("1 0 8:1 / /home rw - ext4 /dev/sda1 rw\n"), (Points{"", "/home"}));
    EXPECT_EQ(points(""), Points{""});
}

TEST(MountTable, WhatIsMountedOverAnotherHidesIt) {
    const std::vector<Mount> mounts = real_mounts("1 0 0:1 / / rw - rootfs rootfs rw\n"
                                                  "2 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                                  "3 2 8:2 / /mnt rw - ext4 /dev/sda2 rw\n"
                                                  "4 2 8:3 / /mnt rw - xfs /dev/sda3 rw\n");
    ASSERT_EQ(mounts.size(), 2u);
    EXPECT_EQ(mounts[0].source, "/dev/sda1");
    EXPECT_EQ(mounts[1].source, "/dev/sda3");
}

TEST(MountTable, OneFileSystemIsOneDrive) {
    EXPECT_EQ(points("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                     "2 1 8:2 / /a rw - ext4 /dev/sda2 rw\n"
                     "3 1 8:2 / /b rw - ext4 /dev/sda2 rw\n"
                     "4 1 8:3 /part /c rw - ext4 /dev/sda3 rw\n"
                     "5 1 0:9 /@ /d rw - btrfs /dev/sdc1 rw\n"
                     "6 1 0:9 /@home /e rw - btrfs /dev/sdc1 rw\n"),
              (Points{"", "/a", "/d"}));
}

TEST(MountTable, EscapedCharactersAreOpened) {
    EXPECT_EQ(points("1 0 8:1 / /a\\040b\\011c\\134d\\012e rw - ext4 /dev/sda1 rw\n"),
              (Points{"", "/a b\tc\\d\ne"}));
    EXPECT_EQ(points("1 0 8:1 / /a\\04 rw - ext4 /dev/sda1 rw\n"), (Points{"", "/a\\04"}));
}

TEST(MountTable, LinesThatAreNoneArePassedOver) {
    EXPECT_EQ(points("\n\nnonsense\n1 0 8:1 / /a rw - ext4\n1 0 8:1 / /a rw ext4 /dev/sda1 rw\n"
                     "1 0 8:1 / a rw - ext4 /dev/sda1 rw\n1 0"),
              Points{""});
}

std::string letters(const DriveLetters& drives) {
    std::string found;
    for (wchar_t letter = L'A'; letter <= L'Z'; letter++)
        if (const Mount* mount = drives.find(letter))
            found += std::string(1, static_cast<char>(letter)) + "=" + mount->point + " ";
    return found;
}

std::string line(int number, const std::string& point) {
    return "1 0 8:" + std::to_string(number) + " / " + point + " rw - ext4 /dev/d" + std::to_string(number) +
           " rw\n";
}

TEST(DriveLetters, FollowTheTableFromCOn) {
    DriveLetters drives;
    EXPECT_EQ(letters(drives), "");
    drives.assign(real_mounts(line(2, "/b") + line(1, "/") + line(3, "/a")));
    EXPECT_EQ(letters(drives), "C= D=/b E=/a ");
    EXPECT_EQ(drives.find(L'd'), drives.find(L'D'));
    for (const wchar_t none : {L'F', L'A', L'@', L'[', L'{', L'\0'})
        EXPECT_EQ(drives.find(none), nullptr);
}

TEST(DriveLetters, StayWithTheirMounts) {
    DriveLetters drives;
    drives.assign(real_mounts(line(1, "/") + line(2, "/a") + line(3, "/b")));
    drives.assign(real_mounts(line(1, "/") + line(3, "/b")));
    EXPECT_EQ(letters(drives), "C= E=/b ");
    drives.assign(real_mounts(line(1, "/") + line(4, "/c") + line(3, "/b") + line(5, "/d")));
    EXPECT_EQ(letters(drives), "C= D=/c E=/b F=/d ");
    // Another disk at the same place is another drive; C is the root's alone.
    drives.assign(real_mounts(line(9, "/") + line(3, "/b") + line(6, "/c")));
    EXPECT_EQ(letters(drives), "C= D=/c E=/b ");
    EXPECT_EQ(drives.find(L'D')->device, "8:6");
}

TEST(DriveLetters, EndAtZ) {
    std::string table = line(1, "/");
    for (int i = 2; i < 40; i++)
        table += line(i, "/m" + std::to_string(i));
    DriveLetters drives;
    drives.assign(real_mounts(table));
    EXPECT_EQ(drives.find(L'Z')->point, "/m24");
    EXPECT_EQ(drives.find(L'A'), nullptr);
    std::size_t length = 7;
    EXPECT_EQ(drives.holder("/m39/x", length), L'C');
    EXPECT_EQ(length, 0u);
}

TEST(DriveLetters, TheLongestPointHoldsAPath) {
    DriveLetters drives;
    drives.assign(real_mounts(line(1, "/") + line(2, "/a") + line(3, "/a/b")));
    const struct {
        const char* path;
        wchar_t letter;
        std::size_t length;
    } rows[] = {
        {"/", L'C', 0},    {"/x", L'C', 0},     {"/a", L'D', 2},    {"/ab", L'C', 0},
        {"/a/x", L'D', 2}, {"/a/b/c", L'E', 4}, {"/a/bc", L'D', 2}, {"", L'C', 0},
    };
    for (const auto& row : rows) {
        std::size_t length = 99;
        EXPECT_EQ(drives.holder(row.path, length), row.letter) << row.path;
        EXPECT_EQ(length, row.length) << row.path;
    }
}

} // namespace
