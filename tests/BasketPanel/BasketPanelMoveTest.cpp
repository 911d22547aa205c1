// SPDX-License-Identifier: MIT
#include "BasketPanelFixture.h"
#include "support/BecomesActive.h"

namespace tessera {
namespace {

/// The way to moving all that is in the basket.
class BasketPanelMoveTest : public test::BasketPanelFixture {
protected:
    QPushButton& moveAll() const { return button("basketMoveAll"); }

    void click() const { QTest::mouseClick(&moveAll(), Qt::LeftButton); }
};

TEST_F(BasketPanelMoveTest, IsAskedForOnceTheDiskHasSaidWhatItFrees)
{
    freeing.itemStates->setAnswer("/home/me/c", {ItemAnswer::Outcome::Gone, {}});
    add({"docs", "c"});
    open();
    click();
    EXPECT_EQ(moveAll().text(), QStringLiteral("Looking at the Items…"));
    EXPECT_FALSE(moveAll().isEnabled());
    EXPECT_TRUE(moveRequests.empty());
    ASSERT_TRUE(disk.hearNext());
    ASSERT_EQ(moveRequests.size(), 1U);
    ASSERT_EQ(moveRequests[0].kept.size(), 1U);
    EXPECT_EQ(moveRequests[0].kept[0].largest, "/home/me/c");
    EXPECT_EQ(moveAll().text(), QStringLiteral("Move All to Trash…"));
    EXPECT_TRUE(moveAll().isEnabled());
}

TEST_F(BasketPanelMoveTest, WhatTheDiskSaysOtherwiseAsksForNothing)
{
    add({"docs"});
    open();
    ASSERT_TRUE(disk.hearNext());
    EXPECT_TRUE(moveRequests.empty());
}

TEST_F(BasketPanelMoveTest, AsksTheDiskAnewEachTime)
{
    add({"c"});
    open();
    click();
    ASSERT_TRUE(disk.hearNext());
    freeing.itemStates->setAnswer("/home/me/c", {ItemAnswer::Outcome::Gone, {}});
    click();
    ASSERT_TRUE(disk.hearNext());
    ASSERT_EQ(moveRequests.size(), 2U);
    EXPECT_TRUE(moveRequests[0].kept.empty());
    EXPECT_FALSE(moveRequests[1].kept.empty());
}

TEST_F(BasketPanelMoveTest, ABasketThatChangesMeanwhileIsAskedAboutAnew)
{
    freeing.itemStates->setAnswer("/home/me/c", {ItemAnswer::Outcome::Gone, {}});
    add({"docs", "c"});
    open();
    click();
    ASSERT_TRUE(disk.awaitNext());
    keeper.remove(at("c"));
    ASSERT_TRUE(disk.hear());
    EXPECT_TRUE(moveRequests.empty());
    ASSERT_TRUE(disk.hearNext());
    ASSERT_EQ(moveRequests.size(), 1U);
    EXPECT_TRUE(moveRequests[0].kept.empty());
}

TEST_F(BasketPanelMoveTest, ABasketThatIsEmptiedMeanwhileIsNotMoved)
{
    add({"docs"});
    open();
    click();
    ASSERT_TRUE(disk.awaitNext());
    keeper.clear();
    ASSERT_TRUE(disk.hear());
    ASSERT_TRUE(catchesUp());
    EXPECT_TRUE(moveRequests.empty());
    EXPECT_FALSE(moveAll().isEnabled());
    EXPECT_EQ(moveAll().text(), QStringLiteral("Move All to Trash…"));
    add({"c"});
    ASSERT_TRUE(catchesUp());
    ASSERT_TRUE(disk.hearNext());
    EXPECT_TRUE(moveRequests.empty());
}

TEST_F(BasketPanelMoveTest, AClickBeforeChangesAreShownIsAboutThemAsWell)
{
    add({"docs"});
    open();
    keeper.add(at("c"));
    freeing.itemStates->setAnswer("/home/me/c", {ItemAnswer::Outcome::Gone, {}});
    ASSERT_TRUE(isBehind());
    click();
    ASSERT_TRUE(disk.hearNext());
    ASSERT_EQ(moveRequests.size(), 1U);
    ASSERT_EQ(moveRequests[0].kept.size(), 1U);
    EXPECT_EQ(moveRequests[0].kept[0].largest, "/home/me/c");
}

TEST_F(BasketPanelMoveTest, ClosedMeanwhileNothingMoves)
{
    add({"docs"});
    open();
    click();
    ASSERT_TRUE(disk.awaitNext());
    panel.hide();
    ASSERT_TRUE(disk.hear());
    EXPECT_TRUE(moveRequests.empty());
    open();
    ASSERT_TRUE(disk.hearNext());
    EXPECT_TRUE(moveRequests.empty());
    EXPECT_TRUE(moveAll().isEnabled());
}

TEST_F(BasketPanelMoveTest, TheKeyboardStaysInThePanel)
{
    add({"docs"});
    open();
    ASSERT_TRUE(test::becomesActive(panel));
    moveAll().setFocus();
    QTest::keyClick(&moveAll(), Qt::Key_Space);
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(BasketPanelMoveTest, WhileItIsUnderWayTheButtonSaysSo)
{
    add({"docs"});
    open();
    panel.setMoving(true);
    EXPECT_FALSE(moveAll().isEnabled());
    EXPECT_EQ(moveAll().text(), QStringLiteral("Moving to Trash…"));
    panel.setMoving(false);
    EXPECT_TRUE(moveAll().isEnabled());
    EXPECT_EQ(moveAll().text(), QStringLiteral("Move All to Trash…"));
}

TEST_F(BasketPanelMoveTest, WhileItIsUnderWayNothingIsTakenOut)
{
    add({"docs", "c"});
    open();
    panel.setMoving(true);
    ASSERT_TRUE(catchesUp());
    list().setCurrentIndex(list().model()->index(0, 0));
    QTest::keyClick(&list(), Qt::Key_Delete);
    QTest::mouseClick(&button("basketEmpty"), Qt::LeftButton);
    EXPECT_EQ(keeper.basket().size(), 2U);
    panel.setMoving(false);
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(keeper.basket().size(), 1U);
}

TEST_F(BasketPanelMoveTest, WhileItIsUnderWayNoFigureIsWorkedOut)
{
    add({"docs", "c"});
    open();
    panel.setMoving(true);
    ASSERT_TRUE(catchesUp());
    QCoreApplication::processEvents();
    EXPECT_FALSE(part<WillFreeView>("basketFreed").isVisible());
    EXPECT_EQ(
        list().model()->index(0, BasketModel::WillFree).data().toString(), QStringLiteral("…"));
    panel.setMoving(false);
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(freed("basketFreed"), QStringLiteral("Will free: 850 B, once the trash is emptied"));
}

TEST_F(BasketPanelMoveTest, AMoveThatBeginsElsewhereEndsTheWish)
{
    add({"docs"});
    open();
    click();
    ASSERT_TRUE(disk.awaitNext());
    panel.setMoving(true);
    ASSERT_TRUE(disk.hear());
    panel.setMoving(false);
    ASSERT_TRUE(disk.hearNext());
    EXPECT_TRUE(moveRequests.empty());
}

} // namespace
} // namespace tessera
