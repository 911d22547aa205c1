// SPDX-License-Identifier: MIT
#include "TreeScreen/ClickBox.h"
#include "TreeScreen/TreeViewControllerFixture.h"

#include <QContextMenuEvent>

#include <gtest/gtest.h>

#include <memory>

namespace tessera {
namespace {

class TreeClicksTest : public test::TreeViewControllerFixture {
protected:
    void click(const File& file) { test::clickBox(view, file); }

    void doubleClick(File& file) { emit view.doubleClickTreeItem(file); }
};

TEST_F(TreeClicksTest, AClickSelectsAndRebuildsThePicture)
{
    click(node("c\xFF"));
    EXPECT_EQ(controller->selectedFile(), &node("c\xFF"));
    EXPECT_TRUE(node("c\xFF").selected());
}

TEST_F(TreeClicksTest, AnotherClickMovesTheSelection)
{
    click(node("c\xFF"));
    click(node("docs/a"));
    EXPECT_EQ(controller->selectedFile(), &node("docs/a"));
    EXPECT_FALSE(node("c\xFF").selected());
}

TEST_F(TreeClicksTest, ARightClickSelectsAndOpensTheMenuThere)
{
    const Rect box = view.findRectForFile(node("c\xFF")).value();
    const QPoint point(static_cast<int>(box.x) + 5, static_cast<int>(box.y) + 5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, view.mapToGlobal(point));
    QApplication::sendEvent(&view, &event);
    EXPECT_EQ(controller->selectedFile(), &node("c\xFF"));
    EXPECT_TRUE(node("c\xFF").selected());
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->pos(), view.mapToGlobal(point));
    QApplication::activePopupWidget()->close();
}

TEST_F(TreeClicksTest, ADoubleClickZoomsIntoTheSelectedFolder)
{
    services.motion.reduced = false;
    controller->setSelectedFile(&node("docs"));
    doubleClick(node("docs"));
    EXPECT_EQ(controller->currentFolder(), &node("docs"));
    EXPECT_TRUE(view.isZooming());
}

TEST_F(TreeClicksTest, ADoubleClickWithoutASelectionDoesNothing)
{
    services.motion.reduced = false;
    doubleClick(node("docs"));
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_FALSE(view.isZooming());
}

TEST_F(TreeClicksTest, ADoubleClickOnADocumentPreviewsIt)
{
    select("docs/a");
    doubleClick(node("docs/a"));
    EXPECT_TRUE(panel.isOpen());
}

TEST_F(TreeClicksTest, ADoubleClickOnWhatStandsForNoFileDoesNothing)
{
    const std::unique_ptr<FreeSpace> space = makeNode<FreeSpace>("");
    const std::unique_ptr<Unknown> unknown = makeNode<Unknown>("");
    const std::unique_ptr<TimeMachine> backups = makeNode<TimeMachine>("");
    for (File* const node :
         {static_cast<File*>(space.get()),
          static_cast<File*>(unknown.get()),
          static_cast<File*>(backups.get())}) {
        controller->setSelectedFile(node);
        doubleClick(*node);
        EXPECT_FALSE(panel.isOpen()) << node->name();
        EXPECT_EQ(controller->currentFolder(), model.topFolder()) << node->name();
        EXPECT_EQ(controller->selectedFile(), node) << node->name();
    }
    controller->setSelectedFile(nullptr);
}

} // namespace
} // namespace tessera
