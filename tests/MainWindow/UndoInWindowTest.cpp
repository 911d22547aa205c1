// SPDX-License-Identifier: MIT
// Undo and redo as the user asks for them, on whichever screen.
#include "Commands/CommandTable.h"
#include "MainWindowFixture.h"
#include "Model/NodeLookup.h"
#include "Undo/TrashUndo.h"

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <optional>

namespace tessera {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class UndoInWindow : public test::MainWindowFixture {
protected:
    /// The user moves "docs/a", which takes 700 bytes, to a trash outside the tree.
    void trashA()
    {
        beginToTrashA();
        endToTrashA();
    }

    void beginToTrashA()
    {
        select("docs/a");
        controller->perform(Command::MoveToTrash);
    }

    void endToTrashA()
    {
        RecycleResult result;
        TrashedItem item;
        item.from = Url("/data/docs/a", false);
        item.to = Url("/trash/files/a", false);
        item.identity = {7, 1};
        result.trashed.push_back(item);
        result.newUrls["file:///data/docs/a"] = item.to;
        ASSERT_TRUE(workspace.finishRecycling(result));
    }

    void comesBack(const char* place = "/data/docs/a")
    {
        PutBackResult result;
        result.place = Url(place, false);
        result.item = {{7, 1}, {}, 1, 700};
        ASSERT_TRUE(workspace.finishPuttingBack(result));
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(&controller->window(), key, modifiers);
    }

    /// The entry of the Edit menu.
    QAction& entry(Command command)
    {
        const QList<QAction*> menus = controller->window().menuBar()->actions();
        const auto edit = std::ranges::find(menus, titleOf(MainMenu::Edit), &QAction::text);
        const int row = command == Command::Undo ? 0 : 1;
        return *(*edit)->menu()->actions().at(row);
    }

    std::uint64_t total() { return services.model.topFolder()->totalAllocation(); }

    test::FakeWorkspace& workspace = services.treeScreen.workspace;
};

TEST_F(UndoInWindow, TheEditMenuSaysWhatWouldBeUndone)
{
    showTree();
    trashA();
    EXPECT_TRUE(entry(Command::Undo).isEnabled());
    EXPECT_EQ(entry(Command::Undo).text(), QStringLiteral("&Undo Move to Trash of “a”"));
    EXPECT_FALSE(entry(Command::Redo).isEnabled());
    EXPECT_EQ(entry(Command::Redo).text(), QStringLiteral("&Redo"));
}

TEST_F(UndoInWindow, TheEditMenuSaysWhyNothingCanBeUndone)
{
    EXPECT_FALSE(entry(Command::Undo).isEnabled());
    EXPECT_EQ(entry(Command::Undo).toolTip(), QStringLiteral("There is nothing to undo."));
    EXPECT_EQ(entry(Command::Redo).toolTip(), QStringLiteral("There is nothing to redo."));
}

TEST_F(UndoInWindow, CtrlZBringsTheItemBackIntoTheTree)
{
    showTree();
    trashA();
    ASSERT_EQ(total(), 250U);
    press(Qt::Key_Z);
    ASSERT_THAT(workspace.putBacks, SizeIs(1));
    EXPECT_FALSE(entry(Command::Undo).isEnabled());
    comesBack();
    EXPECT_EQ(total(), 950U);
    EXPECT_EQ(entry(Command::Redo).text(), QStringLiteral("&Redo Move to Trash of “a”"));
}

TEST_F(UndoInWindow, CtrlShiftZMovesTheItemAgain)
{
    showTree();
    trashA();
    press(Qt::Key_Z);
    comesBack();
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_THAT(workspace.recycled, SizeIs(2));
    RecycleResult result;
    result.trashed.push_back(
        {.from = Url("/data/docs/a", false),
         .to = Url("/trash/files/a", false),
         .identity = {7, 1}});
    ASSERT_TRUE(workspace.finishRecycling(result));
    EXPECT_EQ(total(), 250U);
    EXPECT_EQ(entry(Command::Undo).text(), QStringLiteral("&Undo Move to Trash of “a”"));
}

TEST_F(UndoInWindow, PressedTwiceFastItIsOnce)
{
    showTree();
    trashA();
    press(Qt::Key_Z);
    press(Qt::Key_Z);
    EXPECT_THAT(workspace.putBacks, SizeIs(1));
}

TEST_F(UndoInWindow, ItWorksOnTheHomeScreen)
{
    showTree();
    trashA();
    controller->homeSelected();
    press(Qt::Key_Z);
    ASSERT_THAT(workspace.putBacks, SizeIs(1));
    comesBack();
    EXPECT_TRUE(entry(Command::Redo).isEnabled());
}

TEST_F(UndoInWindow, AMoveThatEndsOnTheHomeScreenCanBeUndone)
{
    showTree();
    beginToTrashA();
    EXPECT_FALSE(entry(Command::Undo).isEnabled());
    controller->homeSelected();
    endToTrashA();
    EXPECT_EQ(entry(Command::Undo).text(), QStringLiteral("&Undo Move to Trash of “a”"));
}

TEST_F(UndoInWindow, AMoveIsKnownWithItsSize)
{
    std::optional<std::uint64_t> bytes;
    QObject::connect(
        &services.treeScreen.trashUndo, &TrashUndo::moved, [&bytes](const TrashStep& step) {
            bytes = step.bytes();
        });
    showTree();
    trashA();
    EXPECT_EQ(bytes, 700U);
}

TEST_F(UndoInWindow, WhatComesBackDuringAScanIsInTheNewTree)
{
    showTree();
    trashA();
    requestScan();
    press(Qt::Key_Z);
    comesBack("/data/docs/a 2");
    finishScan();
    EXPECT_NE(nodeAtPath(*services.model.topFolder(), "/data/docs/a 2"), nullptr);
    EXPECT_EQ(total(), 950U + 700U);
}

TEST_F(UndoInWindow, WhatTheScanMetAfterItCameBackCountsOnce)
{
    showTree();
    trashA();
    requestScan();
    press(Qt::Key_Z);
    comesBack();
    finishScan();
    EXPECT_EQ(total(), 950U);
}

TEST_F(UndoInWindow, WhatComesBackElsewhereLeavesTheTreeAsItIs)
{
    showTree();
    trashA();
    press(Qt::Key_Z);
    comesBack("/other/a");
    EXPECT_EQ(total(), 250U);
}

TEST_F(UndoInWindow, TheTreeMayBeAnotherOneWhenTheAnswerComes)
{
    showTree();
    trashA();
    press(Qt::Key_Z);
    services.treeScreen.alert.meanwhile = [this] {
        requestScan("/elsewhere");
        services.model.setTopFolder(test::makeTree("/elsewhere", "x:5"));
        emit services.screens.scanScreen->scanComplete();
    };
    PutBackResult result;
    result.obstacle = PutBackObstacle::FolderGone;
    result.error = "'a' was not put back.";
    ASSERT_TRUE(workspace.finishPuttingBack(result));
    comesBack();
    EXPECT_EQ(total(), 5U);
    EXPECT_TRUE(entry(Command::Redo).isEnabled());
}

TEST_F(UndoInWindow, AFolderInViewElsewhereStaysInView)
{
    showTree();
    trashA();
    zoomIntoDocs();
    controller->perform(Command::ZoomOut);
    zoomIntoDocs();
    press(Qt::Key_Z);
    comesBack("/data/new");
    EXPECT_EQ(controller->treeVC()->currentFolder()->name(), "docs");
    EXPECT_EQ(total(), 950U);
}

TEST_F(UndoInWindow, InATextFieldItIsTheFieldsOwn)
{
    showTree();
    trashA();
    QLineEdit field(controller->window().centralWidget());
    field.show();
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("word"));
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.text(), QString());
    EXPECT_THAT(workspace.putBacks, IsEmpty());
}

} // namespace
} // namespace tessera
