// SPDX-License-Identifier: MIT
// What happens while the basket's items wait, while the question is open, and while they move.
#include "BasketTrasherFixture.h"
#include "Model/TreeEdit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class BasketTrasherMeanwhileTest : public test::BasketTrasherFixture {
protected:
    /// A scan of "docs" ends with those items.
    void docsIsReadAnew(std::string_view items)
    {
        File& old = node("docs");
        LooseNode read = loose(test::makeTree("/Users/me/docs", items));
        auto& with = static_cast<Folder&>(*read.node);
        const std::unique_ptr<File> left = exchange(old, std::move(read));
        basket.folderWasReplaced(static_cast<Folder&>(*left), with);
    }

    void leaves(std::string_view path)
    {
        File& item = node(path);
        basket.nodeWillLeave(item);
        takeOut(item);
    }
};

TEST_F(BasketTrasherMeanwhileTest, WaitsUntilAllIsLookedAt)
{
    choose({"c", "d"});
    trasher->begin({});
    EXPECT_THAT(alert.asked, IsEmpty());
    EXPECT_TRUE(trasher->isMoving());
    lookAtAll();
    EXPECT_EQ(alert.asked.size(), 1U);
    EXPECT_THAT(asked(), ElementsAre("c", "d"));
}

TEST_F(BasketTrasherMeanwhileTest, NothingHappensWhereTheBasketChangesWhileItWaits)
{
    choose({"c", "d"});
    trasher->begin({});
    basket.remove(node("c"));
    EXPECT_FALSE(trasher->isMoving());
    EXPECT_EQ(endCount, 1);
    lookAtAll();
    EXPECT_THAT(alert.asked, IsEmpty());
    EXPECT_FALSE(isAskedToMove());
}

TEST_F(BasketTrasherMeanwhileTest, NothingHappensWhereTheScreenGoesWhileItWaits)
{
    choose({"c"});
    trasher->begin({});
    trasher.reset();
    lookAtAll();
    EXPECT_THAT(alert.asked, IsEmpty());
}

TEST_F(BasketTrasherMeanwhileTest, ASecondCallWhileItWaitsDoesNothing)
{
    choose({"c"});
    trasher->begin({});
    trasher->begin({});
    lookAtAll();
    EXPECT_EQ(alert.asked.size(), 1U);
}

TEST_F(BasketTrasherMeanwhileTest, ASecondCallDuringTheQuestionOrTheMoveDoesNothing)
{
    alert.meanwhile = [this] { trasher->begin({}); };
    moveAll({"c", "d"});
    trasher->begin({});
    EXPECT_EQ(alert.asked.size(), 1U);
    EXPECT_EQ(workspace.recycled.size(), 1U);
}

TEST_F(BasketTrasherMeanwhileTest, WhatLeftTheBasketDuringTheQuestionStays)
{
    alert.meanwhile = [this] { basket.remove(node("c")); };
    moveAll({"c", "d"});
    EXPECT_THAT(asked(), ElementsAre("d"));
    endWithout();
    EXPECT_EQ(told(), "'c' was not moved, because it has left the basket meanwhile.");
}

TEST_F(BasketTrasherMeanwhileTest, NothingMovesWhereTheBasketIsClearedDuringTheQuestion)
{
    alert.meanwhile = [this] { basket.clear(); };
    moveAll({"c", "d"});
    EXPECT_FALSE(isAskedToMove());
    EXPECT_EQ(alert.told.size(), 1U);
    EXPECT_EQ(endCount, 1);
}

TEST_F(BasketTrasherMeanwhileTest, WhatIsChosenDuringTheQuestionStaysUnasked)
{
    alert.meanwhile = [this] { basket.add(node("d")); };
    moveAll({"c"});
    EXPECT_THAT(asked(), ElementsAre("c"));
    endWithout();
    EXPECT_TRUE(basket.basket().isMarked(node("d")));
}

TEST_F(BasketTrasherMeanwhileTest, WhatLeftTheTreeDuringTheQuestionIsTold)
{
    alert.meanwhile = [this] { leaves("c"); };
    moveAll({"c", "d"});
    EXPECT_THAT(asked(), ElementsAre("d"));
    endWithout();
    EXPECT_EQ(told(), "'c' was not moved, because it is not there any more.");
}

TEST_F(BasketTrasherMeanwhileTest, WhatARescanMeetsAgainGoesAsItWasWhenItWasAskedAbout)
{
    choose({"docs/a", "d"});
    lookAtAll();
    const std::optional<ExpectedItem> before = basket.expectedOf(node("docs/a"));
    alert.meanwhile = [this] {
        ItemAnswer other = fileOf(0);
        other.state.changed = {1500, 0};
        saysOf("docs/a", other);
        docsIsReadAnew("a:900");
        lookAtAll();
    };
    trasher->begin({});
    EXPECT_THAT(asked(), ElementsAre("docs/a", "d"));
    EXPECT_EQ(workspace.recycledItems[0].expected->state, before->state);
    EXPECT_NE(basket.expectedOf(node("docs/a"))->state, before->state);
    endWithout();
    EXPECT_EQ(node("docs").totalAllocation(), 0U);
}

TEST_F(BasketTrasherMeanwhileTest, WhatARescanFindsAnotherItemInPlaceOfStays)
{
    choose({"docs/a", "d"});
    lookAtAll();
    alert.meanwhile = [this] {
        ItemAnswer other = fileOf(0);
        other.state.identity = {1, 99};
        saysOf("docs/a", other);
        docsIsReadAnew("a:900");
        lookAtAll();
    };
    trasher->begin({});
    EXPECT_THAT(asked(), ElementsAre("d"));
    endWithout();
    EXPECT_EQ(told(), "'a' was not moved, because it has left the basket meanwhile.");
}

TEST_F(BasketTrasherMeanwhileTest, WhatARescanDoesNotMeetAgainIsTold)
{
    alert.meanwhile = [this] { docsIsReadAnew("b:900"); };
    moveAll({"docs/a", "d"});
    EXPECT_THAT(asked(), ElementsAre("d"));
}

TEST_F(BasketTrasherMeanwhileTest, WhatBecameAFolderStays)
{
    alert.meanwhile = [this] { docsIsReadAnew("a/ ( x:1 )"); };
    moveAll({"docs/a", "d"});
    EXPECT_THAT(asked(), ElementsAre("d"));
}

TEST_F(BasketTrasherMeanwhileTest, WhatIsTrashedAloneDuringTheQuestionIsPassedOver)
{
    alert.meanwhile = [this] {
        alert.meanwhile = {};
        itemTrasher.trash(node("c"));
    };
    moveAll({"c", "d"});
    EXPECT_THAT(asked(), ElementsAre("d"));
    EXPECT_EQ(workspace.recycled.size(), 2U);
}

TEST_F(BasketTrasherMeanwhileTest, NothingMovesWhereTheScreenGoesDuringTheQuestion)
{
    alert.meanwhile = [this] {
        trasher.reset();
        moves.reset();
    };
    choose({"c", "d"});
    lookAtAll();
    trasher->begin({});
    EXPECT_FALSE(isAskedToMove());
    EXPECT_THAT(alert.told, IsEmpty());
}

TEST_F(BasketTrasherMeanwhileTest, WhatLeavesTheBasketDuringTheMoveMovesAllTheSame)
{
    moveAll({"c", "d", "docs/a"});
    basket.remove(node("c"));
    endWithout();
    EXPECT_EQ(model.topFolder()->totalAllocation(), 200U);
    basket.clear();
    EXPECT_EQ(screen.renderCount, 1);
}

TEST_F(BasketTrasherMeanwhileTest, WhatIsChosenDuringTheMoveStaysInTheBasket)
{
    moveAll({"c"});
    basket.add(node("d"));
    endWithout();
    EXPECT_EQ(basket.basket().size(), 1U);
    EXPECT_TRUE(basket.basket().isMarked(node("d")));
}

TEST_F(BasketTrasherMeanwhileTest, WhatARescanMetDuringTheMoveIsTakenOutOfTheNewTree)
{
    moveAll({"docs/a", "d"});
    docsIsReadAnew("a:900 x:5");
    endWithout();
    EXPECT_EQ(node("docs").totalAllocation(), 5U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 105U);
}

TEST_F(BasketTrasherMeanwhileTest, WhatARescanNoLongerMeetsDoesNotStopTheOthers)
{
    moveAll({"docs/a", "d"});
    docsIsReadAnew("x:5");
    endWithout();
    EXPECT_EQ(model.topFolder()->totalAllocation(), 105U);
    EXPECT_EQ(screen.renderCount, 1);
}

TEST_F(BasketTrasherMeanwhileTest, NothingIsUndoneDuringTheMove)
{
    moveAll({"c", "d"});
    trashUndo.undo();
    EXPECT_THAT(workspace.putBacks, IsEmpty());
    endWithout();
    EXPECT_FALSE(trashUndo.undoTitle().isEmpty());
}

TEST_F(BasketTrasherMeanwhileTest, AMoveThatEndsWithoutTheScreenIsToldAtOnce)
{
    std::vector<std::vector<ItemMove>> told;
    QObject::connect(
        &diskChanges, &DiskChanges::itemsMoved, [&told](const std::vector<ItemMove>& all) {
            told.push_back(all);
        });
    moveAll({"c", "d", "docs/a"});
    trasher.reset();
    moves.reset();
    endWithout({"d"});
    ASSERT_EQ(told.size(), 1U);
    ASSERT_EQ(told[0].size(), 2U);
    EXPECT_EQ(told[0][0].from.path(), "/Users/me/c");
    EXPECT_EQ(told[0][0].to.path(), "/trash/files/c");
    EXPECT_EQ(told[0][0].bytes, 100U);
    EXPECT_EQ(told[0][1].from.path(), "/Users/me/docs/a");
    EXPECT_EQ(steps.size(), 1U);
}

TEST_F(BasketTrasherMeanwhileTest, OneItemThatMovesWithoutTheScreenIsToldAsGone)
{
    std::vector<Url> gone;
    QObject::connect(
        &diskChanges, &DiskChanges::itemGone, [&gone](const Url& place) { gone.push_back(place); });
    moveAll({"c", "d"});
    trasher.reset();
    moves.reset();
    endWithout({"d"});
    EXPECT_THAT(gone, ElementsAre(Url("/Users/me/c", false)));
}

TEST_F(BasketTrasherMeanwhileTest, ANameThatLeftTheBasketDuringTheQuestionKeepsTheSpace)
{
    show("x:700#5/2 y:700#5/2");
    alert.meanwhile = [this] { basket.remove(node("y")); };
    moveAll({"x", "y"});
    endWithout();
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps[0].otherNames(), OtherNames::OfTheFile);
}

TEST_F(BasketTrasherMeanwhileTest, WhatGoesWithTheBasketDuringItsOwnQuestionIsNotAskedForTwice)
{
    node("c").setHidden(true);
    choose({"c", "d"});
    trasher->begin({});
    alert.meanwhile = [this] {
        alert.meanwhile = {};
        lookAtAll();
    };
    itemTrasher.trash(node("c"));
    ASSERT_EQ(alert.asked.size(), 2U);
    ASSERT_EQ(workspace.recycled.size(), 1U);
    EXPECT_THAT(asked(), ElementsAre("c", "d"));
}

TEST_F(BasketTrasherMeanwhileTest, WhatHasGoneWithTheBasketDuringItsOwnQuestionIsNotAskedForAgain)
{
    node("c").setHidden(true);
    choose({"c", "d"});
    trasher->begin({});
    alert.meanwhile = [this] {
        alert.meanwhile = {};
        lookAtAll();
        endWithout();
    };
    itemTrasher.trash(node("c"));
    EXPECT_EQ(workspace.recycled.size(), 1U);
    EXPECT_EQ(endCount, 1);
}

TEST_F(BasketTrasherMeanwhileTest, AnItemInDoubtIsToldWithoutTheScreen)
{
    std::vector<std::vector<Url>> doubts;
    QObject::connect(
        &diskChanges, &DiskChanges::itemInDoubt, [&doubts](const std::vector<Url>& places) {
            doubts.push_back(places);
        });
    moveAll({"c", "d"});
    trasher.reset();
    moves.reset();
    RecycleResult result = resultWithout({"d"});
    result.notMoved[0].mayBeAt = Url("/trash/files/d", false);
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_THAT(
        doubts, ElementsAre(ElementsAre(Url("/Users/me/d", false), Url("/trash/files/d", false))));
}

} // namespace
} // namespace tessera
