// SPDX-License-Identifier: MIT
// The context menu of the tree screen, in its window.
#include "Commands/CommandTable.h"
#include "MainWindow/MainWindowController.h"
#include "MainWindowFixture.h"
#include "QuickLook/QuickLookPanel.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>

namespace tessera {
namespace {

using testing::ElementsAre;

class ContextMenuTest : public test::MainWindowFixture {
protected:
    /// Of the menu bar.
    QAction& action(Command command) const
    {
        const QList<QAction*> actions = controller->window().actions();
        return **std::ranges::find(actions, titleOf(rowOf(command)), &QAction::text);
    }

    QMenu& openContextMenu(const char* path) const
    {
        select(path);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(&map(), &event);
        return *qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
};

TEST_F(ContextMenuTest, TheContextMenuShowsTheActionsOfTheMenuBar)
{
    showTree();
    const QMenu& menu = openContextMenu("docs");
    EXPECT_TRUE(menu.actions().contains(&action(Command::ZoomIn)));
    EXPECT_TRUE(menu.actions().contains(&action(Command::Rescan)));
}

/// The scanned folder goes for another when it is scanned again, and the screen with it.
TEST_F(ContextMenuTest, AnEntryOfTheContextMenuMayEndTheTreeScreen)
{
    showTree();
    QMenu& menu = openContextMenu("docs");
    controller->treeVC()->setSelectedFile(nullptr);
    QAction* const rescan = menu.actions().at(menu.actions().indexOf(&action(Command::Rescan)));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(rescan).center());
    EXPECT_EQ(controller->treeVC(), nullptr);
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data", "/data"));
}

TEST_F(ContextMenuTest, QuickLookInTheContextMenuLeavesAnOpenPreviewOpen)
{
    showTree();
    select("c");
    const QMenu& menu = openContextMenu("c");
    ASSERT_TRUE(menu.actions().contains(&action(Command::QuickLook)));
    action(Command::QuickLook).trigger();
    EXPECT_TRUE(QuickLookPanel::sharedInstance().isOpen());
    action(Command::QuickLook).trigger();
    EXPECT_TRUE(QuickLookPanel::sharedInstance().isOpen());
}

} // namespace
} // namespace tessera
