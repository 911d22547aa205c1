// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/BasketTrasher.h"

#include "BasketTrasherFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr int kCancel = Alert::kFirstButton + 1;

using BasketTrasherTest = test::BasketTrasherFixture;

TEST_F(BasketTrasherTest, AsksOnceAndMovesAllAtOnce)
{
    moveAll({"docs/a", "c", "docs/deep"});
    EXPECT_EQ(alert.asked.size(), 1U);
    ASSERT_EQ(workspace.recycled.size(), 1U);
    EXPECT_THAT(asked(), ElementsAre("docs/a", "c", "docs/deep"));
    EXPECT_TRUE(trasher->isMoving());
}

TEST_F(BasketTrasherTest, TellsTheSizeOfAll)
{
    moveAll({"docs/a", "c"});
    EXPECT_THAT(question(), HasSubstr("2 items (600 B)"));
    EXPECT_EQ(workspace.recycledItems[0].bytes, 500U);
    EXPECT_EQ(workspace.recycledItems[1].bytes, 100U);
}

TEST_F(BasketTrasherTest, CancellingLeavesAllAsItIs)
{
    alert.answer = kCancel;
    moveAll({"docs/a", "c"});
    EXPECT_FALSE(isAskedToMove());
    EXPECT_EQ(basket.basket().size(), 2U);
    EXPECT_FALSE(trasher->isMoving());
    EXPECT_EQ(endCount, 1);
    EXPECT_THAT(alert.told, IsEmpty());
}

TEST_F(BasketTrasherTest, ReturnCancels)
{
    moveAll({"c"});
    EXPECT_EQ(alert.asked[0].buttons.at(alert.asked[0].defaultButton), QStringLiteral("Cancel"));
}

TEST_F(BasketTrasherTest, EachItemIsToGoAsItWasChosen)
{
    ItemAnswer answer = fileOf(0);
    answer.state.identity = {3, 77};
    saysOf("c", answer);
    moveAll({"c"});
    ASSERT_EQ(workspace.recycledItems.size(), 1U);
    ASSERT_TRUE(workspace.recycledItems[0].expected.has_value());
    EXPECT_EQ(workspace.recycledItems[0].expected->state, answer.state);
}

TEST_F(BasketTrasherTest, WhatIsInsideAnotherChosenItemGoesWithThat)
{
    moveAll({"docs/a", "docs"});
    EXPECT_THAT(asked(), ElementsAre("docs"));
    endWithout();
    EXPECT_TRUE(basket.basket().isEmpty());
}

TEST_F(BasketTrasherTest, NothingHappensWithoutItems)
{
    moveAll({});
    EXPECT_THAT(alert.asked, IsEmpty());
    EXPECT_FALSE(trasher->isMoving());
    EXPECT_EQ(endCount, 0);
}

TEST_F(BasketTrasherTest, WhatNobodyCouldLookAtStaysAndTheUserIsToldWhy)
{
    saysOf("c", {ItemAnswer::Outcome::MayNotLook, {}});
    moveAll({"c", "d"});
    EXPECT_THAT(asked(), ElementsAre("d"));
    EXPECT_THAT(question(), HasSubstr("one item (50 B)"));
    endWithout();
    EXPECT_EQ(told(), "'c' was not moved, because it could not be looked at when it was chosen.");
    EXPECT_TRUE(basket.basket().isMarked(node("c")));
}

TEST_F(BasketTrasherTest, WhereNothingCanMoveNobodyIsAsked)
{
    saysOf("c", {ItemAnswer::Outcome::Gone, {}});
    moveAll({"c"});
    EXPECT_THAT(alert.asked, IsEmpty());
    EXPECT_FALSE(isAskedToMove());
    EXPECT_EQ(alert.told.size(), 1U);
    EXPECT_EQ(endCount, 1);
}

TEST_F(BasketTrasherTest, TheTreeFollowsAndIsDrawnOnce)
{
    moveAll({"docs/a", "c"});
    EXPECT_EQ(screen.renderCount, 0);
    endWithout();
    EXPECT_THAT(screen.leaving, ElementsAre("a", "c"));
    EXPECT_EQ(model.topFolder()->totalAllocation(), 250U);
    EXPECT_EQ(screen.refreshCount, 1);
    EXPECT_EQ(screen.renderCount, 1);
    EXPECT_FALSE(trasher->isMoving());
    EXPECT_EQ(endCount, 1);
    EXPECT_THAT(alert.told, IsEmpty());
}

TEST_F(BasketTrasherTest, NodesGoUnderTheScannedTrash)
{
    show("a:500 b:100 .Trash/ ( files/ ( ) )");
    moveAll({"a", "b"});
    RecycleResult result;
    for (const char* const name : {"a", "b"}) {
        result.newUrls[node(name).url().absoluteString()]
            = Url(std::string("/Users/me/.Trash/files/") + name, false);
    }
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(node(".Trash/files").totalAllocation(), 600U);
    EXPECT_EQ(screen.renderCount, 1);
}

TEST_F(BasketTrasherTest, TheSelectionIsLeftToTheScreen)
{
    moveAll({"docs/a", "c"});
    endWithout();
    EXPECT_FALSE(screen.isSelectionTaken);
}

TEST_F(BasketTrasherTest, TheBasketTellsOnceOfAllThatHasLeftIt)
{
    moveAll({"docs/a", "c", "docs/deep", "docs/deep/b"});
    endWithout();
    EXPECT_TRUE(basket.basket().isEmpty());
    EXPECT_EQ(changeCount, 1);
}

TEST_F(BasketTrasherTest, AThousandItemsAreOneQuestionOneStepAndOneDrawing)
{
    constexpr int kCount = 1000;
    std::string items;
    std::vector<std::string> names;
    for (int i = 0; i < kCount; ++i) {
        names.push_back("item" + std::to_string(i));
        items += names.back() + ":1 ";
    }
    show(items);
    moveAll(names);
    endWithout();
    EXPECT_EQ(alert.asked.size(), 1U);
    EXPECT_EQ(workspace.recycled.size(), 1U);
    EXPECT_EQ(screen.renderCount, 1);
    EXPECT_EQ(changeCount, 1);
    EXPECT_EQ(trashUndo.undoTitle(), QStringLiteral("&Undo Move to Trash of 1000 items"));
    EXPECT_EQ(model.topFolder()->totalAllocation(), 0U);
}

TEST_F(BasketTrasherTest, WhatStaysIsToldAndStaysInTheBasket)
{
    moveAll({"docs/a", "c", "d"});
    endWithout({"c"});
    ASSERT_EQ(alert.told.size(), 1U);
    EXPECT_EQ(told(), "'c' was not moved.");
    EXPECT_EQ(basket.basket().size(), 1U);
    EXPECT_TRUE(basket.basket().isMarked(node("c")));
    EXPECT_EQ(model.topFolder()->totalAllocation(), 300U);
    EXPECT_EQ(screen.renderCount, 1);
}

TEST_F(BasketTrasherTest, WhatHasMovedIsOneStepAlthoughSomethingStayed)
{
    moveAll({"docs/a", "c", "d"});
    endWithout({"c"});
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps[0].items.size(), 2U);
    EXPECT_EQ(steps[0].bytes(), 550U);
    EXPECT_EQ(trashUndo.undoTitle(), QStringLiteral("&Undo Move to Trash of 2 items"));
}

TEST_F(BasketTrasherTest, WhereAllStaysTheTreeAndTheUndoStay)
{
    moveAll({"c", "d"});
    endWithout({"c", "d"});
    EXPECT_THAT(told(), HasSubstr("'c' was not moved.\n\n'd' was not moved."));
    EXPECT_EQ(screen.renderCount, 0);
    EXPECT_THAT(steps, IsEmpty());
    EXPECT_EQ(basket.basket().size(), 2U);
    EXPECT_EQ(endCount, 1);
}

TEST_F(BasketTrasherTest, AnErrorOfNoItemInParticularIsTold)
{
    moveAll({"c", "d"});
    RecycleResult result;
    result.error = "Nothing was moved.";
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(told(), "Nothing was moved.");
    EXPECT_EQ(basket.basket().size(), 2U);
}

TEST_F(BasketTrasherTest, AFolderThatHadChangedIsToldOfWhereItIs)
{
    moveAll({"docs", "c"});
    RecycleResult result = resultWithout();
    result.grownFolders.emplace_back("/Users/me/docs", true);
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(told(), "“docs” is in the trash, with all that is in it now.");
    EXPECT_TRUE(basket.basket().isEmpty());
}

TEST_F(BasketTrasherTest, WhatIsOnItsWayAlreadyIsPassedOver)
{
    itemTrasher.trash(node("docs"));
    moveAll({"docs/a", "c"});
    EXPECT_THAT(asked(), ElementsAre("c"));
    EXPECT_THAT(question(), Not(HasSubstr("“a”")));
}

TEST_F(BasketTrasherTest, WhereAllIsOnItsWayAlreadyNobodyIsAsked)
{
    itemTrasher.trash(node("c"));
    moveAll({"c"});
    EXPECT_THAT(alert.asked, IsEmpty());
    EXPECT_THAT(alert.told, IsEmpty());
    EXPECT_EQ(endCount, 1);
}

TEST_F(BasketTrasherTest, AnItemThatGoesWithTheBasketIsNotAskedForAlone)
{
    moveAll({"docs", "c"});
    itemTrasher.trash(node("docs/a"));
    itemTrasher.trash(node("c"));
    EXPECT_EQ(workspace.recycled.size(), 1U);
    itemTrasher.trash(node("d"));
    EXPECT_EQ(workspace.recycled.size(), 2U);
}

TEST_F(BasketTrasherTest, WhatStayedCanBeAskedForAgain)
{
    moveAll({"c", "d"});
    endWithout({"c"});
    trasher->begin({});
    EXPECT_EQ(workspace.recycled.size(), 2U);
    EXPECT_THAT(asked(), ElementsAre("c"));
}

TEST_F(BasketTrasherTest, AFileWhoseNamesAllGoLeavesNoneBehindAndCountsOnce)
{
    show("x:700#5/2 y:700#5/2 z:10");
    moveAll({"x", "y", "z"});
    endWithout();
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps[0].otherNames(), OtherNames::None);
    EXPECT_EQ(steps[0].bytes(), 710U);
}

TEST_F(BasketTrasherTest, NamesThatStayInTheTreeKeepTheSpace)
{
    show("docs/ ( x:700#5/2 ) y:700#5/2 z:10");
    moveAll({"y", "z"});
    endWithout();
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps[0].otherNames(), OtherNames::OfFilesInside);
    EXPECT_EQ(steps[0].items[0].bytes, 700U);
}

TEST_F(BasketTrasherTest, SoDoNamesThatWereNotScanned)
{
    show("x:700#5/3 y:700#5/3 z:10");
    moveAll({"x", "y", "z"});
    endWithout();
    EXPECT_EQ(steps[0].otherNames(), OtherNames::OfFilesInside);
}

TEST_F(BasketTrasherTest, AFileOfItsOwnWithAnotherNameIsToldAsThat)
{
    show("x:700#5/2 docs/ ( y:700#5/2 )");
    moveAll({"x"});
    endWithout();
    EXPECT_EQ(steps[0].otherNames(), OtherNames::OfTheFile);
}

TEST_F(BasketTrasherTest, OfAFileWhoseNamesGoOneHasTheSizeAndTheOthersHaveNone)
{
    show("x:700#5/2 y:700#5/2 z:10");
    moveAll({"y", "x", "z"});
    EXPECT_EQ(workspace.recycledItems[0].bytes, std::nullopt);
    EXPECT_EQ(workspace.recycledItems[1].bytes, 700U);
    EXPECT_EQ(workspace.recycledItems[2].bytes, 10U);
}

TEST_F(BasketTrasherTest, ANameWhoseSizeGoesWithAFolderHasNone)
{
    show("docs/ ( x:700#5/2 ) y:700#5/2");
    moveAll({"docs", "y"});
    EXPECT_EQ(workspace.recycledItems[0].bytes, 700U);
    EXPECT_EQ(workspace.recycledItems[1].bytes, std::nullopt);
    endWithout();
    EXPECT_EQ(steps[0].bytes(), 700U);
}

TEST_F(BasketTrasherTest, AnEmptyFileOfSeveralNamesHasItsSize)
{
    show("x:0#5/2 y:0#5/2");
    moveAll({"x", "y"});
    EXPECT_EQ(workspace.recycledItems[0].bytes, 0U);
    EXPECT_EQ(workspace.recycledItems[1].bytes, std::nullopt);
}

TEST_F(BasketTrasherTest, ANameThatStayedKeepsTheSpaceOfOneThatMoved)
{
    show("x:700#5/2 y:700#5/2");
    moveAll({"x", "y"});
    endWithout({"y"});
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps[0].otherNames(), OtherNames::OfTheFile);
    EXPECT_EQ(steps[0].bytes(), 700U);
}

TEST_F(BasketTrasherTest, WhereTheNameWithTheSizeStayedThatOfTheOtherIsNotKnown)
{
    show("x:700#5/2 y:700#5/2");
    moveAll({"x", "y"});
    endWithout({"x"});
    EXPECT_EQ(steps[0].otherNames(), OtherNames::OfTheFile);
    EXPECT_EQ(steps[0].bytes(), std::nullopt);
}

TEST_F(BasketTrasherTest, ANameThatStayedKeepsTheSpaceOfAFileInAFolderThatMoved)
{
    show("docs/ ( x:700#5/2 ) y:700#5/2 z:10");
    moveAll({"docs", "y", "z"});
    endWithout({"y"});
    EXPECT_EQ(steps[0].otherNames(), OtherNames::OfFilesInside);
}

TEST_F(BasketTrasherTest, AFileOfOneNameHasNoOthersThoughOneThatStayedHas)
{
    show("docs/ ( x:700#5/2 ) y:700#5/2 z:10");
    moveAll({"y", "z"});
    endWithout({"y"});
    EXPECT_EQ(steps[0].otherNames(), OtherNames::None);
    EXPECT_EQ(steps[0].bytes(), 10U);
}

TEST_F(BasketTrasherTest, ANodeThatStandsForSeveralNamesLeavesWithAllOthersAtOnce)
{
    constexpr std::size_t kCount = 1000;
    std::string items;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kCount; ++i) {
        const std::string number = std::to_string(i + 1);
        names.push_back("a" + number);
        const std::string linked = ":8#" + number + "/2 ";
        for (const char* name : {"a", "b"}) {
            items.append(name).append(number).append(linked);
        }
    }
    show(items);
    std::set<std::size_t> namesThen;
    screen.whenLeaving = [&] { namesThen.insert(model.topFolder()->linkedNames().size()); };
    moveAll(names);
    endWithout();
    EXPECT_THAT(namesThen, ElementsAre(2 * kCount)) << "looked through once";
    EXPECT_EQ(model.topFolder()->linkedNames().size(), kCount);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 8 * kCount);
}

TEST_F(BasketTrasherTest, WhereNobodyCanTellWhereAnItemIsItIsNotSaidToHaveStayed)
{
    const std::string name(255, 'x');
    show(name + ":5 b:1");
    moveAll({name, "b"});
    RecycleResult result = resultWithout({name});
    const std::string rest
        = "' may be in the trash or where it was, because its disk broke off while it was moved. "
          "Nothing has been removed.";
    result.notMoved[0].reason = "'" + name + rest;
    result.notMoved[0].mayBeAt = Url("/trash/files/" + name, false);
    std::vector<std::vector<Url>> doubts;
    QObject::connect(
        &diskChanges, &DiskChanges::itemInDoubt, [&doubts](const std::vector<Url>& places) {
            doubts.push_back(places);
        });
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(
        alert.told.at(0).messageText,
        QStringLiteral("One item may not have been moved to the trash"));
    EXPECT_THAT(told(), HasSubstr("x" + rest));
    EXPECT_THAT(told(), Not(HasSubstr(std::string(100, 'x'))));
    EXPECT_THAT(
        doubts,
        ElementsAre(
            ElementsAre(Url("/Users/me/" + name, false), Url("/trash/files/" + name, false))));
}

TEST_F(BasketTrasherTest, WarnsOfWhatIsHiddenOrInAHiddenFolder)
{
    show(".cfg/ ( x:10 y:5 ) c:100");
    node(".cfg").setHidden(true);
    moveAll({".cfg/x", "c"});
    EXPECT_THAT(question(), HasSubstr("“x” is hidden, or is in a hidden folder."));
}

TEST_F(BasketTrasherTest, WarnsOfWhatIsInASystemFolder)
{
    show("lib/ ( a:5 ) b:1", "/usr");
    moveAll({"lib/a", "b"});
    EXPECT_THAT(
        question(),
        HasSubstr("“a” and “b” are in system folders: other applications may be using them."));
}

TEST_F(BasketTrasherTest, WhoWantsNoWarningsGetsNone)
{
    modelServices.defaults.setBoolean(kWarnDeleteSystemKey, false);
    modelServices.defaults.setBoolean(kWarnDeleteHiddenKey, false);
    show("a:5", "/usr");
    node("a").setHidden(true);
    moveAll({"a"});
    EXPECT_EQ(alert.asked[0].messageText, QStringLiteral("Move to Trash"));
}

TEST_F(BasketTrasherTest, WarnsOfWhatIsNotTheUsers)
{
    saysOf("c", fileOf(7));
    moveAll({"c", "d"});
    EXPECT_THAT(question(), HasSubstr("“c” belongs to another user."));
}

TEST_F(BasketTrasherTest, WarnsOfWhatAProcessHasOpen)
{
    FreedSpace freed;
    freed.kept.push_back({KeptFiles::Reason::LinksElsewhere, 1, "/Users/me/d"});
    freed.kept.push_back({KeptFiles::Reason::HeldOpen, 1, "/Users/me/c", {{42, "player"}}});
    moveAll({"c"}, freed);
    EXPECT_THAT(question(), HasSubstr("“c” is held open by player (42)."));
    EXPECT_THAT(question(), Not(HasSubstr("“d”")));
}

TEST_F(BasketTrasherTest, WarnsOfTheLastBackups)
{
    show("usb/ ( hourly.0/ ( a:1 ) hourly.1/ ( a:1 ) ) c:100");
    moveAll({"usb/hourly.0", "usb/hourly.1"});
    EXPECT_THAT(question(), HasSubstr("No backup would be left in “usb”."));
}

TEST_F(BasketTrasherTest, ABackupThatStaysWhereItIsIsNone)
{
    show("usb/ ( hourly.0/ ( a:1 ) hourly.1/ ( a:1 ) )");
    saysOf("usb/hourly.1", {ItemAnswer::Outcome::MayNotLook, {}});
    moveAll({"usb/hourly.0", "usb/hourly.1"});
    EXPECT_THAT(question(), Not(HasSubstr("backup")));
}

TEST_F(BasketTrasherTest, OverLinksTheItemsAreMovedFromWhereTheyAre)
{
    model.topFolder()->setRealOrigin("/disk/me");
    moveAll({"docs/a", "c"});
    EXPECT_EQ(workspace.recycled[0][0].path(), "/disk/me/docs/a");
    endWithout();
    EXPECT_EQ(model.topFolder()->totalAllocation(), 250U);
}

} // namespace
} // namespace tessera
