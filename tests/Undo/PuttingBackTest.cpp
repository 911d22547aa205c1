// SPDX-License-Identifier: MIT
#include "Undo/PuttingBack.h"

#include "TrashUndoFixture.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class PuttingBackTest : public testing::Test {
protected:
    void begin(std::vector<TrashedItem> items)
    {
        putting.begin(
            std::move(items),
            [this](std::size_t item, const PutBackResult&) { heard.push_back(item); },
            [this](const std::vector<PutBackResult>& all) {
                for (const PutBackResult& result : all) {
                    ended.push_back(result.obstacle);
                }
                isDone = true;
            });
    }

    void answer(PutBackObstacle obstacle, const std::string& freeName = {})
    {
        PutBackResult result;
        result.obstacle = obstacle;
        if (obstacle == PutBackObstacle::None) {
            result.place = Url("/me/docs/a", false);
        } else {
            result.error = "'a' was not put back.";
        }
        result.freeName = freeName;
        ASSERT_TRUE(workspace.finishPuttingBack(result));
    }

    test::FakeWorkspace workspace;
    test::FakeAlert alert;
    PuttingBack putting{workspace, alert};
    std::vector<std::size_t> heard;
    std::vector<PutBackObstacle> ended;
    bool isDone = false;
};

TEST_F(PuttingBackTest, ANameThatIsTakenIsAQuestion)
{
    begin({test::inTrash("a")});
    answer(PutBackObstacle::NameTaken, "a 2");
    ASSERT_THAT(alert.asked, SizeIs(1));
    EXPECT_EQ(
        alert.asked[0].messageText, QStringLiteral("There is something new in the place of “a”"));
    EXPECT_EQ(
        alert.asked[0].informativeText,
        QStringLiteral("It has the same name, in the folder “docs”, and is not replaced."));
    EXPECT_EQ(
        alert.asked[0].buttons,
        (QStringList{QStringLiteral("Put back as “a 2”"), QStringLiteral("Cancel")}));
    EXPECT_EQ(alert.asked[0].defaultButton, 1);
}

TEST_F(PuttingBackTest, TheItemComesBackUnderTheNameThatTheUserAgreesTo)
{
    begin({test::inTrash("a")});
    answer(PutBackObstacle::NameTaken, "a 2");
    ASSERT_THAT(workspace.putBacks, SizeIs(2));
    EXPECT_EQ(workspace.putBacks[1].name, "a 2");
    EXPECT_EQ(workspace.putBacks[1].item, test::inTrash("a"));
    EXPECT_FALSE(isDone);
    answer(PutBackObstacle::None);
    EXPECT_TRUE(isDone);
    EXPECT_THAT(ended, ElementsAre(PutBackObstacle::None));
}

TEST_F(PuttingBackTest, AFolderThatIsGoneIsAQuestion)
{
    begin({test::inTrash("a")});
    answer(PutBackObstacle::FolderGone);
    ASSERT_THAT(alert.asked, SizeIs(1));
    EXPECT_EQ(alert.asked[0].messageText, QStringLiteral("The folder that “a” was in is gone"));
    EXPECT_EQ(
        alert.asked[0].buttons,
        (QStringList{QStringLiteral("Make the folder again"), QStringLiteral("Cancel")}));
    EXPECT_EQ(alert.asked[0].defaultButton, 1);
    ASSERT_THAT(workspace.putBacks, SizeIs(2));
    EXPECT_EQ(workspace.putBacks[1].missingFolders, MissingFolders::Make);
}

TEST_F(PuttingBackTest, WhatTheUserAgreedToHoldsWhenSomethingElseStandsInTheWayThen)
{
    begin({test::inTrash("a")});
    answer(PutBackObstacle::FolderGone);
    answer(PutBackObstacle::NameTaken, "a 2");
    answer(PutBackObstacle::NameTaken, "a 3");
    ASSERT_THAT(workspace.putBacks, SizeIs(4));
    EXPECT_EQ(workspace.putBacks[3].missingFolders, MissingFolders::Make);
    EXPECT_EQ(workspace.putBacks[3].name, "a 3");
    EXPECT_THAT(alert.asked, SizeIs(3));
}

TEST_F(PuttingBackTest, TheItemMayBeGoneWhenTheAnswerComes)
{
    begin({test::inTrash("a")});
    answer(PutBackObstacle::NameTaken, "a 2");
    answer(PutBackObstacle::ItemGone);
    EXPECT_THAT(ended, ElementsAre(PutBackObstacle::ItemGone));
    EXPECT_THAT(alert.told, SizeIs(1));
}

TEST_F(PuttingBackTest, CancelLeavesTheItemWithoutAnotherWord)
{
    alert.answer = Alert::kFirstButton + 1;
    begin({test::inTrash("a")});
    answer(PutBackObstacle::NameTaken, "a 2");
    EXPECT_THAT(workspace.putBacks, SizeIs(1));
    EXPECT_THAT(ended, ElementsAre(PutBackObstacle::NameTaken));
    EXPECT_THAT(alert.told, IsEmpty());
}

TEST_F(PuttingBackTest, ATakenNameWithoutAFreeOneIsSaid)
{
    begin({test::inTrash("a")});
    answer(PutBackObstacle::NameTaken);
    EXPECT_THAT(alert.asked, IsEmpty());
    ASSERT_THAT(alert.told, SizeIs(1));
    EXPECT_EQ(alert.told[0].informativeText, QStringLiteral("'a' was not put back."));
    EXPECT_EQ(alert.told[0].buttons, QStringList{QStringLiteral("OK")});
}

TEST_F(PuttingBackTest, NoLetterOfTheOtherNameIsAMnemonic)
{
    begin({test::inTrash("a&b")});
    answer(PutBackObstacle::NameTaken, "a&b 2");
    EXPECT_EQ(alert.asked.at(0).buttons.front(), QStringLiteral("Put back as “a&&b 2”"));
    EXPECT_EQ(workspace.putBacks.at(1).name, "a&b 2");
}

class PuttingBackInVain : public PuttingBackTest,
                          public testing::WithParamInterface<PutBackObstacle> { };

TEST_P(PuttingBackInVain, WhatHasNoWayOnIsSaid)
{
    begin({test::inTrash("a")});
    answer(GetParam());
    EXPECT_THAT(alert.asked, IsEmpty());
    EXPECT_THAT(alert.told, SizeIs(1));
    EXPECT_THAT(ended, ElementsAre(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Obstacles,
    PuttingBackInVain,
    testing::Values(
        PutBackObstacle::FolderReplaced,
        PutBackObstacle::LinkOnTheWay,
        PutBackObstacle::ItemGone,
        PutBackObstacle::ItemInDoubt,
        PutBackObstacle::TrashGone,
        PutBackObstacle::OtherDisk,
        PutBackObstacle::ReadOnly,
        PutBackObstacle::NoPermission,
        PutBackObstacle::DiskFull,
        PutBackObstacle::Uncertain,
        PutBackObstacle::Failed));

TEST_F(PuttingBackTest, EachItemIsToldBeforeTheNextOnesTurn)
{
    begin({test::inTrash("a"), test::inTrash("b")});
    answer(PutBackObstacle::None);
    EXPECT_THAT(heard, ElementsAre(0U));
    EXPECT_FALSE(isDone);
    answer(PutBackObstacle::None);
    EXPECT_THAT(heard, ElementsAre(0U, 1U));
    EXPECT_TRUE(isDone);
}

TEST_F(PuttingBackTest, SeveralItemsThatStayAreSaidAtOnce)
{
    const std::vector<TrashedItem> items(7, test::inTrash("a"));
    begin(items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        answer(PutBackObstacle::ReadOnly);
    }
    ASSERT_THAT(alert.told, SizeIs(1));
    EXPECT_EQ(alert.told[0].messageText, QStringLiteral("7 items were not put back"));
    EXPECT_EQ(alert.told[0].informativeText.count(QLatin1Char('\n')), 5);
    EXPECT_TRUE(alert.told[0].informativeText.endsWith(QStringLiteral("and 2 more")));
}

TEST_F(PuttingBackTest, NothingToPutBackIsDoneAtOnce)
{
    begin({});
    EXPECT_TRUE(isDone);
}

} // namespace
} // namespace tessera
