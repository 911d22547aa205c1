// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/MountBoundary.h"

#include <fcntl.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

FileStatus directoryOn(std::uint64_t device)
{
    FileStatus status;
    status.identity.device = device;
    status.isDirectory = true;
    return status;
}

TEST(MountBoundary, AMountRootOnTheSameDeviceCrossesIt)
{
    FileStatus bindMount = directoryOn(1);
    bindMount.isMountRoot = true;
    EXPECT_TRUE(MountBoundary(directoryOn(1)).isCrossedBy(bindMount));
}

TEST(MountBoundary, ASubvolumeWithADeviceNumberOfItsOwnDoesNot)
{
    FileStatus subvolume = directoryOn(2);
    subvolume.isMountRoot = false;
    EXPECT_FALSE(MountBoundary(directoryOn(1)).isCrossedBy(subvolume));
}

TEST(MountBoundary, TheMountNumberDecidesWhereRootsAreNotTold)
{
    FileStatus start = directoryOn(1);
    start.mountId = 10;
    FileStatus other = directoryOn(1);
    other.mountId = 11;
    FileStatus same = directoryOn(2);
    same.mountId = 10;
    EXPECT_TRUE(MountBoundary(start).isCrossedBy(other));
    EXPECT_FALSE(MountBoundary(start).isCrossedBy(same));
}

TEST(MountBoundary, TheDeviceDecidesWhereNothingElseIsTold)
{
    EXPECT_TRUE(MountBoundary(directoryOn(1)).isCrossedBy(directoryOn(2)));
    EXPECT_FALSE(MountBoundary(directoryOn(1)).isCrossedBy(directoryOn(1)));
}

TEST(MountBoundary, APlaceWhereAMountWouldAppearCrossesIt)
{
    FileStatus trigger = directoryOn(1);
    trigger.isMountRoot = false;
    trigger.isAutomountTrigger = true;
    EXPECT_TRUE(MountBoundary(directoryOn(1)).isCrossedBy(trigger));
}

TEST(MountBoundary, FileSystemsThatMountOnEnteringAreToldFromThoseThatDoNot)
{
    const FileDescriptor processes(::open("/proc", O_RDONLY | O_DIRECTORY));
    const FileDescriptor memory(::open("/dev/shm", O_RDONLY | O_DIRECTORY));
    EXPECT_TRUE(mayHoldAutomounts(processes));
    EXPECT_FALSE(mayHoldAutomounts(memory));
}

TEST(MountBoundary, AFileSystemThatCannotBeAskedMayMountAnything)
{
    EXPECT_TRUE(mayHoldAutomounts(FileDescriptor()));
}

} // namespace
} // namespace tessera
