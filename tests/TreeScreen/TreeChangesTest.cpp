// SPDX-License-Identifier: MIT
// What the program moves on the disk, on the screen that shows the tree.
#include "FolderRescanFixture.h"

#include <QCoreApplication>

#include <string>
#include <utility>
#include <vector>

namespace tessera {
namespace {

/// A folder that is read anew holds "a:900 new/ ( b:100 )".
class TreeChangesTest : public test::FolderRescanTest {
protected:
    static ItemMove moveTo(std::string_view place, bool isFolder, std::uint64_t bytes)
    {
        ItemMove move;
        move.from = Url("/trash/files/x", isFolder);
        move.to = Url("/data/" + std::string(place), isFolder);
        move.bytes = bytes;
        return move;
    }

    void comes(const ItemMove& move) { emit services.diskChanges.itemsMoved({move}); }
    void fileComes(std::string_view place, std::uint64_t bytes = 70)
    {
        comes(moveTo(place, false, bytes));
    }
    void folderComes(std::string_view place) { comes(moveTo(place, true, 70)); }

    std::uint64_t sizeOf(std::string_view path) { return node(path).totalAllocation(); }
    std::uint64_t total() { return model.topFolder()->totalAllocation(); }

    /// Lets the rescans in the background begin, if there are some, and waits for the node that one
    /// of them brings.
    void readUntil(const std::string& path)
    {
        QCoreApplication::processEvents();
        services.mainThread.runUntil([&] {
            QCoreApplication::processEvents();
            return has(path);
        });
        QCoreApplication::processEvents();
    }
};

TEST_F(TreeChangesTest, AFileThatComesBackIsThereWithItsSize)
{
    fileComes("docs/back");
    EXPECT_EQ(node("docs/back").type(), NodeType::Document);
    EXPECT_EQ(sizeOf("docs/back"), 70U);
    EXPECT_EQ(sizeOf("docs"), 770U);
    EXPECT_EQ(total(), 1371U);
}

TEST_F(TreeChangesTest, AFolderThatComesBackStandsAtOnceWithWhatIsKnown)
{
    folderComes("docs/back");
    EXPECT_TRUE(node("docs/back").isFolder());
    EXPECT_EQ(sizeOf("docs/back"), 70U);
    EXPECT_EQ(total(), 1371U);
}

TEST_F(TreeChangesTest, AFolderThatComesBackIsReadInTheBackground)
{
    folderComes("docs/back");
    readUntil("docs/back/new/b");
    EXPECT_EQ(sizeOf("docs/back"), 1000U);
    EXPECT_EQ(total(), 2301U);
}

TEST_F(TreeChangesTest, WhatIsReadInTheBackgroundLooksAsItIs)
{
    folderComes("docs/back");
    QCoreApplication::processEvents();
    EXPECT_FALSE(node("docs/back").rescanning());
    EXPECT_EQ(indicator(), nullptr);
    EXPECT_FALSE(isRescanning());
    readUntil("docs/back/new/b");
}

TEST_F(TreeChangesTest, SelectionAndFolderInViewStay)
{
    goTo("other");
    controller->setSelectedFile(&node("other/o"));
    folderComes("docs/back");
    readUntil("docs/back/new/b");
    EXPECT_EQ(controller->selectedFile(), &node("other/o"));
    EXPECT_EQ(controller->currentFolder(), &folder("other"));
}

TEST_F(TreeChangesTest, WhoLooksIntoTheFolderThatIsReadStaysInIt)
{
    folderComes("docs/back");
    goTo("docs/back");
    readUntil("docs/back/new/b");
    EXPECT_EQ(controller->currentFolder(), &folder("docs/back"));
}

TEST_F(TreeChangesTest, WhatCannotBeReadStaysAsItIsKnownWithoutAWord)
{
    services.hasThreads = false;
    folderComes("docs/back");
    QCoreApplication::processEvents();
    services.mainThread.perform([] {});
    services.mainThread.runUntil([calls = 0]() mutable { return ++calls > 1; });
    EXPECT_EQ(sizeOf("docs/back"), 70U);
    EXPECT_TRUE(services.alert.told.empty());
}

TEST_F(TreeChangesTest, SeveralFoldersAreReadOneAfterTheOther)
{
    folderComes("docs/back");
    folderComes("other/back");
    readUntil("docs/back/new/b");
    readUntil("other/back/new/b");
    EXPECT_EQ(sizeOf("docs/back"), 1000U);
    EXPECT_EQ(sizeOf("other/back"), 1000U);
}

TEST_F(TreeChangesTest, WhatComesBackIntoAFolderThatIsBeingReadIsInTheNewTreeAndReadThen)
{
    rescan("docs");
    folderComes("docs/back");
    finish();
    EXPECT_EQ(sizeOf("docs/back"), 70U);
    readUntil("docs/back/new/b");
    EXPECT_EQ(sizeOf("docs"), 2000U);
}

TEST_F(TreeChangesTest, WhatTheTreeKnewStillWhenItCameBackIsInTheNewTreeToo)
{
    rescan("docs");
    folderComes("docs/gone");
    finish();
    EXPECT_TRUE(has("docs/gone"));
    readUntil("docs/gone/new/b");
}

TEST_F(TreeChangesTest, AFolderThatIsMadeAgainWhileTheOneAroundItIsReadIsInTheNewTreeToo)
{
    ItemMove move = moveTo("docs/gone/x", false, 70);
    move.madeFolder = Url("/data/docs/gone", true);
    rescan("docs");
    comes(move);
    finish();
    EXPECT_TRUE(has("docs/gone/x"));
    readUntil("docs/gone/new/b");
}

TEST_F(TreeChangesTest, TheUsersRescanComesBeforeTheProgramsOwn)
{
    folderComes("other/back");
    QCoreApplication::processEvents();
    rescan("docs");
    EXPECT_TRUE(isRescanning());
    finish();
    readUntil("other/back/new/b");
    EXPECT_EQ(sizeOf("other/back"), 1000U);
}

TEST_F(TreeChangesTest, TheUsersRescanIsOneFromItsFirstPictureOn)
{
    folderComes("other/back");
    readUntil("other/back/new/b");
    bool isKnown = false;
    QObject::connect(
        controller.get(), &TreeViewController::pictureRebuilt, [&] { isKnown = isRescanning(); });
    rescan("docs");
    EXPECT_TRUE(isKnown);
    finish();
}

TEST_F(TreeChangesTest, AFolderThatLeavesAgainIsNotRead)
{
    folderComes("docs/back");
    trash("docs/back");
    QCoreApplication::processEvents();
    EXPECT_FALSE(has("docs/back"));
    EXPECT_EQ(total(), 1301U);
}

TEST_F(TreeChangesTest, AFolderThatLeavesWhileItIsReadDoesNotComeBack)
{
    folderComes("docs/back");
    QCoreApplication::processEvents();
    trash("docs/back");
    endWorkers();
    EXPECT_FALSE(has("docs/back"));
    EXPECT_EQ(total(), 1301U);
}

TEST_F(TreeChangesTest, WhatLiesElsewhereChangesNothing)
{
    ItemMove move;
    move.from = Url("/trash/files/x", false);
    move.to = Url("/elsewhere/x", false);
    move.bytes = 70;
    comes(move);
    EXPECT_EQ(total(), 1301U);
}

TEST_F(TreeChangesTest, TheScannedFolderItselfStaysAsItIs)
{
    comes({.from = Url("/trash/files/data", true), .to = Url("/data", true), .identity = {}});
    EXPECT_EQ(total(), 1301U);
}

TEST_F(TreeChangesTest, WhatLiesOnADiskThatIsMountedInTheFolderIsNoPartOfIt)
{
    folder("tiny").insertChild(test::makeTree("/data/tiny/usb", ""));
    services.resourceValues.mountPoints.insert("/data/tiny/usb");
    fileComes("tiny/usb/x");
    EXPECT_EQ(total(), 1301U);
}

TEST_F(TreeChangesTest, TheFoldersThatWereMadeAgainComeToo)
{
    ItemMove move = moveTo("made/inner/x", false, 70);
    move.madeFolder = Url("/data/made", true);
    comes(move);
    EXPECT_EQ(sizeOf("made/inner/x"), 70U);
    EXPECT_EQ(total(), 1371U);
}

TEST_F(TreeChangesTest, WhatAFolderHeldThatWasMadeAgainIsReadAnew)
{
    ItemMove move = moveTo("docs/gone/x", false, 70);
    move.madeFolder = Url("/data/docs/gone", true);
    comes(move);
    EXPECT_TRUE(has("docs/gone/deep"));
    readUntil("docs/gone/new/b");
    EXPECT_FALSE(has("docs/gone/deep"));
}

TEST_F(TreeChangesTest, AFileInThePlaceThatTheTreeKnewStillGivesWay)
{
    fileComes("docs/a", 70);
    EXPECT_EQ(sizeOf("docs/a"), 70U);
    EXPECT_EQ(sizeOf("docs"), 270U);
}

TEST_F(TreeChangesTest, AFolderThatAScanHasMetThereStaysUntilItIsRead)
{
    folderComes("docs/gone");
    EXPECT_EQ(sizeOf("docs/gone"), 200U);
    readUntil("docs/gone/new/b");
    EXPECT_EQ(sizeOf("docs/gone"), 1000U);
}

TEST_F(TreeChangesTest, AFileInThePlaceOfAFolderGivesWay)
{
    folderComes("docs/a");
    EXPECT_TRUE(node("docs/a").isFolder());
    EXPECT_EQ(sizeOf("docs/a"), 70U);
}

/// Where the trash is part of what was scanned.
TEST_F(TreeChangesTest, TheVeryNodeLeavesTheTrashForItsPlace)
{
    File* const moved = &node("docs/gone/deep");
    trashTo("docs/gone/deep", "/data/other/deep 2");
    comes(
        {.from = Url("/data/other/deep 2", true),
         .to = Url("/data/docs/gone/deep", true),
         .identity = {}});
    EXPECT_EQ(&node("docs/gone/deep"), moved);
    EXPECT_EQ(sizeOf("docs/gone/deep/x"), 200U);
    EXPECT_FALSE(has("other/deep 2"));
    EXPECT_EQ(total(), 1301U);
}

TEST_F(TreeChangesTest, WhatGoesToTheTrashAgainLeavesTheTree)
{
    comes({.from = Url("/data/docs/a", false), .to = Url("/trash/files/a", false), .identity = {}});
    EXPECT_FALSE(has("docs/a"));
    EXPECT_EQ(total(), 801U);
}

TEST_F(TreeChangesTest, WhatGoesToATrashOfTheTreeAgainIsThere)
{
    comes(
        {.from = Url("/data/docs/a", false), .to = Url("/data/other/a 2", false), .identity = {}});
    EXPECT_FALSE(has("docs/a"));
    EXPECT_EQ(sizeOf("other/a 2"), 500U);
}

TEST_F(TreeChangesTest, TheSelectionOfWhatLeavesGoes)
{
    controller->setSelectedFile(&node("docs/a"));
    comes({.from = Url("/data/docs/a", false), .to = Url("/trash/files/a", false), .identity = {}});
    EXPECT_EQ(controller->selectedFile(), nullptr);
}

TEST_F(TreeChangesTest, AFileWithAnotherNameInTheTreeCountsOnce)
{
    controller.reset();
    model.setTopFolder(test::makeTree("/data", "docs/ ( x:700#5/2 ) other/ ( y:700#5/2 )"));
    controller = std::make_unique<TreeViewController>(model, view, services.get());
    trash("docs/x");
    ASSERT_EQ(sizeOf("other/y"), 700U);
    ItemMove move = moveTo("docs/x", false, 700);
    move.identity = {1, 5}; // as makeTree() numbers files
    move.linkCount = 2;
    comes(move);
    EXPECT_TRUE(has("docs/x"));
    EXPECT_EQ(total(), 700U);
}

TEST_F(TreeChangesTest, ThePictureIsNotDrawnForEachFolderThatIsRead)
{
    constexpr int kCount = 40;
    std::vector<ItemMove> moves;
    moves.reserve(kCount);
    for (int i = 0; i < kCount; ++i) {
        moves.push_back(moveTo("docs/back" + std::to_string(i), true, 70));
    }
    emit services.diskChanges.itemsMoved(moves);
    int drawn = 0;
    QObject::connect(controller.get(), &TreeViewController::pictureRebuilt, [&drawn] { ++drawn; });
    for (int i = 0; i < kCount; ++i) {
        readUntil("docs/back" + std::to_string(i) + "/new/b");
    }
    EXPECT_LT(drawn, kCount / 2);
    EXPECT_EQ(sizeOf("docs"), 700U + kCount * 1000U);
}

TEST_F(TreeChangesTest, WhatComesIntoAFolderThatIsReadButNotShownYetIsInIt)
{
    folderComes("docs/one");
    folderComes("other/two");
    QCoreApplication::processEvents();
    std::vector<std::string> came;
    services.mainThread.runUntil([&] {
        QCoreApplication::processEvents();
        if (has("docs/one/new/b")) {
            return true;
        }
        came.push_back("docs/one/f" + std::to_string(came.size()));
        fileComes(came.back());
        return false;
    });
    EXPECT_FALSE(came.empty());
    for (const std::string& path : came) {
        EXPECT_TRUE(has(path)) << path;
    }
}

TEST_F(TreeChangesTest, AFolderThatIsReadButNotShownYetDoesNotComeBackWhenItLeaves)
{
    for (int moment = 1; moment < 7; ++moment) {
        const std::string one = "docs/one" + std::to_string(moment);
        const std::string two = "other/two" + std::to_string(moment);
        folderComes(one);
        folderComes(two);
        QCoreApplication::processEvents();
        int calls = 0;
        services.mainThread.runUntil([&] {
            if (++calls == moment && has(one)) {
                trash(one);
            }
            QCoreApplication::processEvents();
            return has(two + "/new/b");
        });
        EXPECT_EQ(has(one), calls < moment) << moment;
    }
}

TEST_F(TreeChangesTest, TheUsersRescanOfAFolderThatIsReadButNotShownIsOfWhatIsShown)
{
    folderComes("docs/one");
    folderComes("docs/one/two");
    QCoreApplication::processEvents();
    int calls = 0;
    services.mainThread.runUntil([&] {
        if (++calls == 2) {
            rescan("docs");
        }
        QCoreApplication::processEvents();
        return calls > 2 && has("docs/new/b");
    });
    EXPECT_EQ(sizeOf("docs"), 1000U);
}

TEST_F(TreeChangesTest, FoldersAroundAnItemInDoubtAreReadInTheBackground)
{
    emit services.diskChanges.itemInDoubt(
        {Url("/data/other/x", false), Url("/data/docs/x", false)});
    readUntil("other/new/b");
    readUntil("docs/new/b");
    EXPECT_EQ(total(), 2001U);
}

TEST_F(TreeChangesTest, AnItemInDoubtOutsideTheTreeChangesNothing)
{
    emit services.diskChanges.itemInDoubt(
        {Url("/trash/files/x", false), Url("/data/docs/x", false)});
    readUntil("docs/new/b");
    EXPECT_EQ(sizeOf("other"), 600U);
}

} // namespace
} // namespace tessera
