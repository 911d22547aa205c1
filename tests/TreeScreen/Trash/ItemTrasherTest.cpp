// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/ItemTrasher.h"

#include "ItemTrasherFixture.h"
#include "Model/RootModel.h"
#include "Model/TimeMachine.h"
#include "Model/UserDefaults.h"
#include "Model/Volume.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeScreen.h"
#include "support/Fakes/FakeWorkspace.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessera {
namespace {

constexpr int kCancel = Alert::kFirstButton + 1;

using ItemTrasherTest = test::ItemTrasherFixture;

TEST_F(ItemTrasherTest, MovesAnItemOfTheUsersWithoutAWord)
{
    trash("docs/a");
    EXPECT_TRUE(alert.asked.empty());
    ASSERT_EQ(workspace.recycled.size(), 1U);
    EXPECT_EQ(workspace.recycled[0], (std::vector{Url("/Users/me/docs/a", false)}));
}

TEST_F(ItemTrasherTest, TellsHowLargeTheItemIs)
{
    trash("docs");
    EXPECT_EQ(workspace.recycledBytes, 700U);
}

TEST_F(ItemTrasherTest, WarnsOfAFileInASystemFolder)
{
    model.setTopFolder(test::makeTree("/usr", "lib/ ( a.so:5 )"));
    trash("lib/a.so");
    EXPECT_EQ(
        question(),
        "The selected file 'a.so' is located inside a system folder. Other applications may be "
        "using this file. Are you sure you want to move this file to the trash?");
    EXPECT_EQ(alert.asked[0].messageText, QStringLiteral("Warning"));
    EXPECT_EQ(
        alert.asked[0].buttons,
        (QStringList{QStringLiteral("Move To Trash"), QStringLiteral("Cancel")}));
    EXPECT_TRUE(isAskedToMove());
}

TEST_F(ItemTrasherTest, WarnsOfAFolderInASystemFolder)
{
    model.setTopFolder(test::makeTree("/usr", "lib/ ( a.so:5 )"));
    trash("lib");
    EXPECT_EQ(
        question(),
        "The selected folder 'lib' is located inside a system folder. Other applications may be "
        "using this folder. Are you sure you want to move this folder to the trash?");
}

TEST_F(ItemTrasherTest, ReturnCancelsEitherWarning)
{
    hide(".cfg");
    trash(".cfg");
    model.setTopFolder(test::makeTree("/usr", "lib/ ( a.so:5 )"));
    trash("lib");
    ASSERT_EQ(alert.asked.size(), 2U);
    EXPECT_EQ(alert.asked[0].buttons.at(alert.asked[0].defaultButton), QStringLiteral("Cancel"));
    EXPECT_EQ(alert.asked[1].buttons.at(alert.asked[1].defaultButton), QStringLiteral("Cancel"));
}

TEST_F(ItemTrasherTest, CancellingTheSystemWarningLeavesAllAsItIs)
{
    model.setTopFolder(test::makeTree("/usr", "lib/ ( a.so:5 )"));
    alert.answer = kCancel;
    trash("lib");
    EXPECT_FALSE(isAskedToMove());
}

TEST_F(ItemTrasherTest, AcceptingTheSystemWarningSparesTheOneForHiddenItems)
{
    model.setTopFolder(test::makeTree("/usr", "lib/ ( a.so:5 )"));
    hide("lib/a.so");
    trash("lib/a.so");
    EXPECT_EQ(alert.asked.size(), 1U);
    EXPECT_TRUE(isAskedToMove());
}

TEST_F(ItemTrasherTest, OfTheTwoWarningsAHiddenSystemItemGetsTheOneForSystemFolders)
{
    model.setTopFolder(test::makeTree("/usr", "lib/ ( a.so:5 )"));
    hide("lib/a.so");
    hide("lib");
    trash("lib/a.so");
    ASSERT_EQ(alert.asked.size(), 1U);
    EXPECT_NE(question().find("is located inside a system folder"), std::string::npos);
    EXPECT_EQ(question().find("hidden"), std::string::npos);
}

TEST_F(ItemTrasherTest, WithoutTheSystemWarningAHiddenSystemItemGetsTheOther)
{
    modelServices.defaults.setBoolean(kWarnDeleteSystemKey, false);
    model.setTopFolder(test::makeTree("/usr", "lib/ ( a.so:5 )"));
    hide("lib/a.so");
    trash("lib/a.so");
    EXPECT_EQ(
        question(),
        "The selected file 'a.so' is marked as hidden, are you sure you want to move this item to "
        "the trash?");
}

TEST_F(ItemTrasherTest, AHiddenItemOnAMountedVolumeGetsOnlyTheHiddenWarning)
{
    model.setTopFolder(test::makeTree("/Volumes/stick", "a:5"));
    hide("a");
    trash("a");
    ASSERT_EQ(alert.asked.size(), 1U);
    EXPECT_NE(question().find("is marked as hidden"), std::string::npos);
}

TEST_F(ItemTrasherTest, WarnsOfAnItemInAHiddenFolder)
{
    hide(".cfg");
    trash(".cfg/x");
    EXPECT_EQ(
        question(),
        "The selected file 'x' is located inside a hidden folder, are you sure you want to move "
        "this item to the trash?");
}

TEST_F(ItemTrasherTest, AHiddenItemInAHiddenFolderIsItselfHidden)
{
    hide(".cfg");
    hide(".cfg/.y");
    trash(".cfg/.y");
    EXPECT_NE(question().find("'.y' is marked as hidden"), std::string::npos);
}

TEST_F(ItemTrasherTest, CancellingTheHiddenWarningLeavesAllAsItIs)
{
    hide(".cfg");
    alert.answer = kCancel;
    trash(".cfg");
    EXPECT_FALSE(isAskedToMove());
}

TEST_F(ItemTrasherTest, AHiddenItemGoesQuietlyWhenTheUserWantsNoWarning)
{
    modelServices.defaults.setBoolean(kWarnDeleteHiddenKey, false);
    hide(".cfg");
    trash(".cfg");
    EXPECT_TRUE(alert.asked.empty());
    EXPECT_TRUE(isAskedToMove());
}

TEST_F(ItemTrasherTest, TheScannedFolderHidesNothing)
{
    model.topFolder()->setHidden(true);
    trash("docs/a");
    EXPECT_TRUE(alert.asked.empty());
}

TEST_F(ItemTrasherTest, AnItemNeverHidesTheScannedFolderItself)
{
    model.topFolder()->setHidden(true);
    trasher.trash(*model.topFolder());
    EXPECT_TRUE(alert.asked.empty());
}

TEST_F(ItemTrasherTest, TheTreeStaysAsItIsUntilTheItemHasMoved)
{
    trash("docs/a");
    EXPECT_EQ(node("docs").totalAllocation(), 700U);
    EXPECT_EQ(screen.renderCount, 0);
}

TEST_F(ItemTrasherTest, AMovedItemsNodeGoesUnderTheScannedTrash)
{
    const Url url = node("docs/a").url();
    trash("docs/a");
    moveEnds(url, "a");
    EXPECT_EQ(node("docs").totalAllocation(), 200U);
    EXPECT_EQ(node(".local/Trash/files").totalAllocation(), 501U);
    EXPECT_EQ(node(".local/Trash/files/a").totalAllocation(), 500U);
    EXPECT_EQ(screen.leaving, std::vector<std::string>{"a"});
    EXPECT_TRUE(screen.isSelectionTaken);
    EXPECT_EQ(screen.refreshCount, 1);
    EXPECT_EQ(screen.renderCount, 1);
}

TEST_F(ItemTrasherTest, TheScreenHearsOfTheNodeWhereItIsNow)
{
    const Url url = node("docs/a").url();
    trash("docs/a");
    moveEnds(url, "a");
    EXPECT_EQ(screen.come, std::vector<std::string>{"/Users/me/.local/Trash/files/a"});
}

TEST_F(ItemTrasherTest, ItIsCalledThereAsTheTrashCallsIt)
{
    const Url url = node("docs").url();
    trash("docs");
    moveEnds(url, "docs 2\xFF");
    EXPECT_EQ(
        node(".local/Trash/files/docs 2\xFF/deep/b").absolutePath(),
        "/Users/me/.local/Trash/files/docs 2\xFF/deep/b");
}

TEST_F(ItemTrasherTest, ARescannedFolderKnowsWhereItIsAfterTheMove)
{
    auto& docs = static_cast<Folder&>(node("docs"));
    docs.replaceChild(node("docs/deep"), test::makeTree("/Users/me/docs/deep", "b:300"));
    const Url url = docs.url();
    trash("docs");
    moveEnds(url, "docs 2");
    EXPECT_EQ(
        node(".local/Trash/files/docs 2/deep/b").absolutePath(),
        "/Users/me/.local/Trash/files/docs 2/deep/b");
}

TEST_F(ItemTrasherTest, AnItemThatARescanMetInTheTrashIsNotAddedTwice)
{
    const Url url = node("docs/a").url();
    trash("docs/a");
    moveEnds(url, "old");
    EXPECT_EQ(node(".local/Trash/files").totalAllocation(), 1U);
    EXPECT_EQ(node("docs").totalAllocation(), 200U);
}

TEST_F(ItemTrasherTest, WithoutAScannedTrashTheItemLeavesTheTree)
{
    const Url url = node("docs/a").url();
    trash("docs/a");
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/elsewhere/Trash/files/a", false);
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(model.topFolder()->totalAllocation(), 316U);
    EXPECT_EQ(screen.renderCount, 1);
}

TEST_F(ItemTrasherTest, ATrashThatWasMadeForTheItemJoinsTheTree)
{
    const Url url = node("docs/a").url();
    trash("docs/a");
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/Users/me/.Trash-7/files/a", false);
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(model.topFolder()->totalAllocation(), 816U);
    EXPECT_EQ(node(".Trash-7").totalAllocation(), 500U);
    EXPECT_TRUE(node(".Trash-7").hidden());
    EXPECT_FALSE(node(".Trash-7/files").hidden());
    EXPECT_EQ(node(".Trash-7/files/a").absolutePath(), "/Users/me/.Trash-7/files/a");
}

TEST_F(ItemTrasherTest, TheNextItemGoesThereToo)
{
    for (const char* name : {"a", "deep"}) {
        const Url url = node(std::string("docs/") + name).url();
        trash(std::string("docs/") + name);
        RecycleResult result;
        result.newUrls[url.absoluteString()]
            = Url(std::string("/Users/me/.Trash-7/files/") + name, url.isDirectory());
        ASSERT_TRUE(workspace.finishRecycling(result));
    }
    EXPECT_EQ(node(".Trash-7/files").totalAllocation(), 700U);
}

TEST_F(ItemTrasherTest, OnAScannedVolumeTheItemsSpaceStaysAccountedFor)
{
    auto scanned = makeNode<Volume>("");
    scanned->setOrigin("/");
    scanned->insertChild(test::makeTree("/docs", "film:700"));
    const test::FixedFileSystem sizes(FileSystemSizes{1000, 300});
    scanned->refreshVolume(sizes);
    model.setTopFolder(std::move(scanned));
    auto& volume = static_cast<Volume&>(*model.topFolder());
    const Url url = node("docs/film").url();
    modelServices.defaults.setBoolean(kWarnDeleteSystemKey, false);
    trash("docs/film");
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/.Trash-0/files/film", false);
    ASSERT_TRUE(workspace.finishRecycling(result));
    volume.refreshVolume(sizes);
    EXPECT_EQ(node(".Trash-0/files/film").absolutePath(), "/.Trash-0/files/film");
    EXPECT_EQ(volume.unreadFile().totalAllocation(), 0U);
}

TEST_F(ItemTrasherTest, SpaceThatIsNoItemStays)
{
    auto scanned = makeNode<Volume>("me");
    scanned->setOrigin("/Users/me");
    const test::FixedFileSystem sizes(FileSystemSizes{1000, 300});
    scanned->refreshVolume(sizes);
    auto backups = makeNode<TimeMachine>("");
    const File& space = scanned->addChild(std::move(backups));
    model.setTopFolder(std::move(scanned));
    const auto& volume = static_cast<const Volume&>(*model.topFolder());
    for (const File* const file :
         std::vector<const File*>{&volume.freeFile(), &volume.unreadFile(), &space}) {
        trasher.trash(*file);
    }
    EXPECT_FALSE(isAskedToMove());
    EXPECT_TRUE(alert.asked.empty());
}

TEST_F(ItemTrasherTest, AFailureIsToldAndLeavesTheTreeAsItIs)
{
    trash("docs/a");
    moveFails("The disk is read-only.");
    ASSERT_EQ(alert.told.size(), 1U);
    EXPECT_EQ(alert.told[0].messageText, QStringLiteral("Error moving to Trash"));
    EXPECT_EQ(
        alert.told[0].informativeText,
        QStringLiteral("Error moving 'a' to the Trash for recycling."));
    EXPECT_EQ(alert.told[0].reason, QStringLiteral("The disk is read-only."));
    EXPECT_EQ(alert.told[0].buttons, QStringList{QStringLiteral("OK")});
    EXPECT_EQ(node("docs").totalAllocation(), 700U);
    EXPECT_EQ(screen.renderCount, 0);
}

TEST_F(ItemTrasherTest, AnItemOnItsWayIsNotAskedForAgain)
{
    trash("docs");
    trash("docs");
    trash("docs/a");
    EXPECT_EQ(workspace.recycled.size(), 1U);
}

TEST_F(ItemTrasherTest, AnItemBesideOneOnItsWayIsAskedForThoughItIsCalledAlike)
{
    model.setTopFolder(test::makeTree("/Users/me", "docs/ ( a:500 ) docs2:5"));
    trash("docs");
    trash("docs2");
    EXPECT_EQ(workspace.recycled.size(), 2U);
}

TEST_F(ItemTrasherTest, AfterAFailureItCanBeAskedForAgain)
{
    trash("docs");
    moveFails("No.");
    trash("docs");
    EXPECT_EQ(workspace.recycled.size(), 2U);
}

TEST_F(ItemTrasherTest, AnotherTreeOfTheSamePlaceLosesTheItemToo)
{
    const Url url = node("docs/a").url();
    trash("docs/a");
    model.setTopFolder(test::makeTree("/Users/me", "docs/ ( a:600 )"));
    moveEnds(url, "a");
    EXPECT_EQ(node("docs").totalAllocation(), 0U);
}

TEST_F(ItemTrasherTest, ATreeThatBeginsWithTheItemStaysAsItIs)
{
    const Url url = node("docs").url();
    trash("docs");
    model.setTopFolder(test::makeTree("/Users/me/docs", "a:600"));
    moveEnds(url, "docs");
    EXPECT_EQ(model.topFolder()->totalAllocation(), 600U);
}

TEST_F(ItemTrasherTest, ATreeWithoutTheItemStaysAsItIs)
{
    const Url url = node("docs/a").url();
    trash("docs/a");
    model.setTopFolder(test::makeTree("/Users/me", "docs/ ( b:600 )"));
    moveEnds(url, "a");
    EXPECT_EQ(model.topFolder()->totalAllocation(), 600U);
}

TEST_F(ItemTrasherTest, AMoveMayEndWhenTheScreenIsGone)
{
    const Url url = node("docs/a").url();
    std::vector<Url> gone;
    QObject::connect(
        &diskChanges, &DiskChanges::itemGone, [&gone](const Url& place) { gone.push_back(place); });
    trash("docs/a");
    moves.reset();
    moveEnds(url, "a");
    EXPECT_EQ(node("docs").totalAllocation(), 700U);
    EXPECT_EQ(gone, std::vector{url});
}

class ItemTrasherOverLinks : public ItemTrasherTest {
protected:
    ItemTrasherOverLinks() { model.topFolder()->setRealOrigin("/disk/me"); }
};

TEST_F(ItemTrasherOverLinks, TheItemIsMovedFromWhereItIs)
{
    modelServices.defaults.setBoolean(kWarnDeleteSystemKey, false);
    trash("docs/a");
    ASSERT_EQ(workspace.recycled.size(), 1U);
    EXPECT_EQ(workspace.recycled[0], (std::vector{Url("/disk/me/docs/a", false)}));
}

TEST_F(ItemTrasherOverLinks, WhereTheItemIsDecidesTheWarning)
{
    trash("docs/a");
    EXPECT_NE(question().find("is located inside a system folder"), std::string::npos);
}

TEST_F(ItemTrasherOverLinks, WhatLinksInSystemFoldersLeadToMayBeTheUsersOwn)
{
    model.setTopFolder(test::makeTree("/var/link", "a:5"));
    model.topFolder()->setRealOrigin("/Users/me");
    trash("a");
    EXPECT_TRUE(alert.asked.empty());
}

TEST_F(ItemTrasherOverLinks, TheNodeGoesUnderTheScannedTrash)
{
    trash("docs/a");
    const Url url("/disk/me/docs/a", false);
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/disk/me/.local/Trash/files/a 2", false);
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(node("docs").totalAllocation(), 200U);
    EXPECT_EQ(node(".local/Trash/files/a 2").totalAllocation(), 500U);
}

TEST_F(ItemTrasherTest, AnItemThatIsReleasedWhileItIsAskedForIsMovedAllTheSame)
{
    hide(".cfg");
    alert.meanwhile = [this] { model.setTopFolder(test::makeTree("/Users/me", ".cfg/ ( x:10 )")); };
    trash(".cfg/x");
    ASSERT_EQ(workspace.recycled.size(), 1U);
    EXPECT_EQ(workspace.recycled[0], (std::vector<Url>{Url("/Users/me/.cfg/x", false)}));
    moveEnds(Url("/Users/me/.cfg/x", false), "x");
    EXPECT_EQ(test::at(*model.topFolder(), ".cfg").totalAllocation(), 0U);
}

} // namespace
} // namespace tessera
