// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/MountTable.h"

#include "Platform/Linux/Files/FileStatus.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <optional>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kTable
    = "20 1 8:1 / / rw,relatime - ext4 /dev/sda1 rw\n"
      "21 20 8:2 / /home rw shared:1 - ext4 /dev/sda2 rw\n"
      "22 20 0:5 / /media/a\\040b\\011\\012\\134\\0 rw - vfat /dev/sdb1 rw\n"
      "23 21 0:6 / /home/me/disk rw - tmpfs none rw\n"
      "24 20 8:2 /x /home/me rw - ext4 /dev/sda2 rw\n";

std::string pointOf(const std::optional<Mount>& mount)
{
    return mount ? mount->point : "none";
}

TEST(MountTable, APathIsOnTheMountWithTheLongestPointAboveIt)
{
    const MountTable mounts(kTable);
    EXPECT_EQ(pointOf(mounts.mountOf("/usr/bin", {})), "/");
    EXPECT_EQ(pointOf(mounts.mountOf("/", {})), "/");
    EXPECT_EQ(pointOf(mounts.mountOf("/home", {})), "/home");
    EXPECT_EQ(pointOf(mounts.mountOf("/home/you/a", {})), "/home");
}

TEST(MountTable, APointIsAboveAPathByWholeComponents)
{
    EXPECT_EQ(pointOf(MountTable(kTable).mountOf("/homes/a", {})), "/");
}

TEST(MountTable, TheMountsNumberTellsWhichOfThemIsNotCovered)
{
    const MountTable mounts(kTable);
    EXPECT_EQ(pointOf(mounts.mountOf("/home/me/disk/a", {})), "/home/me/disk");
    EXPECT_EQ(pointOf(mounts.mountOf("/home/me/disk/a", 24)), "/home/me");
}

TEST(MountTable, OfTwoAtOnePointTheLaterOneCounts)
{
    const MountTable mounts("1 0 8:1 / /a rw - x x rw\n2 1 8:2 / /a rw - x x rw\n");
    const std::optional<Mount> mount = mounts.mountOf("/a/b", {});
    ASSERT_TRUE(mount);
    EXPECT_EQ(mount->id, 2U);
}

TEST(MountTable, PointsAreReadAsBytes)
{
    const MountTable mounts(kTable);
    EXPECT_EQ(pointOf(mounts.mountOf("/media/a b\t\n\\\\0/c", {})), "/media/a b\t\n\\\\0");
}

TEST(MountTable, AMountThatIsNotInTheTableIsNone)
{
    EXPECT_EQ(pointOf(MountTable(kTable).mountOf("/usr", 99)), "none");
    EXPECT_EQ(pointOf(MountTable("").mountOf("/usr", {})), "none");
}

TEST(MountTable, LinesThatCannotBeReadAreLeftOut)
{
    const MountTable mounts("nonsense\n1x 0 8:1 / /a rw\n\n7 0 8:1 / / rw - x x rw");
    EXPECT_EQ(pointOf(mounts.mountOf("/a/b", {})), "/");
}

TEST(MountTable, KnowsWhatIsMountedAndFromWhere)
{
    const MountTable mounts("7 1 8:3 /a\\040b /x rw shared:1 master:2 - ext4 /dev/a\\040b rw\n");
    ASSERT_EQ(mounts.mounts().size(), 1U);
    const Mount& mount = mounts.mounts().front();
    EXPECT_EQ(mount.device, "8:3");
    EXPECT_EQ(mount.root, "/a b");
    EXPECT_EQ(mount.fileSystemType, "ext4");
    EXPECT_EQ(mount.source, "/dev/a b");
}

TEST(MountTable, KnowsWhatIsMountedInsideAFolder)
{
    const MountTable mounts(kTable);
    EXPECT_TRUE(mounts.hasMountInside("/"));
    EXPECT_TRUE(mounts.hasMountInside("/home"));
    EXPECT_TRUE(mounts.hasMountInside("/media"));
    EXPECT_FALSE(mounts.hasMountInside("/home/me/disk"));
    EXPECT_FALSE(mounts.hasMountInside("/hom"));
}

TEST(MountTable, TheSystemsOwnHasMountsWithTheNumbersThatTheSystemGivesThem)
{
    // Not the root, which need not be a mount for a process whose root is a plain folder.
    const std::optional<Mount> proc = MountTable::ofThisProcess().value().mountOf("/proc", {});
    ASSERT_EQ(pointOf(proc), "/proc");
    const StatusResult found = statusAt(AT_FDCWD, "/proc");
    ASSERT_TRUE(found);
    EXPECT_EQ(proc->id, found.status.mountId.value_or(proc->id));
}

TEST(MountTable, WhatCannotBeReadIsNoTable)
{
    EXPECT_FALSE(MountTable::ofThisProcess("/no/such/table").has_value());
    // It can be opened, but every reading of it fails.
    EXPECT_FALSE(MountTable::ofThisProcess("/").has_value());
}

std::vector<std::string> pointsThatCover(std::string_view folder, std::string_view table)
{
    std::vector<std::string> points;
    for (const Mount& mount : MountTable(table).mountsThatCover(folder)) {
        points.push_back(mount.point);
    }
    return points;
}

TEST(MountTable, TellsWhichMountsCoverSomethingOfAFoldersFileSystem)
{
    EXPECT_THAT(pointsThatCover("/", kTable), ElementsAre("/home", "/media/a b\t\n\\\\0"));
    EXPECT_THAT(pointsThatCover("/home", kTable), ElementsAre("/home/me/disk"));
    EXPECT_THAT(pointsThatCover("/media", kTable), ElementsAre("/media/a b\t\n\\\\0"));
    EXPECT_THAT(pointsThatCover("/usr", kTable), IsEmpty());
}

TEST(MountTable, AMountCoversTheFileSystemAroundItWhicheverMountShowsThat)
{
    EXPECT_THAT(
        pointsThatCover(
            "/all",
            "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
            "2 1 8:2 /part /part rw - ext4 /dev/sda2 rw\n"
            "3 1 8:2 / /all rw - ext4 /dev/sda2 rw\n"
            "4 2 0:5 / /part/a rw - tmpfs none rw\n"
            "5 3 0:6 / /all/b rw - tmpfs none rw\n"),
        ElementsAre("/all/b"));
    EXPECT_THAT(
        pointsThatCover(
            "/",
            "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
            "2 1 8:1 /srv /mnt rw - ext4 /dev/sda1 rw\n"
            "3 2 0:5 / /mnt/a rw - tmpfs none rw\n"
            "4 1 0:6 / /opt rw - tmpfs none rw\n"
            "5 2 0:7 / /mnt/b rw - tmpfs none rw\n"
            "6 1 0:7 / /srv/b rw - tmpfs none rw\n"),
        ElementsAre("/mnt", "/opt", "/srv/b"));
}

TEST(MountTable, WhatIsCoveredCanBeSeenWhereItIsShownElsewhere)
{
    const std::string table = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                              "2 1 8:1 /srv/x /mnt rw - ext4 /dev/sda1 rw\n"
                              "3 2 0:5 / /mnt/a rw - tmpfs none rw\n";
    EXPECT_THAT(pointsThatCover("/", table), ElementsAre("/mnt"));
    EXPECT_THAT(pointsThatCover("/mnt", table), ElementsAre("/mnt", "/mnt/a"));
}

TEST(MountTable, APointBelowAnotherCoverCoversNothingMore)
{
    EXPECT_THAT(
        pointsThatCover(
            "/",
            "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
            "2 1 0:5 / /a/b rw - tmpfs none rw\n"
            "3 1 0:6 / /a rw - tmpfs none rw\n"
            "4 1 0:6 / /ab rw - tmpfs none rw\n"),
        ElementsAre("/a", "/ab"));
}

TEST(MountTable, AFolderMayBeCoveredByItsOwnFileSystem)
{
    EXPECT_THAT(
        pointsThatCover(
            "/srv",
            "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
            "2 1 8:1 /data /srv rw - ext4 /dev/sda1 rw\n"),
        ElementsAre("/srv"));
}

TEST(MountTable, WhatCoversAnotherMountCoversNothingOfTheFolders)
{
    EXPECT_THAT(
        pointsThatCover(
            "/",
            "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
            "2 1 0:5 / /net rw - autofs systemd-1 rw\n"
            "3 2 0:6 / /net rw - nfs server:/export rw\n"
            "4 3 8:1 / /net/again rw - ext4 /dev/sda1 rw\n"),
        ElementsAre("/net"));
}

TEST(MountTable, APointThatIsCoveredTwiceIsToldOnce)
{
    EXPECT_THAT(
        pointsThatCover(
            "/",
            "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
            "2 1 8:1 /a /x rw - ext4 /dev/sda1 rw\n"
            "3 2 8:1 /b /x rw - ext4 /dev/sda1 rw\n"),
        ElementsAre("/x"));
}

TEST(MountTable, TheRootIsInNoMount)
{
    EXPECT_THAT(pointsThatCover("/", "1 1 8:1 / / rw - ext4 /dev/sda1 rw\n"), IsEmpty());
}

TEST(MountTable, ADeviceIsANumber)
{
    const MountTable mounts("1 0 8:1 / / rw - x x rw\n2 1 259:65537 / /b rw - x x rw\n");
    EXPECT_EQ(mounts.mounts().at(0).deviceNumber(), makedev(8, 1));
    EXPECT_EQ(mounts.mounts().at(1).deviceNumber(), makedev(259, 65537));
}

TEST(MountTable, WhatIsNotTwoNumbersIsNoDevice)
{
    for (const char* device : {"8", "8:", ":1", "8:1x", "a:1", "8:1:2"}) {
        const MountTable mounts(std::string("1 0 ") + device + " / / rw - x x rw\n");
        EXPECT_FALSE(mounts.mounts().at(0).deviceNumber()) << device;
    }
}

} // namespace
} // namespace tessera
