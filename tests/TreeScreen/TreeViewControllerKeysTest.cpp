// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeViewControllerFixture.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

class TreeViewControllerKeysTest : public test::TreeViewControllerFixture { };

TEST_F(TreeViewControllerKeysTest, ArrowsMoveTheSelection)
{
    EXPECT_TRUE(press(Qt::Key_Right));
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
    const Rect docs = view.findRectForFile(node("docs")).value();
    const Rect c = view.findRectForFile(node("c\xFF")).value();
    EXPECT_TRUE(press(c.x > docs.x ? Qt::Key_Right : Qt::Key_Down));
    EXPECT_EQ(controller->selectedFile(), &node("c\xFF"));
    EXPECT_FALSE(press(c.x > docs.x ? Qt::Key_Right : Qt::Key_Down));
}

TEST_F(TreeViewControllerKeysTest, AMovedSelectionIsDrawn)
{
    const QImage before = view.picture().copy();
    press(Qt::Key_Right);
    EXPECT_NE(view.picture(), before);
}

TEST_F(TreeViewControllerKeysTest, EnterZoomsIntoAFolder)
{
    EXPECT_FALSE(press(Qt::Key_Return));
    select("docs");
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_EQ(controller->currentFolder(), &node("docs"));
}

TEST_F(TreeViewControllerKeysTest, EnterPreviewsADocument)
{
    select("c\xFF");
    EXPECT_TRUE(press(Qt::Key_Enter, Qt::KeypadModifier));
    EXPECT_TRUE(panel.isOpen());
}

TEST_F(TreeViewControllerKeysTest, BackspaceAndEscapeZoomOut)
{
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Escape}) {
        EXPECT_FALSE(press(key));
        select("docs");
        press(Qt::Key_Return);
        EXPECT_TRUE(press(key));
        EXPECT_EQ(controller->currentFolder(), model.topFolder());
    }
}

TEST_F(TreeViewControllerKeysTest, SpaceOpensAndClosesThePreview)
{
    EXPECT_FALSE(press(Qt::Key_Space));
    select("docs/a");
    EXPECT_TRUE(press(Qt::Key_Space));
    EXPECT_TRUE(panel.isOpen());
    EXPECT_TRUE(press(Qt::Key_Space));
    EXPECT_FALSE(panel.isOpen());
}

TEST_F(TreeViewControllerKeysTest, DeleteMovesToTheTrash)
{
    EXPECT_FALSE(press(Qt::Key_Delete));
    select("docs/a");
    EXPECT_TRUE(press(Qt::Key_Delete));
    EXPECT_EQ(services.workspace.recycled.size(), 1U);
}

TEST_F(TreeViewControllerKeysTest, AHeldDeleteKeyAsksOnce)
{
    select("docs/a");
    const QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), true);
    EXPECT_FALSE(controller->keyDown(repeated));
    EXPECT_TRUE(services.workspace.recycled.empty());
}

TEST_F(TreeViewControllerKeysTest, KeysWithModifiersAreLeftToOthers)
{
    select("docs/a");
    EXPECT_FALSE(press(Qt::Key_Delete, Qt::ShiftModifier));
    EXPECT_FALSE(press(Qt::Key_Left, Qt::AltModifier));
    EXPECT_FALSE(press(Qt::Key_A));
}

TEST_F(TreeViewControllerKeysTest, AKeyThatNeedsASelectionSaysSo)
{
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Space, Qt::Key_Return}) {
        controller->renderTree();
        ASSERT_EQ(said(), QString());
        press(key);
        EXPECT_EQ(said(), QStringLiteral("Select a file or a folder first."));
    }
}

TEST_F(TreeViewControllerKeysTest, AWayOutThatIsNoneSaysSo)
{
    press(Qt::Key_Escape);
    EXPECT_EQ(
        said(),
        QStringLiteral("'data' is all that was scanned. There is no folder around it here."));
}

TEST_F(TreeViewControllerKeysTest, AnArrowThatLeadsNowhereSaysSo)
{
    press(Qt::Key_Right);
    ASSERT_EQ(said(), QString());
    press(Qt::Key_Left);
    EXPECT_EQ(said(), QStringLiteral("There is no box that way."));
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
}

TEST_F(TreeViewControllerKeysTest, AKeyThatIsHeldDownSaysItOnce)
{
    press(Qt::Key_Right);
    const QKeyEvent held(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier, QString(), true);
    controller->keyDown(held);
    EXPECT_EQ(said(), QString());
}

TEST_F(TreeViewControllerKeysTest, WhatWasSaidGoesWithTheNextPicture)
{
    press(Qt::Key_Delete);
    ASSERT_NE(said(), QString());
    press(Qt::Key_Right);
    EXPECT_EQ(said(), QString());
}

TEST_F(TreeViewControllerKeysTest, KeysOfOthersSayNothing)
{
    press(Qt::Key_A);
    press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(said(), QString());
}

TEST_F(TreeViewControllerKeysTest, EachCommandHasItsReason)
{
    const QString anything = QStringLiteral("Select a file or a folder first.");
    const QString folder = QStringLiteral("Select a folder first.");
    EXPECT_EQ(controller->whyNot(Command::ShowInFinder), anything);
    EXPECT_EQ(controller->whyNot(Command::Compress), anything);
    EXPECT_EQ(controller->whyNot(Command::ZoomIn), folder);
    EXPECT_EQ(controller->whyNot(Command::Ignore), folder);
    select("docs/a");
    EXPECT_EQ(controller->whyNot(Command::ShowInFinder), QString());
    EXPECT_EQ(controller->whyNot(Command::ZoomIn), folder);
    EXPECT_TRUE(controller->whyNot(Command::Rescan)
                    .startsWith(QStringLiteral("Only folders can be scanned again.")));
}

TEST_F(TreeViewControllerKeysTest, TheViewPassesItsKeysOn)
{
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
}

TEST_F(TreeViewControllerKeysTest, TheMenuKeyOpensTheMenuOfTheSelectedBox)
{
    select("docs");
    controller->renderTree();
    pressMenuKey();
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions().front()->isEnabled());
    QApplication::activePopupWidget()->close();
}

TEST_F(TreeViewControllerKeysTest, TheMenuKeySaysThatNothingIsSelected)
{
    pressMenuKey();
    EXPECT_EQ(said(), QStringLiteral("Select a file or a folder first."));
}

TEST_F(TreeViewControllerKeysTest, TheMenuKeySaysSoOfAnItemWithoutABoxOfItsOwn)
{
    model.setTopFolder(test::makeTree("/data", "large:10000000 small:1 tiny:1"));
    controller->setCurrentFolder(model.topFolder());
    select("tiny");
    controller->renderTree();
    ASSERT_EQ(controller->selectedFile(), &node("tiny"));
    pressMenuKey();
    EXPECT_EQ(said(), QStringLiteral("Select a file or a folder first."));
}

} // namespace
} // namespace tessera
