// SPDX-License-Identifier: MIT
// The basket's panel and commands, and the tree screen that they are about.
#include "Basket/BasketKeeper.h"
#include "BasketPanel/BasketPanel.h"
#include "MainWindowFixture.h"

#include <QAbstractItemView>
#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <string_view>

namespace tessera {
namespace {

class BasketInWindow : public test::MainWindowFixture {
protected:
    BasketInWindow() { showTree(); }

    BasketKeeper& keeper() { return services.treeScreen.basket; }
    const Basket& basket() { return keeper().basket(); }
    File& node(std::string_view path) { return test::at(*services.model.topFolder(), path); }

    BasketPanel& panel() const { return *controller->window().findChild<BasketPanel*>(); }
    bool isOpen() const
    {
        return controller->sidePanels().isOpen(
            *controller->window().findChild<QDockWidget*>(QStringLiteral("basket")));
    }

    void add(const char* path)
    {
        select(path);
        controller->perform(Command::AddToBasket);
    }

    /// What the panel's head is about, once that is shown.
    bool headIsAbout(const QString& name) const
    {
        const auto* const head = panel().findChild<QLabel*>(QStringLiteral("basketSubject"));
        return QTest::qWaitFor([head, &name] { return head->text() == name; });
    }

    QPushButton& button(const char* name) const
    {
        return *panel().findChild<QPushButton*>(QString::fromLatin1(name));
    }
};

TEST_F(BasketInWindow, TheFirstItemOpensThePanel)
{
    EXPECT_FALSE(isOpen());
    add("docs/a");
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(basket().isMarked(node("docs/a")));
}

TEST_F(BasketInWindow, APanelThatWasClosedStaysSoForTheSecondItem)
{
    add("docs/a");
    controller->perform(Command::Basket);
    ASSERT_FALSE(isOpen());
    add("docs/b");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(basket().size(), 2U);
}

TEST_F(BasketInWindow, OutOfSightItIsSaidHowManyAreInIt)
{
    add("docs/a");
    controller->perform(Command::Basket);
    add("docs/b");
    const auto said = [this] { return controller->window().findChild<TreeNote*>()->text(); };
    EXPECT_EQ(said(), QStringLiteral("The basket has 2 items."));
    add("docs/b");
    EXPECT_EQ(said(), QStringLiteral("The basket has one item."));
    add("docs/a");
    EXPECT_EQ(said(), QStringLiteral("The basket is empty."));
}

TEST_F(BasketInWindow, APanelThatWasClosedStaysSoWhenTheSameFolderIsScannedAnew)
{
    add("docs/a");
    controller->perform(Command::Basket);
    showTree();
    EXPECT_EQ(basket().size(), 1U);
    EXPECT_FALSE(isOpen());
}

TEST_F(BasketInWindow, AnEmptiedBasketOpensWithTheNextFirstItem)
{
    add("docs/a");
    controller->perform(Command::Basket);
    add("docs/a");
    add("docs/b");
    EXPECT_TRUE(isOpen());
}

TEST_F(BasketInWindow, WhatAScanAnewDoesNotFindIsSaid)
{
    add("docs/a");
    add("c");
    requestScan();
    services.model.setTopFolder(test::makeTree("/data", "docs/ ( b:200 ) c:50"));
    emit services.screens.scanScreen->scanComplete();
    QCoreApplication::processEvents();
    EXPECT_EQ(
        controller->window().findChild<TreeNote*>()->text(),
        QStringLiteral("One item of the basket is not there any more."));
    EXPECT_TRUE(controller->window().findChild<TreeNote*>()->isVisible());
}

TEST_F(BasketInWindow, ItsCommandOpensItWithTheKeyboardInItAndClosesItAgain)
{
    controller->perform(Command::Basket);
    EXPECT_TRUE(isOpen());
    controller->perform(Command::Basket);
    EXPECT_FALSE(isOpen());
}

TEST_F(BasketInWindow, WithoutATreeTheCommandDoesNothing)
{
    controller->homeSelected();
    EXPECT_FALSE(isEnabled(Command::Basket, controller->commandContext()));
    controller->perform(Command::Basket);
    EXPECT_FALSE(isOpen());
}

TEST_F(BasketInWindow, TheMenusEntryTakesOutWhatIsInTheBasket)
{
    add("docs/a");
    EXPECT_TRUE(controller->commandContext().isInBasket);
    controller->perform(Command::AddToBasket);
    EXPECT_TRUE(basket().isEmpty());
}

TEST_F(BasketInWindow, TheHeadIsAboutWhatIsSelectedOrElseTheFolderInView)
{
    controller->perform(Command::Basket);
    EXPECT_TRUE(headIsAbout(QStringLiteral("data")));
    select("docs/a");
    EXPECT_TRUE(headIsAbout(QStringLiteral("a")));
    zoomIntoDocs();
    EXPECT_TRUE(headIsAbout(QStringLiteral("docs")));
}

TEST_F(BasketInWindow, TheHeadsButtonPutsThatIntoTheBasket)
{
    controller->perform(Command::Basket);
    select("docs/a");
    ASSERT_TRUE(headIsAbout(QStringLiteral("a")));
    button("basketToggle").click();
    EXPECT_TRUE(basket().isMarked(node("docs/a")));
}

TEST_F(BasketInWindow, AnItemOfTheListIsShownInThePicture)
{
    add("c");
    zoomIntoDocs();
    emit panel().showRequested(&node("c"));
    EXPECT_EQ(controller->treeVC()->selectedFile(), &node("c"));
    EXPECT_EQ(controller->treeVC()->currentFolder(), services.model.topFolder());
}

TEST_F(BasketInWindow, ABoxThatIsDroppedIsInTheBasket)
{
    emit panel().dropped("/data/docs/a");
    EXPECT_TRUE(basket().isMarked(node("docs/a")));
}

TEST_F(BasketInWindow, WhatIsGoneWhenItIsDroppedIsNotInTheBasket)
{
    emit panel().dropped("/data/docs/gone");
    EXPECT_TRUE(basket().isEmpty());
}

TEST_F(BasketInWindow, WhatIsDroppedOnTheHomeScreenIsNotInTheBasket)
{
    controller->homeSelected();
    emit panel().dropped("/data/docs/a");
    EXPECT_TRUE(basket().isEmpty());
}

TEST_F(BasketInWindow, TheSameFolderScannedAnewHasTheSameBasket)
{
    add("docs/a");
    add("c");
    showTree();
    EXPECT_EQ(basket().size(), 2U);
    EXPECT_TRUE(basket().isMarked(node("docs/a")));
    EXPECT_TRUE(basket().isMarked(node("c")));
}

TEST_F(BasketInWindow, AnotherFoldersTreeHasAnEmptyBasket)
{
    add("docs/a");
    requestScan("/other");
    services.model.setTopFolder(test::makeTree("/other", "docs/ ( a:700 ) c:50"));
    emit services.screens.scanScreen->scanComplete();
    QCoreApplication::processEvents();
    EXPECT_TRUE(basket().isEmpty());
}

TEST_F(BasketInWindow, AllOfItMovesToTheTrashAsOneStep)
{
    add("docs/a");
    add("c");
    button("basketMoveAll").click();
    test::FakeWorkspace& workspace = services.treeScreen.workspace;
    services.treeScreen.mainThread.runUntil([&workspace] { return !workspace.recycled.empty(); });
    EXPECT_EQ(services.treeScreen.alert.asked.size(), 1U);
    EXPECT_EQ(workspace.recycled.at(0).size(), 2U);
}

} // namespace
} // namespace tessera
