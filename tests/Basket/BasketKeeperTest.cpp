// SPDX-License-Identifier: MIT
#include "Basket/BasketKeeper.h"

#include "Model/TreeEdit.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeItemStates.h"
#include "support/Fakes/FakeMainThread.h"
#include "support/Fakes/FakeWorkspace.h"
#include "support/MakeTree.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessera {
namespace {

using test::at;
using test::makeTree;

constexpr FileTime kScanned{1000, 5};
constexpr std::string_view kItems = "a/ ( b:700 c:20 ) d:50";

class BasketKeeperTest : public testing::Test {
protected:
    BasketKeeperTest() { m_top->setScanBegan(kScanned); }

    File& node(std::string_view path) { return at(*m_top, path); }

    void add(std::string_view path) { EXPECT_TRUE(m_keeper.add(node(path))) << path; }

    /// From now on a look at the path tells of that inode, changed then.
    void putOnDisk(const std::string& path, std::uint64_t inode, const FileTime& changed = {})
    {
        ItemAnswer answer{ItemAnswer::Outcome::Known, {}};
        answer.state.identity = {1, inode};
        answer.state.changed = changed;
        m_itemStates->setAnswer(path, answer);
    }

    std::uint64_t expectedInode(std::string_view path)
    {
        m_mainThread.runUntil([this] { return m_keeper.isLookedAt(); });
        const std::optional<ExpectedItem> expected = m_keeper.expectedOf(node(path));
        return expected ? expected->state.identity.inode : 0;
    }

    /// When the chosen item was changed that is to stand there still.
    FileTime expectedChange(std::string_view path)
    {
        m_mainThread.runUntil([this] { return m_keeper.isLookedAt(); });
        return m_keeper.expectedOf(node(path)).value().state.changed;
    }

    std::size_t sizeOnceLookedAt()
    {
        m_mainThread.runUntil([this] { return m_keeper.isLookedAt(); });
        return m_keeper.basket().size();
    }

    FileTime readBefore(std::string_view path)
    {
        m_mainThread.runUntil([this] { return m_keeper.isLookedAt(); });
        return m_keeper.expectedOf(node(path)).value().scanned;
    }

    /// As a rescan of the folder does that finds these items.
    void rescan(std::string_view path, std::string_view items, const FileTime& began)
    {
        auto* const folder = nodeCast<Folder>(&node(path));
        auto scanned = makeTree(folder->absolutePath(), items);
        scanned->setScanBegan(began);
        Folder& with = *scanned;
        const std::unique_ptr<File> old = exchange(*folder, loose(std::move(scanned)));
        m_keeper.folderWasReplaced(*folder, with);
    }

    /// As a scan of the folder does that finds these items.
    void scanAnew(std::string_view folder, std::string_view items)
    {
        m_keeper.treeLeaves(*m_top);
        m_top = makeTree(folder, items);
        m_keeper.treeCame(*m_top);
    }

    std::unique_ptr<TopFolder> m_top = makeTree("/t", kItems);
    std::shared_ptr<test::FakeItemStates> m_itemStates = std::make_shared<test::FakeItemStates>();
    test::FakeMainThread m_mainThread;
    BasketKeeper m_keeper{m_itemStates, m_mainThread};
    QSignalSpy m_changed{&m_keeper, &BasketKeeper::changed};
    QSignalSpy m_lost{&m_keeper, &BasketKeeper::lost};
};

TEST_F(BasketKeeperTest, WhatIsChosenIsLookedAtAsItStandsThen)
{
    putOnDisk("/t/d", 7);
    add("d");
    EXPECT_EQ(expectedInode("d"), 7U);
    putOnDisk("/t/d", 8);
    EXPECT_EQ(expectedInode("d"), 7U);
}

TEST_F(BasketKeeperTest, WhatIsChosenAgainIsLookedAtAgain)
{
    putOnDisk("/t/d", 7);
    add("d");
    m_keeper.toggle(node("d"));
    putOnDisk("/t/d", 8);
    EXPECT_TRUE(m_keeper.toggle(node("d")));
    EXPECT_EQ(expectedInode("d"), 8U);
}

TEST_F(BasketKeeperTest, WhatWasTakenOutIsExpectedNoMore)
{
    add("d");
    EXPECT_TRUE(m_keeper.remove(node("d")));
    EXPECT_EQ(expectedInode("d"), 0U);
    EXPECT_FALSE(m_keeper.expectedOf(node("d")));
    EXPECT_EQ(m_changed.count(), 2);
}

TEST_F(BasketKeeperTest, WhatIsNotInTheBasketCannotBeTakenOut)
{
    EXPECT_FALSE(m_keeper.remove(node("d")));
    EXPECT_EQ(m_changed.count(), 0);
}

TEST_F(BasketKeeperTest, NothingIsChosenTwice)
{
    add("d");
    EXPECT_FALSE(m_keeper.add(node("d")));
    EXPECT_EQ(m_changed.count(), 1);
}

TEST_F(BasketKeeperTest, AnItemWasReadWhenItsScanBegan)
{
    add("a/b");
    EXPECT_EQ(readBefore("a/b"), kScanned);
}

TEST_F(BasketKeeperTest, AnItemOfARescannedFolderWasReadWhenTheRescanBegan)
{
    rescan("a", "b:700", {2000, 1});
    add("a/b");
    add("d");
    EXPECT_EQ(readBefore("a/b"), (FileTime{2000, 1}));
    EXPECT_EQ(readBefore("d"), kScanned);
}

TEST_F(BasketKeeperTest, AnItemThatTheProgramBroughtItselfIsKnownSinceThen)
{
    // What is dated by now was dated by that.
    const FileTime before = timeAfterChanges();
    m_keeper.nodeCame(node("d"));
    add("d");
    EXPECT_FALSE(readBefore("d") < before);
}

TEST_F(BasketKeeperTest, AScanThatBeganAfterItCameKnowsTheItemBetter)
{
    const FileTime future{1LL << 40, 0};
    m_keeper.nodeCame(node("a/b"));
    rescan("a", "b:700", future);
    add("a/b");
    EXPECT_EQ(readBefore("a/b"), future);
}

TEST_F(BasketKeeperTest, ARescanLooksAgainAtWhatIsChosenInTheFolderAndAtNothingElse)
{
    putOnDisk("/t/a/b", 1);
    putOnDisk("/t/d", 1);
    add("a/b");
    add("d");
    EXPECT_EQ(expectedInode("d"), 1U);
    putOnDisk("/t/a/b", 1, {1500, 0});
    putOnDisk("/t/d", 1, {1500, 0});
    rescan("a", "b:700", {2000, 1});
    EXPECT_TRUE(m_keeper.basket().isMarked(node("a/b")));
    EXPECT_EQ(expectedChange("a/b"), (FileTime{1500, 0}));
    EXPECT_EQ(readBefore("a/b"), (FileTime{2000, 1}));
    EXPECT_EQ(expectedChange("d"), FileTime{});
    EXPECT_EQ(m_lost.count(), 0);
}

TEST_F(BasketKeeperTest, AnotherItemThatARescanFindsInItsPlaceIsNotChosen)
{
    putOnDisk("/t/a/b", 1);
    add("a/b");
    add("a/c");
    EXPECT_EQ(expectedInode("a/b"), 1U);
    putOnDisk("/t/a/b", 2);
    rescan("a", "b:700 c:20", kScanned);
    EXPECT_EQ(sizeOnceLookedAt(), 1U);
    EXPECT_FALSE(m_keeper.basket().isMarked(node("a/b")));
    ASSERT_EQ(m_lost.count(), 1);
    EXPECT_EQ(m_lost.at(0).at(0).value<std::size_t>(), 1U);
    EXPECT_EQ(m_changed.count(), 4);
}

TEST_F(BasketKeeperTest, ARescanOfAnotherFolderChangesNothing)
{
    add("d");
    rescan("a", "b:700", kScanned);
    EXPECT_EQ(m_changed.count(), 1);
}

TEST_F(BasketKeeperTest, WhatARescanDoesNotFindAnyMoreIsLost)
{
    add("a/b");
    add("a/c");
    add("d");
    rescan("a", "c:20", kScanned);
    ASSERT_EQ(m_lost.count(), 1);
    EXPECT_EQ(m_lost.at(0).at(0).value<std::size_t>(), 1U);
    EXPECT_EQ(m_keeper.basket().size(), 2U);
    EXPECT_EQ(m_changed.count(), 4);
}

TEST_F(BasketKeeperTest, WhatLeavesTheTreeLeavesTheBasket)
{
    add("a/b");
    add("d");
    m_keeper.nodeWillLeave(node("a"));
    EXPECT_EQ(m_keeper.basket().size(), 1U);
    EXPECT_FALSE(m_keeper.expectedOf(node("a/b")));
    EXPECT_EQ(m_changed.count(), 3);
    EXPECT_EQ(m_lost.count(), 0);
}

TEST_F(BasketKeeperTest, OfNodesThatNobodyChoseNothingIsSaid)
{
    add("d");
    m_keeper.nodeWillLeave(node("a"));
    EXPECT_EQ(m_changed.count(), 1);
}

TEST_F(BasketKeeperTest, AnEmptiedBasketExpectsNothing)
{
    add("a/b");
    add("d");
    m_keeper.clear();
    EXPECT_TRUE(m_keeper.basket().isEmpty());
    EXPECT_FALSE(m_keeper.expectedOf(node("d")));
    EXPECT_EQ(m_changed.count(), 3);
    m_keeper.clear();
    EXPECT_EQ(m_changed.count(), 3);
}

TEST_F(BasketKeeperTest, TheSameFolderScannedAnewKeepsTheBasket)
{
    putOnDisk("/t/a/b", 1);
    add("a/b");
    add("d");
    EXPECT_EQ(expectedInode("a/b"), 1U);
    putOnDisk("/t/a/b", 1, {1500, 0});
    scanAnew("/t", kItems);
    EXPECT_EQ(sizeOnceLookedAt(), 2U);
    EXPECT_TRUE(m_keeper.basket().isMarked(node("a/b")));
    EXPECT_EQ(expectedChange("a/b"), (FileTime{1500, 0}));
    EXPECT_EQ(m_lost.count(), 0);
}

TEST_F(BasketKeeperTest, AnotherItemThatAScanAnewFindsInItsPlaceIsNotChosen)
{
    putOnDisk("/t/d", 1);
    add("d");
    EXPECT_EQ(expectedInode("d"), 1U);
    putOnDisk("/t/d", 2);
    scanAnew("/t", kItems);
    EXPECT_EQ(sizeOnceLookedAt(), 0U);
    EXPECT_EQ(m_lost.count(), 1);
}

TEST_F(BasketKeeperTest, AFolderThatAScanAnewFindsInAFilesPlaceIsNotChosen)
{
    add("d");
    scanAnew("/t", "d/ ( e:1 )");
    EXPECT_TRUE(m_keeper.basket().isEmpty());
    EXPECT_EQ(m_lost.count(), 1);
}

TEST_F(BasketKeeperTest, WhatWasLostWhileAScanRanIsNotChosenByIt)
{
    putOnDisk("/t/a/b", 1);
    add("a/b");
    EXPECT_EQ(expectedInode("a/b"), 1U);
    putOnDisk("/t/a/b", 2);
    rescan("a", "b:700", kScanned);
    m_keeper.treeLeaves(*m_top);
    m_mainThread.runUntil([this] { return m_keeper.isLookedAt(); });
    m_keeper.treeCame(*m_top);
    EXPECT_TRUE(m_keeper.basket().isEmpty());
}

TEST_F(BasketKeeperTest, AnItemThatIsChosenAnewIsNotComparedWithThatOfATreeBefore)
{
    putOnDisk("/t/d", 1);
    add("d");
    EXPECT_EQ(expectedInode("d"), 1U);
    scanAnew("/other", kItems);
    scanAnew("/t", kItems);
    putOnDisk("/t/d", 2);
    add("d");
    EXPECT_EQ(expectedInode("d"), 2U);
    EXPECT_EQ(m_lost.count(), 0);
}

TEST_F(BasketKeeperTest, WhatNobodyCouldLookAtIsLookedAtOnceMore)
{
    m_itemStates->setAnswer("/t/d", {ItemAnswer::Outcome::MayNotLook, {}});
    add("d");
    EXPECT_EQ(expectedInode("d"), 0U);
    putOnDisk("/t/d", 7);
    m_keeper.lookAtUnknown();
    EXPECT_EQ(expectedInode("d"), 7U);
}

/// Two names of a file, which is told by what the disk says of it.
class MovedFileTest : public BasketKeeperTest {
protected:
    MovedFileTest()
    {
        putOnDisk("/t/d", 7);
        add("d");
        EXPECT_EQ(expectedInode("d"), 7U);
    }

    /// When the program moved the file by another name, as the keeper has it.
    std::optional<FileTime> moved() { return m_keeper.expectedOf(node("d"))->movedByOtherName; }

    test::FakeWorkspace m_workspace;
    test::FakeAlert m_alert;
    DiskChanges m_diskChanges;
    TrashUndo m_trashUndo{m_workspace, m_alert, m_diskChanges};
};

TEST_F(MovedFileTest, MovesToTheTrashAreHeard)
{
    m_keeper.listenTo(m_trashUndo, m_diskChanges);
    const FileTime before = timeAfterChanges();
    TrashedItem other;
    other.identity = {1, 8};
    m_trashUndo.itemsMoved({{other}});
    EXPECT_FALSE(moved());
    other.identity = {1, 7};
    m_trashUndo.itemsMoved({{other}});
    ASSERT_TRUE(moved());
    EXPECT_FALSE(*moved() < before);
}

TEST_F(MovedFileTest, MovesOutOfTheTrashAreHeard)
{
    m_keeper.listenTo(m_trashUndo, m_diskChanges);
    ItemMove move;
    move.identity = {1, 7};
    emit m_diskChanges.itemsMoved({move});
    EXPECT_TRUE(moved());
}

TEST_F(BasketKeeperTest, WhatAScanAnewDoesNotFindIsLost)
{
    add("a/b");
    add("a/c");
    add("d");
    scanAnew("/t", "d:50");
    ASSERT_EQ(m_lost.count(), 1);
    EXPECT_EQ(m_lost.at(0).at(0).value<std::size_t>(), 2U);
    EXPECT_EQ(m_keeper.basket().size(), 1U);
}

TEST_F(BasketKeeperTest, AnotherFolderBeginsWithAnEmptyBasket)
{
    add("d");
    scanAnew("/other", kItems);
    EXPECT_TRUE(m_keeper.basket().isEmpty());
    EXPECT_EQ(m_lost.count(), 0);
    scanAnew("/t", kItems);
    EXPECT_TRUE(m_keeper.basket().isEmpty());
}

} // namespace
} // namespace tessera
