// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxMountedVolumes.h"

#include "support/Machine/ChildProcess.h"
#include "support/Machine/DeadFileSystem.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <memory>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::shared_ptr<const FileSystemQuestions> questions()
{
    return std::make_shared<const FileSystemQuestions>(std::chrono::minutes(1));
}

class LinuxMountedVolumesTest : public testing::Test {
protected:
    std::string write(const std::string& name, const std::string& text) const
    {
        std::ofstream(m_tree.pathOf(name)) << text;
        return m_tree.pathOf(name);
    }

    TempTree m_tree;
    std::string m_table = write(
        "mountinfo",
        "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
        "2 1 0:5 / /proc rw - proc proc rw\n"
        "3 1 8:2 / /data rw - ext4 /dev/sda2 rw\n");
};

TEST_F(LinuxMountedVolumesTest, AreThoseOfTheTableThatAreNotHidden)
{
    const LinuxMountedVolumes volumes(
        questions(), m_table, write("fstab", "/dev/sda2 /data ext4 x-gvfs-hide\n"));
    EXPECT_THAT(
        volumes.mountedVolumes(),
        ElementsAre(MountedVolume{Url("/", true), MountedVolume::Kind::Disk}));
}

TEST_F(LinuxMountedVolumesTest, AVolumeIsKnownByItsPoint)
{
    const LinuxMountedVolumes volumes(questions(), m_table, "/no/such/fstab");
    EXPECT_TRUE(volumes.volumeAt("/data").has_value());
    EXPECT_TRUE(volumes.volumeAt("/proc").has_value()) << "though no disk";
    EXPECT_FALSE(volumes.volumeAt("/data/folder").has_value());
}

TEST_F(LinuxMountedVolumesTest, WithoutATableThereAreNone)
{
    const LinuxMountedVolumes volumes(questions(), "/no/such/table", "/no/such/fstab");
    EXPECT_THAT(volumes.mountedVolumes(), IsEmpty());
    EXPECT_FALSE(volumes.volumeAt("/").has_value());
}

TEST_F(LinuxMountedVolumesTest, AFileOnWhichAnotherIsMountedIsNoDisk)
{
    m_tree.makeFile("file");
    m_tree.makeFolder("folder");
    const LinuxMountedVolumes volumes(
        questions(),
        write(
            "parts",
            "1 0 8:1 /a " + m_tree.pathOf("file")
                + " rw - ext4 /dev/sda1 rw\n"
                  "2 0 8:1 /b "
                + m_tree.pathOf("folder") + " rw - ext4 /dev/sda1 rw\n"),
        "/no/such/fstab");
    EXPECT_THAT(
        volumes.mountedVolumes(),
        ElementsAre(MountedVolume{Url(m_tree.pathOf("folder"), true), MountedVolume::Kind::Disk}));
}

TEST_F(LinuxMountedVolumesTest, APartThatCannotBeLookedAtIsADisk)
{
    const std::string table = write("parts", "1 0 8:1 /a /no/such/point rw - ext4 /dev/sda1 rw\n");
    EXPECT_THAT(
        LinuxMountedVolumes(questions(), table, "/no/such/fstab").mountedVolumes(),
        ElementsAre(MountedVolume{Url("/no/such/point", true), MountedVolume::Kind::Disk}));
}

TEST_F(LinuxMountedVolumesTest, APartThatDoesNotAnswerIsADisk)
{
    const auto asked = std::make_shared<const FileSystemQuestions>(
        std::chrono::milliseconds(1), [](const std::string& path) { return path; });
    const DeadFileSystem dead;
    dead.swallow(*asked, "/", LinkMode::Keep);
    const std::string table = write("parts", "1 0 8:1 /a / rw - ext4 /dev/sda1 rw\n");
    EXPECT_THAT(
        LinuxMountedVolumes(asked, table, "/no/such/fstab").mountedVolumes(),
        ElementsAre(MountedVolume{Url("/", true), MountedVolume::Kind::Disk}));
}

TEST_F(LinuxMountedVolumesTest, WhatIsMountedLaterIsSeen)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    m_tree.makeFolder("disk");
    const LinuxMountedVolumes volumes(questions(), "/proc/self/mountinfo", "/no/such/fstab");
    EXPECT_FALSE(volumes.volumeAt(m_tree.pathOf("disk")).has_value());
    OwnMounts mounts;
    mounts.mountMemory(m_tree.pathOf("disk"));
    EXPECT_TRUE(volumes.volumeAt(m_tree.pathOf("disk")).has_value());
}

} // namespace
} // namespace tessera::test
