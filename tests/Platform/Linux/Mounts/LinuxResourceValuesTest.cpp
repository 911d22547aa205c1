// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxResourceValues.h"

#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <fstream>
#include <future>
#include <memory>
#include <sstream>
#include <string>

namespace tessera::test {
namespace {

constexpr int kMountPointField = 5; // of /proc/self/mountinfo, see proc(5)

/// Whether the kernel lists a mount there. A process whose root is a plain folder finds none at
/// "/".
bool isListedMount(const std::string& path)
{
    std::ifstream mounts("/proc/self/mountinfo");
    bool isFound = false;
    for (std::string line; !isFound && std::getline(mounts, line);) {
        std::istringstream fields(line);
        std::string place;
        for (int field = 1; field <= kMountPointField; ++field) {
            fields >> place;
        }
        isFound = place == path;
    }
    return isFound;
}

std::shared_ptr<const FileSystemQuestions> questions()
{
    return std::make_shared<const FileSystemQuestions>(std::chrono::minutes(1));
}

MountTable noMounts()
{
    return MountTable("");
}

TEST(LinuxResourceValues, TheRootIsAMountPointWhereItIsAMount)
{
    EXPECT_EQ(LinuxResourceValues(questions()).isMountPoint("/"), isListedMount("/"));
}

TEST(LinuxResourceValues, AMountIsAVolume)
{
    EXPECT_TRUE(LinuxResourceValues(questions()).isVolume("/proc"));
}

TEST(LinuxResourceValues, AFolderThatIsMountedElsewhereIsAMountPointAndNoVolume)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    const TempTree tree;
    tree.makeFolder("disk");
    tree.makeFolder("part");
    tree.makeSymbolicLink("link", "part");
    OwnMounts mounts;
    mounts.mountMemory(tree.pathOf("disk"));
    tree.makeFolder("disk/folder");
    mounts.bind(tree.pathOf("disk/folder"), tree.pathOf("part"));
    const LinuxResourceValues values(questions());
    EXPECT_TRUE(values.isVolume(tree.pathOf("disk")));
    EXPECT_TRUE(values.isMountPoint(tree.pathOf("disk")));
    EXPECT_FALSE(values.isVolume(tree.pathOf("part")));
    EXPECT_TRUE(values.isMountPoint(tree.pathOf("part")));
    EXPECT_FALSE(values.isVolume(tree.pathOf("link"))) << "which leads there";
    EXPECT_FALSE(values.isMountPoint(tree.pathOf("disk/folder")));
}

TEST(LinuxResourceValues, AWholeDiskThatIsMountedTwiceIsAVolumeInBothPlaces)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    const TempTree tree;
    tree.makeFolder("disk");
    tree.makeFolder("again");
    OwnMounts mounts;
    mounts.mountMemory(tree.pathOf("disk"));
    mounts.bind(tree.pathOf("disk"), tree.pathOf("again"));
    EXPECT_TRUE(LinuxResourceValues(questions()).isVolume(tree.pathOf("again")));
}

TEST(LinuxResourceValues, OnOldKernelsThePathTellsWhichMountItIs)
{
    const auto query = [](const std::string& path, LinkMode) {
        StatusResult result;
        result.status.isDirectory = true;
        result.status.identity = {path.starts_with("/mnt/") && !path.ends_with("..") ? 2U : 1U, 5};
        return result;
    };
    const LinuxResourceValues values(questions(), query, [] {
        return MountTable("1 0 8:1 / /mnt/disk rw - ext4 /dev/sda1 rw\n"
                          "2 0 8:1 /@home /mnt/part rw - ext4 /dev/sda1 rw\n");
    });
    EXPECT_TRUE(values.isVolume("/mnt/disk"));
    EXPECT_FALSE(values.isVolume("/mnt/part"));
}

TEST(LinuxResourceValues, AFolderIsNone)
{
    const TempTree tree;
    EXPECT_FALSE(LinuxResourceValues(questions()).isVolume(tree.path()));
}

TEST(LinuxResourceValues, WhatIsNotThereIsNone)
{
    EXPECT_FALSE(LinuxResourceValues(questions()).isVolume("/no/such/path"));
}

TEST(LinuxResourceValues, AFolderIsTheSameByEveryPathThatLeadsThere)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFolder("other");
    tree.makeFile("file");
    tree.makeSymbolicLink("link", "folder");
    const LinuxResourceValues values(questions());
    EXPECT_TRUE(values.isSameDirectory(tree.pathOf("folder"), tree.pathOf("link") + "/"));
    EXPECT_FALSE(values.isSameDirectory(tree.pathOf("folder"), tree.pathOf("other")));
    EXPECT_FALSE(values.isSameDirectory(tree.pathOf("folder"), tree.pathOf("nothing")));
    EXPECT_FALSE(values.isSameDirectory(tree.pathOf("nothing"), tree.pathOf("nothing")));
    EXPECT_FALSE(values.isSameDirectory(tree.pathOf("file"), tree.pathOf("file")));
}

TEST(LinuxResourceValues, AFolderAndALinkToOneAreDirectories)
{
    const TempTree tree;
    tree.makeFile("file");
    tree.makeSymbolicLink("link", ".");
    EXPECT_TRUE(LinuxResourceValues(questions()).isDirectory(tree.path()));
    EXPECT_TRUE(LinuxResourceValues(questions()).isDirectory(tree.pathOf("link")));
    EXPECT_FALSE(LinuxResourceValues(questions()).isDirectory(tree.pathOf("file")));
    EXPECT_FALSE(LinuxResourceValues(questions()).isDirectory(tree.pathOf("nothing")));
}

TEST(LinuxResourceValues, OnOldKernelsADeviceOfItsOwnMakesAVolume)
{
    const LinuxResourceValues values(
        questions(),
        [](const std::string& path, LinkMode) {
            StatusResult result;
            result.status.isDirectory = true;
            result.status.identity = {path == "/mnt" ? 2U : 1U, 5};
            return result;
        },
        noMounts);
    EXPECT_TRUE(values.isVolume("/mnt"));
    EXPECT_TRUE(values.isVolume("/")) << "it is its own parent";
}

TEST(LinuxResourceValues, GivesTheBlocksOfAFile)
{
    const TempTree tree;
    tree.makeFile("file", 5000);
    EXPECT_EQ(
        LinuxResourceValues(questions()).allocatedSize(tree.pathOf("file")),
        tree.allocatedBytes("file"));
}

TEST(LinuxResourceValues, GivesTheBlocksOfALinkItself)
{
    const TempTree tree;
    tree.makeFile("file", 100000);
    tree.makeSymbolicLink("link", "file");
    EXPECT_EQ(
        LinuxResourceValues(questions()).allocatedSize(tree.pathOf("link")),
        tree.allocatedBytes("link"));
}

TEST(LinuxResourceValues, GivesWhenTheContentChanged)
{
    constexpr std::time_t kModified = 1234567890;
    const TempTree tree;
    tree.makeFile("file");
    const std::array<timespec, 2> times{timespec{1, 0}, timespec{kModified, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, tree.pathOf("file").c_str(), times.data(), 0), 0);
    EXPECT_EQ(
        LinuxResourceValues(questions()).contentModificationDate(tree.pathOf("file")), kModified);
}

TEST(LinuxResourceValues, WhatIsNotThereHasNoValues)
{
    EXPECT_FALSE(LinuxResourceValues(questions()).allocatedSize("/no/such/path").has_value());
    EXPECT_FALSE(
        LinuxResourceValues(questions()).contentModificationDate("/no/such/path").has_value());
}

TEST(LinuxResourceValues, AFileSystemThatDoesNotAnswerHasNoValues)
{
    const auto release = std::make_shared<std::promise<void>>();
    const std::shared_future<void> released = release->get_future().share();
    const LinuxResourceValues values(
        std::make_shared<const FileSystemQuestions>(std::chrono::milliseconds(1)),
        [released](const std::string&, LinkMode) {
            released.wait();
            return StatusResult{};
        },
        noMounts);
    EXPECT_FALSE(values.isVolume("/"));
    EXPECT_FALSE(values.allocatedSize("/").has_value());
    release->set_value();
}

TEST(LinuxResourceValues, TheTableKnowsTheMountPointOfAFileSystemThatDoesNotAnswer)
{
    const auto release = std::make_shared<std::promise<void>>();
    const std::shared_future<void> released = release->get_future().share();
    const LinuxResourceValues values(
        std::make_shared<const FileSystemQuestions>(std::chrono::milliseconds(1)),
        [released](const std::string&, LinkMode) {
            released.wait();
            return StatusResult{};
        },
        [] { return MountTable("36 35 0:40 / /mnt/dead rw - nfs4 server:/ rw\n"); });
    EXPECT_TRUE(values.isMountPoint("/mnt/dead"));
    EXPECT_FALSE(values.isMountPoint("/mnt"));
    EXPECT_FALSE(values.isMountPoint("/mnt/dead/folder"));
    release->set_value();
}

} // namespace
} // namespace tessera::test
