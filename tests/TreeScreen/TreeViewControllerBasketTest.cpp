// SPDX-License-Identifier: MIT
#include "TreeScreen/ClickBox.h"
#include "TreeScreen/TreeViewControllerFixture.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

class TreeViewControllerBasketTest : public test::TreeViewControllerFixture {
protected:
    const Basket& basket() const { return services.basket.basket(); }
};

TEST_F(TreeViewControllerBasketTest, BPutsTheSelectedItemIntoTheBasketAndTakesItOutAgain)
{
    select("docs/a");
    EXPECT_TRUE(press(Qt::Key_B));
    EXPECT_TRUE(basket().isMarked(node("docs/a")));
    EXPECT_TRUE(controller->commandContext().isInBasket);
    EXPECT_TRUE(press(Qt::Key_B));
    EXPECT_TRUE(basket().isEmpty());
    EXPECT_FALSE(controller->commandContext().isInBasket);
}

TEST_F(TreeViewControllerBasketTest, BWithNothingSelectedSaysWhatIsMissing)
{
    EXPECT_FALSE(press(Qt::Key_B));
    EXPECT_EQ(said(), QStringLiteral("Select a file or a folder first."));
    EXPECT_TRUE(basket().isEmpty());
}

TEST_F(TreeViewControllerBasketTest, AKeyThatIsHeldDownChoosesOnce)
{
    select("docs/a");
    press(Qt::Key_B);
    controller->keyDown(
        QKeyEvent(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, QStringLiteral("b"), true));
    EXPECT_TRUE(basket().isMarked(node("docs/a")));
}

TEST_F(TreeViewControllerBasketTest, NothingOnTheDiskMoves)
{
    select("docs/a");
    press(Qt::Key_B);
    EXPECT_TRUE(services.workspace.recycled.empty());
    EXPECT_EQ(controller->selectedFile(), &node("docs/a"));
}

TEST_F(TreeViewControllerBasketTest, TheBoxIsMarkedAtOnce)
{
    select("docs/a");
    controller->renderTree();
    const QImage before = view.picture().copy();
    press(Qt::Key_B);
    EXPECT_NE(view.picture(), before);
}

TEST_F(TreeViewControllerBasketTest, InMidZoomTheSelectedItemIsChosenAsEver)
{
    services.motion.reduced = false;
    select("docs");
    press(Qt::Key_Return);
    ASSERT_TRUE(view.isZooming());
    controller->setSelectedFile(&node("docs/b"));
    EXPECT_TRUE(press(Qt::Key_B));
    EXPECT_TRUE(basket().isMarked(node("docs/b")));
}

TEST_F(TreeViewControllerBasketTest, AnItemThatIsMovedToTheTrashByItselfLeavesTheBasket)
{
    select("docs/a");
    press(Qt::Key_B);
    press(Qt::Key_Delete);
    ASSERT_TRUE(services.workspace.finishRecycling({}));
    EXPECT_TRUE(basket().isEmpty());
}

TEST_F(TreeViewControllerBasketTest, AnItemThatThePictureShowsIsShownWhereItIs)
{
    controller->showItem(node("docs/a"));
    EXPECT_EQ(controller->selectedFile(), &node("docs/a"));
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
}

TEST_F(TreeViewControllerBasketTest, AnItemOutOfSightIsShownInItsFolder)
{
    select("docs");
    press(Qt::Key_Return);
    controller->showItem(node("c\xFF"));
    EXPECT_EQ(controller->selectedFile(), &node("c\xFF"));
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_TRUE(view.shows(node("c\xFF")));
}

TEST_F(TreeViewControllerBasketTest, AnItemIsShownInTheMiddleOfAZoom)
{
    services.motion.reduced = false;
    select("docs");
    press(Qt::Key_Return);
    ASSERT_TRUE(view.isZooming());
    controller->showItem(node("c\xFF"));
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(controller->selectedFile(), &node("c\xFF"));
}

TEST_F(TreeViewControllerBasketTest, WhatIsLostIsSaid)
{
    emit services.basket.lost(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(said(), QStringLiteral("One item of the basket is not there any more."));
    emit services.basket.lost(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(said(), QStringLiteral("3 items of the basket are not there any more."));
}

} // namespace
} // namespace tessera
