// SPDX-License-Identifier: MIT
// Items that were looked at when they were chosen, and are again right before they are moved.
#include "ChosenItem.h"
#include "support/Machine/Meanwhile.h"
#include "support/Machine/TrashFixture.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

namespace tessera::test {
namespace {

using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

class FreedesktopTrashOfExpectedItemsTest : public TrashFixture {
protected:
    /// The item as it is chosen now, after a scan that has just begun.
    ItemToRecycle choose(const std::string& name) const
    {
        return chosenItem(m_tree.pathOf(name), afterTheTick());
    }

    /// That nothing is moved, and why not.
    std::string moveInVain(const ItemToRecycle& item) const
    {
        const std::vector<std::string> before = snapshotOf(m_tree.pathOf("work"));
        const RecycleResult result = m_trash.recycle({item});
        EXPECT_THAT(result.trashed, IsEmpty());
        EXPECT_EQ(snapshotOf(m_tree.pathOf("work")), before);
        EXPECT_EQ(result.notMoved.size(), 1U);
        EXPECT_EQ(result.notMoved.at(0).place.path(), item.url.path());
        EXPECT_EQ(result.notMoved.at(0).reason, result.error);
        return result.error;
    }
};

TEST_F(FreedesktopTrashOfExpectedItemsTest, WhatIsAsItWasChosenIsMoved)
{
    m_tree.writeFile("work/a", "content");
    m_tree.makeFolder("work/folder");
    m_tree.makeSymbolicLink("work/link", "a");
    const RecycleResult result
        = m_trash.recycle({choose("work/a"), choose("work/folder"), choose("work/link")});
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.trashed.size(), 3U);
    EXPECT_THAT(result.notMoved, IsEmpty());
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFileThatWasWrittenStays)
{
    m_tree.writeFile("work/a", "content");
    const ItemToRecycle item = choose("work/a");
    m_tree.writeFile("work/a", "another");
    EXPECT_EQ(moveInVain(item), "'a' was not moved, because it has changed since the scan.");
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFileWhoseRightsChangedStays)
{
    m_tree.writeFile("work/a", "content");
    const ItemToRecycle item = choose("work/a");
    m_tree.setMode("work/a", 0600);
    EXPECT_EQ(moveInVain(item), "'a' was not moved, because it has changed since the scan.");
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AnotherFileOfThatNameStays)
{
    m_tree.writeFile("work/a", "content");
    m_tree.writeFile("work/b", "another's");
    const ItemToRecycle item = choose("work/a");
    m_tree.rename("work/b", "work/a");
    EXPECT_EQ(
        moveInVain(item),
        "'a' was not moved, because another item has taken its name since the scan.");
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, ALinkInTheFilesPlaceStays)
{
    m_tree.writeFile("work/a", "content");
    m_tree.writeFile("work/b", "another's");
    const ItemToRecycle item = choose("work/a");
    m_tree.removeFile("work/a");
    m_tree.makeSymbolicLink("work/a", "b");
    EXPECT_EQ(
        moveInVain(item),
        "'a' was not moved, because another item has taken its name since the scan.");
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AnotherFolderOfThatNameStays)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFolder("work/other");
    const ItemToRecycle item = choose("work/folder");
    m_tree.removeFolder("work/folder");
    m_tree.rename("work/other", "work/folder");
    EXPECT_THAT(moveInVain(item), StartsWith("'folder' was not moved, because another item"));
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFolderThatHasGrownIsMoved)
{
    m_tree.makeFolder("work/folder");
    const ItemToRecycle item = choose("work/folder");
    m_tree.writeFile("work/folder/new", "content");
    EXPECT_EQ(m_trash.recycle({item}).error, "");
    EXPECT_EQ(fileContent(m_homeTrash + "/files/folder/new"), "content");
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFileOfAFutureDateIsMoved)
{
    m_tree.writeFile("work/a", "content");
    const std::array<timespec, 2> future{{{1LL << 33, 0}, {1LL << 33, 0}}};
    ASSERT_EQ(::utimensat(AT_FDCWD, m_tree.pathOf("work/a").c_str(), future.data(), 0), 0);
    EXPECT_EQ(m_trash.recycle({choose("work/a")}).error, "");
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, NamesOfOneFileMoveTogether)
{
    m_tree.writeFile("work/a", "content");
    m_tree.makeHardLink("work/b", "work/a");
    const std::vector<ItemToRecycle> both{choose("work/a"), choose("work/b")};
    const RecycleResult result = m_trash.recycle(both);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.trashed.size(), 2U);
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, ANameOfAFileThatWasWrittenStaysWithTheOthers)
{
    m_tree.writeFile("work/a", "content");
    m_tree.makeHardLink("work/b", "work/a");
    const std::vector<ItemToRecycle> both{choose("work/a"), choose("work/b")};
    m_tree.writeFile("work/b", "another");
    const RecycleResult result = m_trash.recycle(both);
    EXPECT_EQ(result.notMoved.size(), 2U);
    EXPECT_EQ(namesIn(m_tree.pathOf("work")), (std::vector<std::string>{"a", "b"}));
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, WhatStaysDoesNotStopTheOthersAndEachHasItsReason)
{
    for (const char* const name : {"work/a", "work/b", "work/c"}) {
        m_tree.writeFile(name, "content");
    }
    const std::vector<ItemToRecycle> all{choose("work/a"), choose("work/b"), choose("work/c")};
    m_tree.writeFile("work/a", "another");
    m_tree.removeFile("work/c");
    const RecycleResult result = m_trash.recycle(all);
    EXPECT_EQ(result.error, "'a' was not moved, because it has changed since the scan.");
    ASSERT_EQ(result.notMoved.size(), 2U);
    EXPECT_EQ(result.notMoved[0].place.path(), m_tree.pathOf("work/a"));
    EXPECT_EQ(
        result.notMoved[1].reason,
        "'c' was not moved to the trash, because it is not there any more.");
    ASSERT_EQ(result.trashed.size(), 1U);
    EXPECT_EQ(result.trashed[0].from.path(), m_tree.pathOf("work/b"));
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, FoldersThatHaveGrownAreTold)
{
    m_tree.makeFolder("work/grown");
    m_tree.makeFolder("work/same");
    const std::vector<ItemToRecycle> both{choose("work/grown/"), choose("work/same/")};
    m_tree.writeFile("work/grown/new", "content");
    const RecycleResult result = m_trash.recycle(both);
    EXPECT_EQ(result.trashed.size(), 2U);
    ASSERT_EQ(result.grownFolders.size(), 1U);
    EXPECT_EQ(result.grownFolders[0].path(), m_tree.pathOf("work/grown"));
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFolderThatWasMerelyReadIsNotTold)
{
    m_tree.makeFolder("work/folder");
    m_tree.writeFile("work/folder/deep", "content");
    const ItemToRecycle item = choose("work/folder/");
    m_tree.writeFile("work/folder/deep", "another");
    EXPECT_EQ(namesIn(m_tree.pathOf("work/folder")).size(), 1U);
    EXPECT_THAT(m_trash.recycle({item}).grownFolders, IsEmpty());
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFolderThatHasGrownAndStaysIsNotToldAsMoved)
{
    m_tree.makeFolder("home/folder");
    const ItemToRecycle item = choose("home/");
    m_tree.writeFile("home/new", "content");
    const RecycleResult result = m_trash.recycle({item});
    EXPECT_EQ(result.notMoved.size(), 1U);
    EXPECT_THAT(result.grownFolders, IsEmpty());
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFolderMadeAnewWithTheSameInodeNumberStays)
{
    // Whoever else makes files on this disk may be given the number in between.
    constexpr int kMostTries = 100;
    std::optional<ItemToRecycle> item;
    bool isOfThatNumber = false;
    for (int i = 0; i < kMostTries && !isOfThatNumber; ++i) {
        m_tree.makeFolder("work/folder");
        item = choose("work/folder");
        m_tree.removeFolder("work/folder");
        m_tree.makeFolder("work/folder");
        isOfThatNumber = statusAt(AT_FDCWD, m_tree.pathOf("work/folder").c_str()).status.identity
            == item->expected->state.identity;
        if (!isOfThatNumber) {
            m_tree.removeFolder("work/folder");
        }
    }
    if (!isOfThatNumber || !item->expected->state.birth) {
        GTEST_SKIP() << "this file system gives numbers away late, or does not date what is made";
    }
    m_tree.writeFile("work/folder/photo", "content");
    EXPECT_EQ(
        moveInVain(*item),
        "'folder' was not moved, because another item has taken its name since the scan.");
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFolderMadeBetweenScanAndChoiceStays)
{
    const FileTime scanned = afterTheTick();
    m_tree.makeFolder("work/folder");
    const ItemToRecycle item = chosenItem(m_tree.pathOf("work/folder"), scanned);
    if (!item.expected->state.birth) {
        GTEST_SKIP() << "this file system does not date what is made";
    }
    EXPECT_EQ(
        moveInVain(item), "'folder' was not moved, because it was made after the scan began.");
}

/// Kernels since 6.13 date what somebody looks at exactly, and all that follows not before that.
TEST_F(FreedesktopTrashOfExpectedItemsTest, AFolderMadeThisVeryMomentStays)
{
    constexpr int kTimes = 30;
    const FileTime scanned = afterTheTick();
    for (int i = 0; i < kTimes; ++i) {
        m_tree.writeFile("work/seen", "content");
        (void)chosenItem(m_tree.pathOf("work/seen"), scanned);
        m_tree.setMode("work/seen", i % 2 == 0 ? 0600 : 0640);
        (void)chosenItem(m_tree.pathOf("work/seen"), scanned);
        const std::string folder = "work/" + std::to_string(i);
        m_tree.makeFolder(folder);
        const ItemToRecycle item = chosenItem(m_tree.pathOf(folder), scanned);
        if (!item.expected->state.birth) {
            GTEST_SKIP() << "this file system does not date what is made";
        }
        EXPECT_THAT(moveInVain(item), EndsWith("because it was made after the scan began."));
    }
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFolderWhoseRightsChangedIsMoved)
{
    m_tree.makeFolder("work/a");
    m_tree.makeFolder("work/b");
    const FileTime scanned = afterTheTick();
    m_tree.setMode("work/a", 0750);
    const std::vector<ItemToRecycle> both{
        chosenItem(m_tree.pathOf("work/a/"), scanned),
        chosenItem(m_tree.pathOf("work/b/"), scanned)};
    m_tree.setMode("work/b", 0750);
    const RecycleResult result = m_trash.recycle(both);
    EXPECT_EQ(result.trashed.size(), 2U);
    EXPECT_EQ(result.grownFolders.size(), 2U);
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, WhatHasComeBackAndIsChosenThenIsMovedAgain)
{
    constexpr int kTimes = 30;
    m_tree.writeFile("work/a", "content");
    for (int i = 0; i < kTimes; ++i) {
        const RecycleResult result = m_trash.recycle({Url(m_tree.pathOf("work/a"), false)});
        ASSERT_EQ(m_trash.putBack({.item = result.trashed.at(0)}).obstacle, PutBackObstacle::None);
        const ItemToRecycle item = chosenItem(m_tree.pathOf("work/a"), timeAfterChanges());
        const RecycleResult again = m_trash.recycle({item});
        ASSERT_EQ(again.error, "");
        ASSERT_EQ(m_trash.putBack({.item = again.trashed.at(0)}).obstacle, PutBackObstacle::None);
    }
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFileWrittenWhileItsInfoFileIsWrittenStays)
{
    m_tree.writeFile("work/a", "content");
    const ItemToRecycle item = choose("work/a");
    const Meanwhile info(Call::Sync, [this] { m_tree.writeFile("work/a", "another"); });
    const RecycleResult result = m_trash.recycle({item});
    EXPECT_EQ(result.error, "'a' was not moved, because it has changed since the scan.");
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "another");
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), IsEmpty());
}

TEST_F(FreedesktopTrashOfExpectedItemsTest, AFolderThatGrowsWhileItsInfoFileIsWrittenIsTold)
{
    m_tree.makeFolder("work/folder");
    const ItemToRecycle item = choose("work/folder/");
    const Meanwhile info(Call::Sync, [this] { m_tree.writeFile("work/folder/new", "content"); });
    EXPECT_EQ(m_trash.recycle({item}).grownFolders.size(), 1U);
}

/// Two names of a file, of which the program moves the first alone.
class NameOfAMovedFile : public FreedesktopTrashOfExpectedItemsTest {
protected:
    NameOfAMovedFile()
    {
        m_tree.writeFile("work/a", "content");
        m_tree.makeHardLink("work/b", "work/a");
        m_second = choose("work/b");
    }

    void moveFirst()
    {
        EXPECT_EQ(m_trash.recycle({Url(m_tree.pathOf("work/a"), false)}).error, "");
        m_second.expected->movedByOtherName = timeAfterChanges();
    }

    ItemToRecycle m_second{Url("/", true)};
};

TEST_F(NameOfAMovedFile, IsMovedLater)
{
    moveFirst();
    EXPECT_EQ(m_trash.recycle({m_second}).error, "");
}

TEST_F(NameOfAMovedFile, StaysWhenSomebodyHasWrittenTheFileBefore)
{
    m_tree.writeFile("work/b", "another");
    moveFirst();
    EXPECT_EQ(moveInVain(m_second), "'b' was not moved, because it has changed since the scan.");
}

TEST_F(NameOfAMovedFile, StaysWhenSomebodyHasWrittenTheFileSince)
{
    moveFirst();
    (void)afterTheTick();
    m_tree.writeFile("work/b", "another");
    EXPECT_EQ(moveInVain(m_second), "'b' was not moved, because it has changed since the scan.");
}

/// Items that are chosen together, and changed in one way each before they move.
class BasketOnDisk : public FreedesktopTrashOfExpectedItemsTest {
protected:
    BasketOnDisk()
    {
        for (const char* const name : {"kept", "replaced", "touched", "deleted", "first"}) {
            m_tree.writeFile(std::string("work/") + name, name);
        }
        m_tree.makeFolder("work/grown");
        m_tree.makeHardLink("work/second", "work/first");
        for (const char* const name :
             {"kept", "replaced", "touched", "deleted", "grown/", "first", "second"}) {
            m_items.push_back(choose(std::string("work/") + name));
        }
        m_tree.writeFile("work/another", "another's");
        m_tree.rename("work/another", "work/replaced");
        EXPECT_EQ(::utimensat(AT_FDCWD, m_tree.pathOf("work/touched").c_str(), nullptr, 0), 0);
        m_tree.removeFile("work/deleted");
        m_tree.writeFile("work/grown/new", "content");
        m_result = m_trash.recycle(m_items);
    }

    std::vector<ItemToRecycle> m_items;
    RecycleResult m_result;
};

TEST_F(BasketOnDisk, WhatIsTheSameMovesAndAllElseStays)
{
    EXPECT_EQ(
        namesIn(m_homeTrash + "/files"),
        (std::vector<std::string>{"first", "grown", "kept", "second"}));
    EXPECT_EQ(namesIn(m_tree.pathOf("work")), (std::vector<std::string>{"replaced", "touched"}));
    EXPECT_EQ(fileContent(m_tree.pathOf("work/replaced")), "another's");
}

TEST_F(BasketOnDisk, EachThatStaysHasItsReason)
{
    std::vector<std::string> reasons;
    for (const NotRecycled& item : m_result.notMoved) {
        reasons.push_back(item.reason);
    }
    EXPECT_EQ(
        reasons,
        (std::vector<std::string>{
            "'replaced' was not moved, because another item has taken its name since the scan.",
            "'touched' was not moved, because it has changed since the scan.",
            "'deleted' was not moved to the trash, because it is not there any more."}));
    ASSERT_EQ(m_result.grownFolders.size(), 1U);
}

TEST_F(BasketOnDisk, WhatHasMovedComesBackWhole)
{
    for (const TrashedItem& item : m_result.trashed) {
        EXPECT_EQ(m_trash.putBack({.item = item}).obstacle, PutBackObstacle::None);
    }
    EXPECT_EQ(
        namesIn(m_tree.pathOf("work")),
        (std::vector<std::string>{"first", "grown", "kept", "replaced", "second", "touched"}));
    EXPECT_EQ(fileContent(m_tree.pathOf("work/grown/new")), "content");
    EXPECT_EQ(
        statusAt(AT_FDCWD, m_tree.pathOf("work/first").c_str()).status.identity,
        statusAt(AT_FDCWD, m_tree.pathOf("work/second").c_str()).status.identity);
    EXPECT_EQ(namesIn(m_homeTrash + "/info"), std::vector<std::string>{});
}

} // namespace
} // namespace tessera::test
