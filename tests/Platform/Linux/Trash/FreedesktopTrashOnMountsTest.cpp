// SPDX-License-Identifier: MIT
#include "support/Machine/TrashFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr mode_t kForAllUsers = 01777;
constexpr uid_t kSomebodyElse = 12345;

TEST_F(TrashOnAMount, AnItemStaysOnItsMountInATrashThatIsMadeForTheUser)
{
    m_tree.writeFile("disk/a", "content");
    EXPECT_EQ(move("disk/a"), "");
    EXPECT_EQ(m_newPath, m_disk + "/.Trash-" + m_userId + "/files/a");
    EXPECT_EQ(fileContent(m_newPath), "content");
    EXPECT_FALSE(exists(m_homeTrash));
}

TEST_F(TrashOnAMount, TheInfoFileSaysWhereItWasOnTheMount)
{
    m_tree.makeFolder("disk/a b");
    m_tree.makeFile("disk/a b/c");
    EXPECT_EQ(move("disk/a b/c"), "");
    EXPECT_THAT(
        fileContent(m_disk + "/.Trash-" + m_userId + "/info/c.trashinfo"),
        StartsWith("[Trash Info]\nPath=a%20b/c\nDeletionDate="));
}

TEST_F(TrashOnAMount, AMountPointWithSpacesAndABackslashIsFound)
{
    m_tree.makeFolder("a\t b\\040\n");
    m_mounts.mountMemory(m_tree.pathOf("a\t b\\040\n"));
    m_tree.makeFile("a\t b\\040\n/c");
    EXPECT_EQ(move("a\t b\\040\n/c"), "");
    EXPECT_EQ(m_newPath, m_tree.pathOf("a\t b\\040\n/.Trash-" + m_userId + "/files/c"));
}

TEST_F(TrashOnAMount, TheTrashThatTheAdministratorMadeForAllIsUsed)
{
    m_tree.makeFolder("disk/.Trash");
    m_tree.setMode("disk/.Trash", kForAllUsers);
    m_tree.makeFolder("disk/folder");
    EXPECT_EQ(move("disk/folder/"), "");
    EXPECT_EQ(m_newPath, m_disk + "/.Trash/" + m_userId + "/files/folder");
    EXPECT_THAT(
        fileContent(m_disk + "/.Trash/" + m_userId + "/info/folder.trashinfo"),
        HasSubstr("\nPath=folder\n"));
}

TEST_F(TrashOnAMount, OneInWhichOthersCouldRemoveItemsIsNot)
{
    m_tree.makeFolder("disk/.Trash");
    m_tree.setMode("disk/.Trash", 0777);
    m_tree.makeFile("disk/a");
    EXPECT_EQ(move("disk/a"), "");
    EXPECT_EQ(m_newPath, m_disk + "/.Trash-" + m_userId + "/files/a");
    EXPECT_THAT(namesIn(m_disk + "/.Trash"), IsEmpty());
}

TEST_F(TrashOnAMount, OneThatIsALinkIsNot)
{
    m_tree.makeFolder("disk/elsewhere");
    m_tree.setMode("disk/elsewhere", kForAllUsers);
    m_tree.makeSymbolicLink("disk/.Trash", "elsewhere");
    m_tree.makeFile("disk/a");
    EXPECT_EQ(move("disk/a"), "");
    EXPECT_EQ(m_newPath, m_disk + "/.Trash-" + m_userId + "/files/a");
    EXPECT_THAT(namesIn(m_disk + "/elsewhere"), IsEmpty());
}

TEST_F(TrashOnAMount, WhyATrashForAllIsPassedOverIsLogged)
{
    m_tree.makeFolder("disk/.Trash");
    m_tree.setMode("disk/.Trash", 0777);
    m_tree.makeFile("disk/a");
    testing::internal::CaptureStderr();
    EXPECT_EQ(move("disk/a"), "");
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        m_disk
            + "/.Trash is not used as a trash: it is no folder, or others may remove what is in "
              "it\n");
}

TEST_F(TrashOnAMount, WithoutATrashForAllNothingIsLogged)
{
    m_tree.makeFile("disk/a");
    testing::internal::CaptureStderr();
    EXPECT_EQ(move("disk/a"), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(TrashOnAMount, AUsersPartOfItThatIsALinkIsNot)
{
    m_tree.makeFolder("disk/.Trash");
    m_tree.setMode("disk/.Trash", kForAllUsers);
    m_tree.makeFolder("disk/elsewhere");
    m_tree.makeSymbolicLink("disk/.Trash/" + m_userId, "../elsewhere");
    m_tree.makeFile("disk/a");
    EXPECT_EQ(move("disk/a"), "");
    EXPECT_EQ(m_newPath, m_disk + "/.Trash-" + m_userId + "/files/a");
}

TEST_F(TrashOnAMount, AUsersTrashThatIsALinkIsRefused)
{
    m_tree.makeFolder("disk/elsewhere");
    m_tree.makeSymbolicLink("disk/.Trash-" + m_userId, "elsewhere");
    m_tree.makeFile("disk/a");
    EXPECT_EQ(
        moveInVain("disk/a"),
        "'a' was not moved to the trash, because its disk has no trash for you.");
}

TEST_F(TrashOnAMount, AUsersTrashThatBelongsToSomebodyElseIsRefused)
{
    m_tree.makeFile("disk/a");
    const std::string trashName = "disk/.Trash-" + m_userId;
    m_tree.makeFolder(trashName);
    if (::chown(m_tree.pathOf(trashName).c_str(), kSomebodyElse, kSomebodyElse) != 0) {
        GTEST_SKIP() << "only the super-user can give a folder away";
    }
    EXPECT_THAT(moveInVain("disk/a"), HasSubstr("its disk has no trash for you"));
}

TEST_F(TrashOnAMount, AnItemOnAReadOnlyMountStays)
{
    m_tree.makeFile("disk/a");
    OwnMounts::makeReadOnly(m_disk);
    EXPECT_EQ(
        moveInVain("disk/a"), "'a' was not moved to the trash, because its disk can only be read.");
}

TEST_F(TrashOnAMount, AnItemOnAReadOnlyMountWithATrashStays)
{
    m_tree.makeFile("disk/a");
    m_tree.makeFile("disk/b");
    ASSERT_EQ(move("disk/b"), "");
    OwnMounts::makeReadOnly(m_disk);
    EXPECT_THAT(moveInVain("disk/a"), HasSubstr("its disk can only be read"));
}

TEST_F(TrashOnAMount, WithoutSpaceForTheInfoFilesContentTheItemStays)
{
    m_tree.makeFolder("full");
    m_mounts.mountMemory(m_tree.pathOf("full"), "size=64k");
    m_tree.makeFile("full/a", std::size_t{64} * 1024);
    EXPECT_EQ(
        moveInVain("full/a"),
        "'a' was not moved to the trash, because its disk has no space left.");
}

TEST_F(TrashOnAMount, WithoutRoomForAnotherFileTheItemStays)
{
    // The mount's top and the item are two; each further one is one more folder that is made before
    // there is no room.
    for (const int files : {2, 3, 4, 5}) {
        const std::string name = "full" + std::to_string(files);
        m_tree.makeFolder(name);
        m_mounts.mountMemory(m_tree.pathOf(name), "nr_inodes=" + std::to_string(files));
        m_tree.makeFile(name + "/a");
        EXPECT_THAT(moveInVain(name + "/a"), HasSubstr("its disk has no space left")) << files;
    }
}

TEST_F(TrashOnAMount, WithoutRoomInTheTrashForAllUsersTheItemStays)
{
    for (const int files : {3, 4, 5, 6}) {
        const std::string name = "full" + std::to_string(files);
        m_tree.makeFolder(name);
        m_mounts.mountMemory(m_tree.pathOf(name), "nr_inodes=" + std::to_string(files));
        m_tree.makeFolder(name + "/.Trash");
        m_tree.setMode(name + "/.Trash", kForAllUsers);
        m_tree.makeFile(name + "/a");
        EXPECT_THAT(moveInVain(name + "/a"), HasSubstr("its disk has no space left")) << files;
    }
}

TEST_F(TrashOnAMount, ATrashOnAnotherMountThanTheItemIsNotMovedTo)
{
    m_tree.makeFolder("disk/.Trash-" + m_userId);
    m_tree.makeFolder("disk/.Trash-" + m_userId + "/files");
    m_mounts.mountMemory(m_disk + "/.Trash-" + m_userId + "/files");
    m_tree.makeFile("disk/a");
    EXPECT_EQ(
        move("disk/a"), "'a' was not moved to the trash, because it could only be copied there.");
    EXPECT_TRUE(exists(m_disk + "/a"));
    EXPECT_THAT(namesIn(m_disk + "/.Trash-" + m_userId + "/info"), IsEmpty());
}

TEST_F(TrashOnAMount, AMountPointStays)
{
    EXPECT_EQ(
        moveInVain("disk/"),
        "'disk' cannot be moved to the trash, because a disk is mounted there.");
}

TEST_F(TrashOnAMount, AFileThatIsMountedOnAnotherStays)
{
    m_tree.makeFile("work/a");
    m_tree.makeFile("work/b");
    m_mounts.bind(m_tree.pathOf("work/a"), m_tree.pathOf("work/b"));
    EXPECT_THAT(moveInVain("work/b"), HasSubstr("because a disk is mounted there."));
}

TEST_F(TrashOnAMount, AFolderWithAMountPointInItStays)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFolder("work/folder/deep");
    m_mounts.mountMemory(m_tree.pathOf("work/folder/deep"));
    EXPECT_EQ(
        moveInVain("work/folder/"),
        "'folder' cannot be moved to the trash, because a disk is mounted inside it.");
}

TEST_F(TrashOnAMount, ABindMountOfTheHomesOwnFileSystemHasATrashOfItsOwn)
{
    m_tree.makeFile("work/a");
    m_tree.makeFolder("again");
    m_mounts.bind(m_tree.pathOf("work"), m_tree.pathOf("again"));
    EXPECT_EQ(move("again/a"), "");
    EXPECT_EQ(m_newPath, m_tree.pathOf("again/.Trash-" + m_userId + "/files/a"));
    EXPECT_FALSE(exists(m_homeTrash));
}

TEST_F(TrashOnAMount, AHomeOnAMountOfItsOwnHasTheTrashForThatMount)
{
    m_mounts.mountMemory(m_tree.pathOf("home"));
    m_tree.makeFile("home/a");
    EXPECT_EQ(move("home/a"), "");
    EXPECT_EQ(m_newPath, m_homeTrash + "/files/a");
}

TEST_F(TrashOnAMount, AMountThatCoversAnotherIsTheOneThatCounts)
{
    m_tree.makeFolder("disk/inner");
    m_mounts.mountMemory(m_tree.pathOf("disk/inner"));
    m_mounts.mountMemory(m_disk);
    m_tree.makeFolder("disk/inner");
    m_tree.makeFile("disk/inner/a");
    EXPECT_EQ(move("disk/inner/a"), "");
    EXPECT_EQ(m_newPath, m_disk + "/.Trash-" + m_userId + "/files/a");
}

TEST_F(TrashOnAMount, WhatIsInAMountsTrashStaysWhoseverItIs)
{
    m_tree.makeFolder("disk/.Trash-7");
    m_tree.makeFile("disk/.Trash-7/a");
    m_tree.makeFolder("disk/.Trash");
    m_tree.setMode("disk/.Trash", kForAllUsers);
    for (const char* name : {"disk/.Trash-7/", "disk/.Trash-7/a", "disk/.Trash/"}) {
        EXPECT_THAT(moveInVain(name), HasSubstr("it is in the trash already")) << name;
    }
}

TEST_F(TrashOnAMount, AFolderIsNotATrashBecauseItsNameBeginsLikeOne)
{
    for (const char* name : {"disk/.Trash/", "disk/.Trash-/", "disk/.Trash-a/", "disk/.Trashes/"}) {
        m_tree.makeFolder(name);
        EXPECT_EQ(move(name), "") << name;
    }
}

TEST_F(TrashOnAMount, AHomeTrashThatNobodyCanReachGivesWayToTheMounts)
{
    m_tree.makeFile("disk/file");
    m_tree.makeFile("disk/a");
    const FreedesktopTrash trash({::geteuid(), m_disk + "/file/Trash", {}});
    EXPECT_EQ(trash.recycle({Url(m_disk + "/a", false)}).error, "");
    EXPECT_THAT(namesIn(m_disk + "/.Trash-" + m_userId + "/files"), ElementsAre("a"));
}

TEST_F(TrashOnAMount, OneWhoseHomeTrashIsOnTheMountUsesThatOne)
{
    const FreedesktopTrash trash({::geteuid(), m_disk + "/data/Trash", {}});
    m_tree.makeFile("disk/a");
    EXPECT_EQ(trash.recycle({Url(m_tree.pathOf("disk/a"), false)}).error, "");
    EXPECT_THAT(namesIn(m_disk + "/data/Trash/files"), ElementsAre("a"));
}

TEST_F(TrashOnAMount, AFolderThatBecameALinkToAnotherDiskLeadsNothingAway)
{
    m_tree.makeFolder("disk/etc");
    m_tree.makeFile("disk/etc/conf");
    m_tree.makeSymbolicLink("work/etc", m_disk + "/etc");
    EXPECT_THAT(moveInVain("work/etc/conf"), HasSubstr("has become a link since the scan"));
}

} // namespace
} // namespace tessera::test
