// SPDX-License-Identifier: MIT
// Steps of several items of which not all go the same way.
#include "TrashUndoFixture.h"

#include <gmock/gmock.h>

#include <optional>
#include <utility>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using StepOfSeveralItems = test::TrashUndoFixture;

TEST_F(StepOfSeveralItems, AllItemsComeBackOneAfterTheOther)
{
    move({"a", "b"});
    undo->undo();
    EXPECT_THAT(workspace.putBacks, SizeIs(1));
    comesBack("a");
    comesBack("b");
    EXPECT_THAT(back, ElementsAre("/me/docs/a", "/me/docs/b"));
    EXPECT_EQ(undoTitle(), "");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of 2 items");
}

TEST_F(StepOfSeveralItems, WhatCameBackCanBeDoneAgainAndTheRestUndone)
{
    move({"a", "b", "c"});
    undo->undo();
    comesBack("a");
    stays(PutBackObstacle::ReadOnly);
    comesBack("c");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of 2 items");
}

TEST_F(StepOfSeveralItems, TheRestComesBackAfterWhatCameBackBefore)
{
    move({"a", "b"});
    undo->undo();
    comesBack("a");
    stays(PutBackObstacle::ReadOnly);
    undo->undo();
    EXPECT_EQ(asked(), "b");
    comesBack("b");
    EXPECT_EQ(undoTitle(), "");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “b”");
    undo->redo();
    end({"b"});
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “a”");
}

TEST_F(StepOfSeveralItems, OtherStepsStayWhereTheyAreWhenOneIsDivided)
{
    move({"x"});
    move({"a", "b"});
    move({"y"});
    undo->undo();
    comesBack("y");
    undo->undo();
    comesBack("a");
    stays(PutBackObstacle::ReadOnly);
    undo->redo();
    end({"a"});
    undo->redo();
    end({"y"});
    EXPECT_EQ(redoTitle(), "");
    for (const char* name : {"y", "a", "b", "x"}) {
        undo->undo();
        EXPECT_EQ(asked(), name);
        comesBack(name);
    }
    EXPECT_EQ(undoTitle(), "");
}

TEST_F(StepOfSeveralItems, WhatIsGoneLeavesTheStep)
{
    move({"a", "b"});
    undo->undo();
    stays(PutBackObstacle::ItemGone);
    comesBack("b");
    EXPECT_EQ(undoTitle(), "");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “b”");
}

TEST_F(StepOfSeveralItems, WhatIsNeitherBackNorGoneStaysInOneStep)
{
    move({"a", "b", "c"});
    undo->undo();
    stays(PutBackObstacle::ReadOnly);
    stays(PutBackObstacle::ItemGone);
    stays(PutBackObstacle::NoPermission);
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of 2 items");
    EXPECT_EQ(redoTitle(), "");
}

TEST_F(StepOfSeveralItems, CancellingOneQuestionLeavesTheRestUntried)
{
    move({"a", "b", "c"});
    undo->undo();
    comesBack("a");
    alert.answer = Alert::kFirstButton + 1;
    stays(PutBackObstacle::FolderGone);
    EXPECT_THAT(workspace.putBacks, SizeIs(2));
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of 2 items");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “a”");
    EXPECT_THAT(alert.told, IsEmpty());
}

TEST_F(StepOfSeveralItems, WhatIsDoneAgainCanBeUndoneAndTheRestDoneAgain)
{
    move({"a", "b"});
    undo->undo();
    comesBack("a");
    comesBack("b");
    undo->redo();
    end({"b"}, "No.");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “a”");
}

TEST_F(StepOfSeveralItems, HowManyWereNotDoneAgainIsSaid)
{
    move({"a", "b", "c"});
    undo->undo();
    comesBack("a");
    comesBack("b");
    comesBack("c");
    undo->redo();
    end({"b"}, "'a' stays.");
    ASSERT_THAT(alert.told, SizeIs(1));
    EXPECT_EQ(alert.told[0].messageText, QStringLiteral("2 items were not moved to the trash"));
    EXPECT_EQ(alert.told[0].informativeText, QStringLiteral("'a' stays."));
}

TEST_F(StepOfSeveralItems, WhatIsDoneAgainStaysAStepWhenThereIsNoRoomForAnother)
{
    move({"a", "b"});
    for (int i = 1; i < TrashUndo::kMaxSteps; ++i) {
        move({"x"});
    }
    for (int i = 1; i < TrashUndo::kMaxSteps; ++i) {
        undo->undo();
        comesBack("x");
    }
    undo->undo();
    comesBack("a");
    comesBack("b");
    undo->redo();
    end({"a"}, "No.");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “b”");
}

TEST_F(StepOfSeveralItems, AStepMayBeDividedWhenThereIsNoRoomForAnother)
{
    for (int i = 1; i < TrashUndo::kMaxSteps; ++i) {
        move({"x"});
    }
    move({"a", "b"});
    undo->undo();
    comesBack("a");
    stays(PutBackObstacle::ReadOnly);
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “a”");
}

/// "a" and "b" are all names of one file.
class StepOfOneFile : public test::TrashUndoFixture {
protected:
    StepOfOneFile()
    {
        const AskedStep step{
            {OtherNames::OfTheFile, OtherNames::OfTheFile},
            AskedTogether{2, 100, OtherNames::None}};
        std::vector<ItemToRecycle> items;
        items.emplace_back(test::inTrash("a").from, 100);
        items.emplace_back(test::inTrash("b").from);
        undo->recycle(
            std::move(items), [](const RecycleResult&) {}, step);
    }

    void goAndComeBack()
    {
        end({"a", "b"});
        undo->undo();
        comesBack("a");
        comesBack("b");
        undo->redo();
    }
};

TEST_F(StepOfOneFile, TakesItsSpaceWithItAsAWhole)
{
    end({"a", "b"});
    EXPECT_EQ(moved.back().otherNames(), OtherNames::None);
    EXPECT_EQ(moved.back().bytes(), 100U);
}

TEST_F(StepOfOneFile, LeavesItWhereANameStays)
{
    end({"a"});
    EXPECT_EQ(moved.back().otherNames(), OtherNames::OfTheFile);
    EXPECT_EQ(moved.back().bytes(), 100U);
}

TEST_F(StepOfOneFile, DoneAgainItTakesTheSpaceAsBefore)
{
    goAndComeBack();
    end({"a", "b"});
    EXPECT_EQ(moved.back().otherNames(), OtherNames::None);
    EXPECT_EQ(moved.back().bytes(), 100U);
}

TEST_F(StepOfOneFile, DoneAgainInPartItLeavesIt)
{
    goAndComeBack();
    end({"b"}, "No.");
    EXPECT_EQ(moved.back().otherNames(), OtherNames::OfTheFile);
    EXPECT_EQ(moved.back().bytes(), std::nullopt);
}

TEST_F(StepOfOneFile, DoneAgainWhatIsInDoubtIsNotSaidToHaveStayed)
{
    std::vector<std::vector<Url>> doubts;
    QObject::connect(
        &diskChanges, &DiskChanges::itemInDoubt, [&doubts](const std::vector<Url>& places) {
            doubts.push_back(places);
        });
    goAndComeBack();
    const TrashedItem b = test::inTrash("b");
    RecycleResult result;
    result.error = "Who knows.";
    result.notMoved = {{test::inTrash("a").from, "No.", {}}, {b.from, "Who knows.", b.to}};
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(
        alert.told.back().messageText,
        QStringLiteral("2 items may not have been moved to the trash"));
    EXPECT_THAT(doubts, ElementsAre(ElementsAre(b.from, b.to)));
}

} // namespace
} // namespace tessera
