// SPDX-License-Identifier: MIT
// Items that the user puts back from among all in the trash.
#include "TrashUndoFixture.h"

#include <gmock/gmock.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ChosenFromTheTrash : public test::TrashUndoFixture {
protected:
    void choose(const std::vector<std::string>& names)
    {
        std::vector<MovedItem> items;
        items.reserve(names.size());
        for (const std::string& name : names) {
            items.push_back({test::inTrash(name), 100});
        }
        undo->putBack(std::move(items));
    }

    std::vector<std::string> comingBack() const
    {
        std::vector<std::string> names;
        for (const TrashedItem& item : undo->comingBack()) {
            names.emplace_back(item.from.lastPathComponent());
        }
        return names;
    }
};

TEST_F(ChosenFromTheTrash, ItemsOfNoStepComeBack)
{
    choose({"old"});
    comesBack("old");
    EXPECT_THAT(back, ElementsAre("/me/docs/old"));
    EXPECT_THAT(moves, SizeIs(1));
    EXPECT_EQ(redoTitle(), "");
}

TEST_F(ChosenFromTheTrash, AnItemLeavesItsStep)
{
    move({"a", "b"});
    choose({"a"});
    comesBack("a");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “b”");
    EXPECT_EQ(redoTitle(), "");
}

TEST_F(ChosenFromTheTrash, StepsWithoutItemsArePassedOver)
{
    move({"a"});
    move({"b"});
    move({"c"});
    choose({"b", "c"});
    comesBack("b");
    comesBack("c");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
}

TEST_F(ChosenFromTheTrash, AStepInTheMiddleMayLoseItsItems)
{
    move({"a"});
    move({"b"});
    move({"c"});
    choose({"b"});
    comesBack("b");
    undo->undo();
    EXPECT_EQ(asked(), "c");
    comesBack("c");
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “c”");
}

TEST_F(ChosenFromTheTrash, WhatIsGoneLeavesItsStepToo)
{
    move({"a"});
    choose({"a"});
    stays(PutBackObstacle::ItemGone);
    EXPECT_EQ(undoTitle(), "");
}

TEST_F(ChosenFromTheTrash, WhatStaysInTheTrashStaysInItsStep)
{
    move({"a"});
    choose({"a"});
    stays(PutBackObstacle::ReadOnly);
    EXPECT_EQ(undoTitle(), "&Undo Move to Trash of “a”");
}

TEST_F(ChosenFromTheTrash, WhatIsChosenDuringAnUndoWaitsForIt)
{
    move({"a"});
    undo->undo();
    choose({"b"});
    EXPECT_THAT(workspace.putBacks, SizeIs(1));
    comesBack("a");
    EXPECT_EQ(asked(), "b");
    EXPECT_EQ(redoTitle(), "");
    comesBack("b");
    EXPECT_EQ(redoTitle(), "&Redo Move to Trash of “a”");
}

TEST_F(ChosenFromTheTrash, WhatIsChosenDuringAMoveWaitsForIt)
{
    begin({"a"});
    choose({"b"});
    EXPECT_THAT(workspace.putBacks, IsEmpty());
    end({"a"});
    EXPECT_EQ(asked(), "b");
}

TEST_F(ChosenFromTheTrash, WhatAnUndoBringsMeanwhileIsNotAskedForAgain)
{
    move({"a"});
    undo->undo();
    choose({"a", "b"});
    comesBack("a");
    EXPECT_EQ(asked(), "b");
    comesBack("b");
    EXPECT_THAT(workspace.putBacks, SizeIs(2));
    EXPECT_FALSE(undo->isBusy());
}

TEST_F(ChosenFromTheTrash, AnUndoMayBringAllThatWasChosen)
{
    move({"a"});
    undo->undo();
    choose({"a"});
    comesBack("a");
    EXPECT_FALSE(undo->isBusy());
    EXPECT_THAT(alert.told, IsEmpty());
}

TEST_F(ChosenFromTheTrash, ChoosingTwiceIsOnce)
{
    choose({"a"});
    choose({"a"});
    comesBack("a");
    EXPECT_FALSE(undo->isBusy());
    EXPECT_THAT(workspace.putBacks, SizeIs(1));
}

TEST_F(ChosenFromTheTrash, WhatCouldNotComeBackMayBeChosenAgain)
{
    choose({"a"});
    stays(PutBackObstacle::ReadOnly);
    choose({"a"});
    EXPECT_THAT(workspace.putBacks, SizeIs(2));
}

TEST_F(ChosenFromTheTrash, WhatIsChosenIsComingBackUntilTheDiskHasAnswered)
{
    choose({"a"});
    choose({"b"});
    EXPECT_THAT(comingBack(), ElementsAre("a", "b"));
    comesBack("a");
    EXPECT_THAT(comingBack(), ElementsAre("b"));
    stays(PutBackObstacle::ReadOnly);
    EXPECT_THAT(comingBack(), IsEmpty());
}

TEST_F(ChosenFromTheTrash, WhatWaitsForAMoveIsComingBack)
{
    begin({"stuck"});
    choose({"a"});
    EXPECT_THAT(workspace.putBacks, IsEmpty());
    EXPECT_THAT(comingBack(), ElementsAre("a"));
}

TEST_F(ChosenFromTheTrash, WhatAnUndoBringsIsComingBack)
{
    move({"a", "b"});
    undo->undo();
    EXPECT_THAT(comingBack(), ElementsAre("a", "b"));
    comesBack("a");
    comesBack("b");
    EXPECT_THAT(comingBack(), IsEmpty());
}

TEST_F(ChosenFromTheTrash, WhatAnUndoBringsIsNotAskedForTwice)
{
    move({"a"});
    undo->undo();
    choose({"a"});
    stays(PutBackObstacle::ReadOnly);
    EXPECT_THAT(workspace.putBacks, SizeIs(1));
    EXPECT_FALSE(undo->isBusy());
}

TEST_F(ChosenFromTheTrash, WhatIsComingBackIsTold)
{
    std::vector<std::size_t> told;
    QObject::connect(
        undo.get(), &TrashUndo::changed, [this, &told] { told.push_back(comingBack().size()); });
    choose({"a"});
    EXPECT_EQ(told.back(), 1U);
    comesBack("a");
    EXPECT_EQ(told.back(), 0U);
}

TEST_F(ChosenFromTheTrash, BothPlacesOfAnItemAreInDoubtWhenItsDiskBreaksOff)
{
    std::vector<std::string> inDoubt;
    QObject::connect(
        &diskChanges, &DiskChanges::itemInDoubt, [&inDoubt](const std::vector<Url>& places) {
            for (const Url& place : places) {
                inDoubt.push_back(place.path());
            }
        });
    choose({"a"});
    stays(PutBackObstacle::ReadOnly);
    EXPECT_THAT(inDoubt, IsEmpty());
    choose({"a"});
    stays(PutBackObstacle::Uncertain);
    EXPECT_THAT(inDoubt, ElementsAre("/me/docs/a", "/trash/files/a"));
}

} // namespace
} // namespace tessera
