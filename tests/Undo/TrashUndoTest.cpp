// SPDX-License-Identifier: MIT
#include "Undo/TrashUndo.h"

#include "TrashUndoFixture.h"

#include <gmock/gmock.h>

#include <string>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using TrashUndoTest = test::TrashUndoFixture;

TEST_F(TrashUndoTest, AtFirstThereIsNothingToUndo)
{
    EXPECT_EQ(undoTitle(), "");
    EXPECT_EQ(undo->whyNoUndo(), QStringLiteral("There is nothing to undo."));
    undo->undo();
    EXPECT_THAT(workspace.putBacks, IsEmpty());
}

TEST_F(TrashUndoTest, AtFirstThereIsNothingToRedo)
{
    EXPECT_EQ(redoTitle(), "");
    EXPECT_EQ(undo->whyNoRedo(), QStringLiteral("There is nothing to redo."));
    undo->redo();
    EXPECT_THAT(workspace.recycled, IsEmpty());
}

TEST_F(TrashUndoTest, TheTitleNamesWhatWasMovedLast)
{
    move({"a"});
    move({"b"});
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
    EXPECT_EQ(undo->whyNoUndo(), QString());
}

TEST_F(TrashUndoTest, TheTitleCountsSeveralItems)
{
    move({"a", "b", "c"});
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of 3 items");
}

TEST_F(TrashUndoTest, NoLetterOfANameIsAMnemonic)
{
    move({"a&b"});
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a&&b”");
}

TEST_F(TrashUndoTest, ANameThatIsNoTextIsShownAsOne)
{
    move({"a\n\xFF"});
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a␊\xEF\xBF\xBD”");
}

TEST_F(TrashUndoTest, AVeryLongNameIsShortened)
{
    move({std::string(250, 'x')});
    EXPECT_LT(undoTitle().size(), 120U);
    EXPECT_NE(undoTitle().find("…"), std::string::npos);
}

TEST_F(TrashUndoTest, AMoveIsToldWithItsItems)
{
    move({"a", "b"});
    ASSERT_THAT(moved, SizeIs(1));
    EXPECT_THAT(
        moved[0].items,
        ElementsAre(MovedItem{test::inTrash("a"), 100}, MovedItem{test::inTrash("b"), 100}));
    EXPECT_EQ(moved[0].bytes(), 200U);
}

TEST_F(TrashUndoTest, OneUnknownSizeMakesTheSumUnknown)
{
    undo->itemsMoved({{test::inTrash("a"), 100}, {test::inTrash("b"), std::nullopt}});
    EXPECT_EQ(moved.at(0).bytes(), std::nullopt);
}

TEST_F(TrashUndoTest, WhatCouldNotBeMovedIsNoStep)
{
    begin({"a"});
    end({}, "No.");
    EXPECT_EQ(undoTitle(), "");
    EXPECT_THAT(moved, IsEmpty());
}

TEST_F(TrashUndoTest, OfSeveralItemsThoseThatMovedAreTheStep)
{
    begin({"a", "b"});
    end({"b"}, "No.");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
}

TEST_F(TrashUndoTest, UndoPutsTheVeryItemBack)
{
    move({"a"});
    undo->undo();
    ASSERT_THAT(workspace.putBacks, SizeIs(1));
    EXPECT_EQ(workspace.putBacks[0].item, test::inTrash("a"));
    EXPECT_EQ(workspace.putBacks[0].missingFolders, MissingFolders::Refuse);
    EXPECT_EQ(workspace.putBacks[0].name, "");
}

TEST_F(TrashUndoTest, AStepIsUndoneWhenTheDiskHasDoneIt)
{
    move({"a"});
    undo->undo();
    EXPECT_EQ(redoTitle(), "");
    comesBack("a");
    EXPECT_EQ(undoTitle(), "");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “a”");
    EXPECT_THAT(back, ElementsAre("/me/docs/a"));
}

TEST_F(TrashUndoTest, WhatCameBackIsToldAsAChangeOfTheDisk)
{
    move({"a"});
    undo->undo();
    PutBackResult result;
    result.place = Url("/me/docs/a 2", false);
    result.item = {{7, 50}, 3, 2, 4096};
    result.madeFolder = Url("/me/docs", true);
    ASSERT_TRUE(workspace.finishPuttingBack(result));
    ASSERT_THAT(moves, SizeIs(1));
    EXPECT_EQ(moves[0].from, Url("/trash/files/a", false));
    EXPECT_EQ(moves[0].to, Url("/me/docs/a 2", false));
    EXPECT_EQ(moves[0].identity, (FileIdentity{7, 50}));
    EXPECT_EQ(moves[0].linkCount, 2U);
    EXPECT_EQ(moves[0].bytes, 4096U);
    EXPECT_EQ(moves[0].madeFolder, Url("/me/docs", true));
}

TEST_F(TrashUndoTest, TheSizeThatWasKnownStandsInForOneThatIsNot)
{
    move({"a"});
    undo->undo();
    comesBack("a");
    EXPECT_EQ(moves.at(0).bytes, 100U);
}

TEST_F(TrashUndoTest, StepsAreUndoneInTheirOrder)
{
    move({"a"});
    move({"b"});
    undo->undo();
    EXPECT_EQ(asked(), "b");
    comesBack("b");
    undo->undo();
    EXPECT_EQ(asked(), "a");
    comesBack("a");
    EXPECT_EQ(undoTitle(), "");
}

TEST_F(TrashUndoTest, WhileOneIsUnderWayNoOtherBegins)
{
    move({"a"});
    move({"b"});
    undo->undo();
    undo->undo();
    undo->redo();
    EXPECT_THAT(workspace.putBacks, SizeIs(1));
    EXPECT_EQ(undoTitle(), "");
    EXPECT_EQ(
        undo->whyNoUndo(),
        QStringLiteral("Something is on its way to the trash or back. Wait until it has arrived."));
    EXPECT_EQ(undo->whyNoRedo(), undo->whyNoUndo());
    comesBack("b");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
}

TEST_F(TrashUndoTest, WhileAMoveIsUnderWayNothingIsUndone)
{
    move({"a"});
    begin({"b"});
    EXPECT_EQ(undoTitle(), "");
    undo->undo();
    EXPECT_THAT(workspace.putBacks, IsEmpty());
    end({"b"});
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
}

TEST_F(TrashUndoTest, AMoveThatFailsLetsTheOneBeforeBeUndone)
{
    move({"a"});
    begin({"b"});
    end({}, "No.");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
}

TEST_F(TrashUndoTest, AFolderIsNotMovedWhileSomethingComesBackIntoIt)
{
    move({"a"});
    undo->undo();
    undo->recycle({{Url("/me/docs", true), 100}}, [](const RecycleResult&) {});
    EXPECT_THAT(workspace.recycled, SizeIs(1));
    comesBack("a");
    EXPECT_THAT(workspace.recycled, SizeIs(2));
    EXPECT_TRUE(undo->isBusy());
}

TEST_F(TrashUndoTest, NorIsWhatStandsWhereSomethingComesBackTo)
{
    move({"a"});
    undo->putBack({{test::inTrash("a")}});
    begin({"a"});
    EXPECT_THAT(workspace.recycled, SizeIs(1));
    comesBack("a");
    EXPECT_THAT(workspace.recycled, SizeIs(2));
}

TEST_F(TrashUndoTest, AFolderOfASimilarNameIsMovedMeanwhile)
{
    move({"a"});
    undo->undo();
    undo->recycle({{Url("/me/doc", true), 100}}, [](const RecycleResult&) {});
    EXPECT_THAT(workspace.recycled, SizeIs(2));
}

TEST_F(TrashUndoTest, AMoveMadeDuringAnUndoIsTheNextToBeUndone)
{
    move({"a"});
    undo->undo();
    begin({"b"});
    EXPECT_THAT(workspace.recycled, SizeIs(2));
    end({"b"});
    comesBack("a");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
    EXPECT_EQ(redoTitle(), "");
}

TEST_F(TrashUndoTest, AMoveMadeDuringARedoIsTheNextToBeUndone)
{
    move({"a"});
    undo->undo();
    comesBack("a");
    undo->redo();
    begin({"b"});
    end({"a"});
    end({"b"});
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
}

TEST_F(TrashUndoTest, MovesDoNotWaitForEachOther)
{
    begin({"a"});
    begin({"b"});
    EXPECT_THAT(workspace.recycled, SizeIs(2));
}

TEST_F(TrashUndoTest, WhatOthersMoveDuringAnUndoIsTheNextToBeUndone)
{
    move({"a"});
    undo->undo();
    undo->itemsMoved({{test::inTrash("b")}});
    comesBack("a");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
    EXPECT_EQ(redoTitle(), "");
}

TEST_F(TrashUndoTest, TheMoveThatIsToldLastIsTheNextToBeUndone)
{
    move({"a"});
    undo->undo();
    comesBack("a");
    undo->redo();
    undo->itemsMoved({{test::inTrash("b")}});
    end({"a"});
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
    EXPECT_EQ(moved.back().items.front().item, test::inTrash("b"));
    EXPECT_TRUE(undo->isNextToUndo(moved.back()));
    EXPECT_FALSE(undo->isNextToUndo(moved.front()));
}

TEST_F(TrashUndoTest, ANewMoveTakesWhatCouldBeDoneAgainAway)
{
    move({"a"});
    undo->undo();
    comesBack("a");
    move({"b"});
    EXPECT_EQ(redoTitle(), "");
}

TEST_F(TrashUndoTest, AHundredStepsAreKept)
{
    for (int i = 0; i <= TrashUndo::kMaxSteps; ++i) {
        move({std::to_string(i)});
    }
    for (int i = TrashUndo::kMaxSteps; i > 0; --i) {
        undo->undo();
        EXPECT_EQ(asked(), std::to_string(i));
        comesBack(std::to_string(i));
    }
    EXPECT_EQ(undoTitle(), "");
}

TEST_F(TrashUndoTest, AStepThatFailsCanBeTriedAgain)
{
    move({"a"});
    undo->undo();
    stays(PutBackObstacle::ReadOnly, "'a' was not put back, because its disk can only be read.");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
    EXPECT_EQ(redoTitle(), "");
    EXPECT_THAT(moves, IsEmpty());
    ASSERT_THAT(alert.told, SizeIs(1));
    EXPECT_EQ(
        alert.told[0].informativeText,
        QStringLiteral("'a' was not put back, because its disk can only be read."));
}

TEST_F(TrashUndoTest, AStepWhoseItemIsGoneLeaves)
{
    move({"a"});
    move({"b"});
    undo->undo();
    stays(PutBackObstacle::ItemGone);
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
    EXPECT_EQ(redoTitle(), "");
    EXPECT_THAT(alert.told, SizeIs(1));
}

TEST_F(TrashUndoTest, RedoMovesTheVeryItemThatCameBack)
{
    move({"a"});
    undo->undo();
    PutBackResult result;
    result.place = Url("/me/docs/a 2", false);
    result.item = {{7, 50}, 3, 1, 4096};
    ASSERT_TRUE(workspace.finishPuttingBack(result));
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “a 2”");
    undo->redo();
    ASSERT_THAT(workspace.recycledItems, SizeIs(1));
    EXPECT_EQ(workspace.recycledItems[0].url, Url("/me/docs/a 2", false));
    EXPECT_EQ(workspace.recycledItems[0].identity, (FileIdentity{7, 50}));
    EXPECT_EQ(workspace.recycledItems[0].birth, 3U);
    EXPECT_EQ(workspace.recycledItems[0].bytes, 100U);
}

TEST_F(TrashUndoTest, RedoMovesTheItemThatWasInTheTrashWhereTheDiskDoesNotSayWhichCameBack)
{
    move({"a"});
    undo->undo();
    PutBackResult result;
    result.place = Url("/me/docs/a", false);
    ASSERT_TRUE(workspace.finishPuttingBack(result));
    EXPECT_EQ(moves.at(0).identity, test::inTrash("a").identity);
    undo->redo();
    EXPECT_EQ(workspace.recycledItems.at(0).identity, test::inTrash("a").identity);
}

TEST_F(TrashUndoTest, WhatIsDoneAgainIsUndoneFromWhereItIsThen)
{
    move({"a"});
    undo->undo();
    comesBack("a");
    undo->redo();
    RecycleResult result;
    result.trashed.push_back(test::inTrash("a", "a 3"));
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
    EXPECT_EQ(redoTitle(), "");
    EXPECT_EQ(moves.back().from, Url("/me/docs/a", false));
    EXPECT_EQ(moves.back().to, Url("/trash/files/a 3", false));
    EXPECT_THAT(moved, SizeIs(2));
    undo->undo();
    EXPECT_EQ(workspace.putBacks.back().item.to, Url("/trash/files/a 3", false));
}

TEST_F(TrashUndoTest, WhatCannotBeDoneAgainSaysWhyAndStaysUndone)
{
    move({"a"});
    undo->undo();
    comesBack("a");
    undo->redo();
    end({}, "'a' cannot be moved to the trash, because something else is called so now.");
    EXPECT_EQ(undoTitle(), "");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “a”");
    EXPECT_THAT(alert.told, SizeIs(1));
    EXPECT_THAT(moves, SizeIs(1));
}

TEST_F(TrashUndoTest, AListThatCannotBeWrittenIsSaid)
{
    begin({"a"});
    RecycleResult result;
    result.trashed.push_back(test::inTrash("a"));
    result.journalError = "The disk is full.";
    ASSERT_TRUE(workspace.finishRecycling(result));
    ASSERT_THAT(alert.told, SizeIs(1));
    EXPECT_EQ(
        alert.told[0].messageText,
        QStringLiteral("The list of moves to the trash cannot be written"));
    EXPECT_EQ(alert.told[0].informativeText, QStringLiteral("The disk is full."));
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
}

TEST_F(TrashUndoTest, WhoeverAskedHearsOfAMoveBeforeItIsAStep)
{
    std::size_t steps = 1;
    undo->recycle({Url("/me/docs/a", false)}, [&](const RecycleResult&) { steps = moved.size(); });
    end({"a"});
    EXPECT_EQ(steps, 0U);
    EXPECT_THAT(moved, SizeIs(1));
}

TEST_F(TrashUndoTest, TheProgramMayEndWhileAnItemComesBack)
{
    move({"a"});
    undo->undo();
    undo.reset();
    comesBack("a");
    EXPECT_THAT(moves, IsEmpty());
}

TEST_F(TrashUndoTest, TheProgramMayEndWhileAQuestionIsOpen)
{
    move({"a"});
    undo->undo();
    alert.meanwhile = [this] { undo.reset(); };
    stays(PutBackObstacle::FolderGone);
    EXPECT_THAT(workspace.putBacks, SizeIs(1));
}

} // namespace
} // namespace tessera
