// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/ItemInTrash.h"
#include "PutBackFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tessera::test {
namespace {

using testing::IsEmpty;

constexpr mode_t kForEverybody = 01777;

TEST_F(PutBackOnAMount, AnItemGoesBackFromTheMountsOwnTrash)
{
    m_tree.makeFolder("disk/folder");
    m_tree.writeFile("disk/folder/a", "content");
    const TrashedItem item = trashed("disk/folder/a");
    ASSERT_EQ(item.to.path(), m_disk + "/.Trash-" + m_userId + "/files/a");
    EXPECT_EQ(putBack(item).place, item.from);
    EXPECT_EQ(fileContent(m_disk + "/folder/a"), "content");
    EXPECT_THAT(namesIn(m_disk + "/.Trash-" + m_userId + "/info"), IsEmpty());
}

TEST_F(PutBackOnAMount, AnItemGoesBackFromTheTrashForAllUsers)
{
    m_tree.makeFolder("disk/.Trash");
    m_tree.setMode("disk/.Trash", kForEverybody);
    m_tree.writeFile("disk/a", "content");
    const TrashedItem item = trashed("disk/a");
    ASSERT_EQ(item.to.path(), m_disk + "/.Trash/" + m_userId + "/files/a");
    EXPECT_EQ(putBack(item).place, item.from);
    EXPECT_THAT(namesIn(m_disk + "/.Trash/" + m_userId + "/info"), IsEmpty());
}

TEST_F(PutBackOnAMount, AnItemWhosePlaceIsOnAnotherMountByNowStaysInTheTrash)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFile("work/folder/a");
    const TrashedItem item = trashed("work/folder/a");
    m_mounts.mountMemory(m_tree.pathOf("work/folder"));
    const PutBackResult result = putBackInVain({item});
    EXPECT_EQ(result.obstacle, PutBackObstacle::OtherDisk);
    EXPECT_EQ(
        result.error,
        "'a' was not put back, because its place is on another disk than the trash now. You can "
        "copy it there from the trash.");
}

TEST_F(PutBackOnAMount, NoFolderIsMadeOnAnotherMount)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFolder("work/folder/inner");
    m_tree.makeFile("work/folder/inner/a");
    const TrashedItem item = trashed("work/folder/inner/a");
    m_mounts.mountMemory(m_tree.pathOf("work/folder"));
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::OtherDisk) << "no use in asking";
    EXPECT_EQ(putBackInVain({item, "", MissingFolders::Make}).obstacle, PutBackObstacle::OtherDisk);
}

TEST_F(PutBackOnAMount, AnotherMountOfTheSameDiskIsAnotherDiskToARename)
{
    m_tree.makeFolder("disk/folder");
    m_tree.makeFile("disk/folder/a");
    const TrashedItem item = trashed("disk/folder/a");
    m_mounts.bind(m_disk + "/folder", m_disk + "/folder");
    EXPECT_EQ(putBackInVain({item}).obstacle, PutBackObstacle::OtherDisk);
}

TEST_F(PutBackOnAMount, ADiskThatIsGoneTakesItsTrashWithIt)
{
    m_tree.makeFolder("gone");
    m_mounts.mountMemory(m_tree.pathOf("gone"));
    m_tree.makeFile("gone/a");
    const TrashedItem item = trashed("gone/a");
    m_mounts.mountMemory(m_tree.pathOf("gone"));
    const PutBackResult result = putBackInVain({item});
    EXPECT_EQ(result.obstacle, PutBackObstacle::TrashGone);
    EXPECT_EQ(
        result.error,
        "'a' was not put back, because the trash that it is in cannot be found. If its disk is not "
        "connected, connect it and try again.");
}

TEST_F(PutBackOnAMount, OfAnItemOnADiskThatIsGoneNobodyCanTell)
{
    m_tree.makeFolder("gone");
    m_mounts.mountMemory(m_tree.pathOf("gone"));
    m_tree.makeFile("gone/a");
    const TrashedItem item = trashed("gone/a");
    EXPECT_EQ(findInTrash(item).place, TrashPlace::Holds);
    m_mounts.mountMemory(m_tree.pathOf("gone"));
    EXPECT_EQ(findInTrash(item).place, TrashPlace::Missing);
}

TEST_F(PutBackOnAMount, OnAMountThatCanOnlyBeReadAnItemStaysInTheTrash)
{
    m_tree.makeFile("disk/a");
    const TrashedItem item = trashed("disk/a");
    OwnMounts::makeReadOnly(m_disk);
    const PutBackResult result = putBackInVain({item});
    EXPECT_EQ(result.obstacle, PutBackObstacle::ReadOnly);
    EXPECT_EQ(result.error, "'a' was not put back, because its disk can only be read.");
}

TEST_F(PutBackOnAMount, WithoutRoomForAllMissingFoldersNoneIsLeft)
{
    // The mount's top, the trash with its two folders, the item, its info file and two more files
    // leave room for one of the two missing folders.
    m_tree.makeFolder("full");
    m_mounts.mountMemory(m_tree.pathOf("full"), "nr_inodes=9");
    m_tree.makeFolder("full/outer");
    m_tree.makeFolder("full/outer/inner");
    m_tree.makeFile("full/outer/inner/a");
    const TrashedItem item = trashed("full/outer/inner/a");
    m_tree.removeFolder("full/outer/inner");
    m_tree.removeFolder("full/outer");
    m_tree.makeFile("full/x");
    m_tree.makeFile("full/y");
    const PutBackResult result = putBackInVain({item, "", MissingFolders::Make});
    EXPECT_EQ(result.obstacle, PutBackObstacle::DiskFull);
    EXPECT_EQ(
        result.error,
        "'a' was not put back, because its disk has no space left. Make some and try again.");
}

TEST_F(PutBackOnAMount, AMoveGoesOnWhereTheJournalCannotBeWritten)
{
    m_tree.makeFolder("state");
    m_mounts.mountMemory(m_stateHome);
    OwnMounts::makeReadOnly(m_stateHome);
    m_tree.makeFile("work/a");
    const RecycleResult result = m_keepingTrash.recycle({Url(m_tree.pathOf("work/a"), false)});
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(
        result.journalError,
        "What is moved to the trash can be restored there, but this program will not list it: '"
            + m_stateHome + "/tessera/trash-journal' cannot be written (Read-only file system).");
    ASSERT_EQ(result.trashed.size(), 1U);
    EXPECT_EQ(result.trashed.front().number, 0U);
    EXPECT_EQ(putBack(result.trashed.front()).obstacle, PutBackObstacle::None);
}

} // namespace
} // namespace tessera::test
