// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/DiskMounts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// All but `file` are directories.
std::vector<std::string> points(
    std::string_view mountInfo,
    const std::set<std::string>& hidden = {},
    const std::string& file = {})
{
    std::vector<std::string> result;
    const auto isFile = [&file](const std::string& point) { return point == file; };
    for (const MountedVolume& volume : diskMounts(MountTable(mountInfo), hidden, isFile)) {
        result.push_back(volume.url.path());
    }
    return result;
}

MountedVolume::Kind kindOf(std::string_view mountInfo)
{
    return diskMounts(MountTable(mountInfo), {}, [](const std::string&) { return false; })
        .at(0)
        .kind;
}

TEST(DiskMounts, AreTheRootDevicesAndShares)
{
    EXPECT_THAT(
        points("1 0 0:20 / / rw - overlay overlay rw\n"
               "2 1 8:1 / /home rw shared:1 master:2 - ext4 /dev/sda1 rw\n"
               "3 1 0:30 / /mnt/share rw - nfs4 server:/export rw\n"
               "4 1 0:31 / /media/me/stick rw - fuseblk /dev/sdb1 rw\n"
               "5 1 0:32 / /home/me/remote rw - fuse.sshfs me@host: rw\n"
               "6 1 0:33 / /tank rw - zfs tank rw\n"),
        ElementsAre("/", "/home", "/mnt/share", "/media/me/stick", "/home/me/remote", "/tank"));
}

TEST(DiskMounts, PseudoFileSystemsAreNone)
{
    EXPECT_THAT(
        points("1 0 0:1 / /proc rw - proc proc rw\n"
               "2 0 0:2 / /sys rw - sysfs sysfs rw\n"
               "3 0 0:3 / /tmp rw - tmpfs tmpfs rw\n"
               "4 0 0:4 / /home/me/.cache/doc rw - fuse.portal portal rw\n"
               "5 0 0:5 / /net rw - autofs -hosts rw\n"
               "6 0 0:6 / /srv/box rw - overlay overlay rw\n"),
        IsEmpty());
}

TEST(DiskMounts, WhatTheSystemMountsForItselfIsNone)
{
    EXPECT_THAT(
        points("1 0 7:1 / /snap/core/1 ro - squashfs /dev/loop1 ro\n"
               "2 0 7:2 / /home/me/image ro - squashfs /dev/loop2 ro\n"
               "3 0 8:1 / /boot/efi rw - vfat /dev/sda1 rw\n"
               "4 0 8:2 /var/hosts /etc/hosts rw - ext4 /dev/sda2 rw\n"
               "5 0 8:2 /x /var/lib/docker/x rw - ext4 /dev/sda2 rw\n"
               "6 0 8:3 / /run/credentials rw - ext4 /dev/sda3 rw\n"),
        IsEmpty());
}

TEST(DiskMounts, AnotherBootPartitionIsADisk)
{
    EXPECT_THAT(points("1 0 8:1 / /boot rw - ext4 /dev/sda1 rw\n"), ElementsAre("/boot"));
}

TEST(DiskMounts, HiddenPointsAreNone)
{
    EXPECT_THAT(points("1 0 8:1 / /backup rw - ext4 /dev/sda1 rw\n", {"/backup"}), IsEmpty());
}

TEST(DiskMounts, AFolderOfADeviceIsListedOnce)
{
    EXPECT_THAT(
        points("1 0 0:40 /@ / rw - btrfs /dev/sda1 rw\n"
               "2 1 0:40 /@home /home rw - btrfs /dev/sda1 rw\n"
               "3 1 0:40 /@home /mnt/again rw - btrfs /dev/sda1 rw\n"),
        ElementsAre("/", "/home"));
}

TEST(DiskMounts, FoldersOfAListedDiskThatAreMountedElsewhereAreNone)
{
    EXPECT_THAT(
        points("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
               "2 1 8:1 /home/me/files /srv/files rw - ext4 /dev/sda1 rw\n"
               "3 1 8:2 /pictures /srv/pictures rw - ext4 /dev/sda2 rw\n"
               "4 1 8:2 /pictures/old /srv/old rw - ext4 /dev/sda2 rw\n"
               "5 1 8:2 /pictures-new /srv/new rw - ext4 /dev/sda2 rw\n"),
        ElementsAre("/", "/srv/pictures", "/srv/new"));
}

TEST(DiskMounts, AFolderOfADiskThatIsNotListedIsADisk)
{
    EXPECT_THAT(
        points(
            "1 0 8:1 / /backup rw - ext4 /dev/sda1 rw\n"
            "2 0 8:1 /home /home rw - ext4 /dev/sda1 rw\n",
            {"/backup"}),
        ElementsAre("/home"));
}

TEST(DiskMounts, TheRootIsOneWhateverElseShowsIt)
{
    EXPECT_THAT(
        points("1 0 8:1 /guest / rw - ext4 /dev/sda1 rw\n"
               "2 1 8:1 / /mnt/host rw - ext4 /dev/sda1 rw\n"),
        ElementsAre("/", "/mnt/host"));
}

TEST(DiskMounts, SubvolumesAreDisksWhereNoFolderHoldsThem)
{
    EXPECT_THAT(
        points("1 0 0:40 /@ / rw - btrfs /dev/sda1 rw,subvolid=256,subvol=/@\n"
               "2 1 0:40 /@home /home rw - btrfs /dev/sda1 rw,subvolid=257,subvol=/@home\n"
               "3 1 0:40 / /mnt/all rw - btrfs /dev/sda1 rw,subvolid=5,subvol=/\n"
               "4 1 0:40 /@home/me /mnt/me rw - btrfs /dev/sda1 rw,subvolid=9,subvol=/@home/me\n"
               "5 1 0:40 /folder /mnt/f rw - btrfs /dev/sda1 rw,subvolid=5,subvol=/\n"),
        ElementsAre("/", "/home", "/mnt/all"));
}

TEST(DiskMounts, AMountedFileIsNone)
{
    EXPECT_THAT(
        points(
            "1 0 8:1 /files/a /srv/a rw - ext4 /dev/sda1 rw\n"
            "2 0 8:1 /files/b /srv/b rw - ext4 /dev/sda1 rw\n",
            {},
            "/srv/a"),
        ElementsAre("/srv/b"));
}

TEST(DiskMounts, AShareOfWhichAllIsMountedIsNotAskedForAtAll)
{
    bool isAsked = false;
    const MountTable mounts("1 0 0:30 / /mnt/share rw - nfs4 server:/export rw\n");
    EXPECT_EQ(
        diskMounts(mounts, {}, [&isAsked](const auto&) { return isAsked = true; }).size(), 1U);
    EXPECT_FALSE(isAsked);
}

TEST(DiskMounts, OfTwoAtOnePointTheLaterCounts)
{
    EXPECT_THAT(
        points("1 0 8:1 / /mnt rw - ext4 /dev/sda1 rw\n"
               "2 1 0:9 / /mnt rw - tmpfs tmpfs rw\n"),
        IsEmpty());
    EXPECT_EQ(
        kindOf("1 0 0:9 / /mnt rw - autofs systemd-1 rw\n"
               "2 1 0:8 / /mnt rw - nfs server:/export rw\n"),
        MountedVolume::Kind::Network);
}

TEST(DiskMounts, AreOfAKind)
{
    EXPECT_EQ(
        kindOf("1 0 8:1 / /run/media/me/stick rw - vfat /dev/sdb1 rw\n"),
        MountedVolume::Kind::Removable);
    EXPECT_EQ(kindOf("1 0 8:1 / /data rw - xfs /dev/sda1 rw\n"), MountedVolume::Kind::Disk);
    EXPECT_EQ(
        kindOf("1 0 0:1 / /media/share rw - cifs //server/share rw\n"),
        MountedVolume::Kind::Network);
}

TEST(PointsHiddenInFstab, AreThoseWithTheOption)
{
    EXPECT_THAT(
        pointsHiddenInFstab("# /dev/sda9 /comment ext4 x-gvfs-hide 0 0\n"
                            "/dev/sda1 / ext4 defaults 0 1\n"
                            "/dev/sda2\t/my\\040backup\text4 noauto,x-gvfs-hide 0 2\n"
                            "/dev/sda3 /other ext4 x-gvfs-hidden 0 2\n"
                            "broken\n"),
        ElementsAre("/my backup"));
}

} // namespace
} // namespace tessera
