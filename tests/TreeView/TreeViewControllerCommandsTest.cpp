// SPDX-License-Identifier: MIT
#include "FileOps/CompressWindowController.h"
#include "Model/FreeSpace.h"
#include "Model/NotificationCenter.h"
#include "Model/RootModel.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"
#include "QuickLook/QuickLookPanel.h"
#include "TreeView/SelectionPreview.h"
#include "TreeView/TreeBranch.h"
#include "TreeView/TreeMapView.h"
#include "TreeView/TreeViewController.h"
#include "support/FakeRootModelServices.h"
#include "support/FakeTreeViewServices.h"
#include "support/makeTree.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace tessera {
namespace {

class TreeViewControllerCommandsTest : public testing::Test {
protected:
    TreeViewControllerCommandsTest()
    {
        services.motion.reduced = true;
        panel.setMotionPreference(&services.motion);
        model.setTopFolder(test::makeTree("/data", "docs/ ( a:500000 b:200000 ) c\xFF:300000"));
        view.resize(400, 300);
        view.show();
        controller = std::make_unique<TreeViewController>(model, view, services.get());
    }
    ~TreeViewControllerCommandsTest() override
    {
        panel.orderOut();
        panel.setMotionPreference(nullptr);
    }

    File& node(std::string_view path) { return test::at(*model.topFolder(), path); }
    void select(std::string_view path) { controller->setSelectedFile(&node(path)); }

    bool press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return controller->keyDown(QKeyEvent(QEvent::KeyPress, key, modifiers));
    }

    void pressMenuKey()
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(&view, &event);
    }

    bool canDo(TreeCommand command) const { return controller->validate(command); }

    /// What is said on the picture; empty while nothing is.
    QString said() const
    {
        const auto* const note = view.findChild<TreeNote*>();
        return note->isVisible() ? note->text() : QString();
    }

    test::FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    test::FakeTreeViewServices services;
    QuickLookPanel& panel = QuickLookPanel::sharedInstance();
    TreeMapView view{services.defaults};
    std::unique_ptr<TreeViewController> controller;
};

TEST_F(TreeViewControllerCommandsTest, WithoutASelectionNoCommandButRescanMakesSense)
{
    EXPECT_TRUE(canDo(TreeCommand::Rescan));
    for (const TreeCommand command :
         {TreeCommand::QuickLook,
          TreeCommand::ShowInFinder,
          TreeCommand::ZoomIn,
          TreeCommand::Ignore,
          TreeCommand::Compress,
          TreeCommand::MoveToTrash}) {
        EXPECT_FALSE(canDo(command));
    }
}

TEST_F(TreeViewControllerCommandsTest, OnlyFoldersAreZoomedIntoAndRescanned)
{
    select("docs");
    EXPECT_TRUE(canDo(TreeCommand::ZoomIn));
    EXPECT_TRUE(canDo(TreeCommand::Rescan));
    select("docs/a");
    EXPECT_FALSE(canDo(TreeCommand::ZoomIn));
    EXPECT_FALSE(canDo(TreeCommand::Rescan));
    EXPECT_TRUE(canDo(TreeCommand::MoveToTrash));
}

TEST_F(TreeViewControllerCommandsTest, SpaceIsNeitherMovedNorCompressed)
{
    const auto space = makeNode<FreeSpace>("");
    controller->setSelectedFile(space.get());
    for (const TreeCommand command : {TreeCommand::Compress, TreeCommand::MoveToTrash}) {
        EXPECT_FALSE(canDo(command));
        controller->perform(command);
    }
    EXPECT_EQ(services.archiver.program, "");
    EXPECT_TRUE(services.workspace.recycled.empty());
    controller->setSelectedFile(nullptr);
}

TEST_F(TreeViewControllerCommandsTest, ShowsAFileInTheFileManager)
{
    select("docs/a");
    controller->perform(TreeCommand::ShowInFinder);
    EXPECT_EQ(services.workspace.revealed, std::vector<std::string>{"/data/docs/a"});
}

TEST_F(TreeViewControllerCommandsTest, SaysWhenThereIsNoFileManager)
{
    services.workspace.answer = false;
    select("docs/a");
    controller->perform(TreeCommand::ShowInFinder);
    EXPECT_EQ(services.alert.told.size(), 1U);
}

TEST_F(TreeViewControllerCommandsTest, SaysSoAlsoWhenThatIsKnownLater)
{
    services.workspace.answersLater = true;
    select("docs");
    controller->perform(TreeCommand::ShowInFinder);
    ASSERT_TRUE(services.alert.told.empty());
    services.workspace.lateAnswer(false);
    ASSERT_EQ(services.alert.told.size(), 1U);
    EXPECT_TRUE(services.alert.told[0].informativeText.contains(QStringLiteral("'docs'")));
}

TEST_F(TreeViewControllerCommandsTest, NobodyIsToldWhenTheScreenIsGoneByThen)
{
    services.workspace.answersLater = true;
    select("docs");
    controller->perform(TreeCommand::ShowInFinder);
    controller.reset();
    services.workspace.lateAnswer(false);
    EXPECT_TRUE(services.alert.told.empty());
}

TEST_F(TreeViewControllerCommandsTest, MovesTheSelectedItemToTheTrash)
{
    select("c\xFF");
    controller->perform(TreeCommand::MoveToTrash);
    ASSERT_EQ(services.workspace.recycled.size(), 1U);
    EXPECT_EQ(services.workspace.recycled[0][0].path(), "/data/c\xFF");
}

TEST_F(TreeViewControllerCommandsTest, WhatIsInViewEndsWhenItIsTrashed)
{
    select("docs");
    const Url url = node("docs").url();
    controller->trashItem();
    controller->zoomIn();
    select("docs/a");
    ASSERT_EQ(controller->currentFolder(), &node("docs"));
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/trash/docs", true);
    ASSERT_TRUE(services.workspace.finishRecycling(result));
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_EQ(controller->selectedFile(), nullptr);
}

TEST_F(TreeViewControllerCommandsTest, CompressesTheSelectedItem)
{
    select("docs");
    controller->perform(TreeCommand::Compress);
    EXPECT_EQ(services.archiver.program, "/archiver");
    EXPECT_EQ(
        services.archiver.arguments,
        (std::vector<std::string>{
            "-c", "-k", "--sequesterRsrc", "--folder", "/data/docs", "/data/docs.zip"}));
    services.archiver.output = "1 2\n"; // the file that it made
    services.archiver.onTerminated(1);
    QTRY_COMPARE(services.workspace.recycled.size(), 1U);
    ASSERT_TRUE(services.workspace.finishRecycling({}));
    QTRY_VERIFY(services.archiver.isDestroyed);
    QTest::qWait(0);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveJoinsTheTree)
{
    services.resourceValues.size = 4096;
    NotificationCenter::defaultCenter().post("ItemCompressed", Url("/data/docs/a.zip", false));
    EXPECT_EQ(node("docs/a.zip").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs/a.zip").type(), NodeType::Document);
    EXPECT_EQ(node("docs").totalAllocation(), 704096U);
    EXPECT_EQ(view.branches().front()->layoutItems().size(), 2U);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveOfAScanOverALinkIsMadeWhereTheItemIs)
{
    model.topFolder()->setRealOrigin("/disk");
    select("docs");
    controller->perform(TreeCommand::Compress);
    EXPECT_EQ(
        services.archiver.arguments,
        (std::vector<std::string>{
            "-c", "-k", "--sequesterRsrc", "--folder", "/disk/docs", "/disk/docs.zip"}));
    services.archiver.output = "1 2\n"; // the file that it made
    services.archiver.onTerminated(1);
    QTRY_COMPARE(services.workspace.recycled.size(), 1U);
    ASSERT_TRUE(services.workspace.finishRecycling({}));
    QTRY_VERIFY(services.archiver.isDestroyed);
    QTest::qWait(0);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveOfAScanOverALinkJoinsTheTree)
{
    model.topFolder()->setRealOrigin("/disk");
    services.resourceValues.sizes["/disk/docs/a.zip"] = 4096;
    NotificationCenter::defaultCenter().post("ItemCompressed", Url("/disk/docs/a.zip", false));
    EXPECT_EQ(node("docs/a.zip").totalAllocation(), 4096U);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveThatARescanMetIsNotAddedTwice)
{
    services.resourceValues.size = 4096;
    select("docs/a");
    NotificationCenter::defaultCenter().post("ItemCompressed", Url("/data/docs/a", false));
    EXPECT_EQ(node("docs/a").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs").totalAllocation(), 204096U);
    EXPECT_EQ(controller->selectedFile(), nullptr);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveThatCannotBeReadHasNoSize)
{
    NotificationCenter::defaultCenter().post("ItemCompressed", Url("/data/docs/a.zip", false));
    EXPECT_EQ(node("docs/a.zip").totalAllocation(), 0U);
}

TEST_F(TreeViewControllerCommandsTest, AnArchiveElsewhereIsNobodysConcern)
{
    NotificationCenter::defaultCenter().post("ItemCompressed", Url("/trash/a.zip", false));
    NotificationCenter::defaultCenter().post("ItemCompressed");
    EXPECT_EQ(model.topFolder()->totalAllocation(), 1000000U);
}

TEST_F(TreeViewControllerCommandsTest, ADoubleClickOnADocumentPreviewsIt)
{
    select("docs/a");
    NotificationCenter::defaultCenter().post("DoubleClickTreeItem");
    EXPECT_TRUE(panel.isOpen());
}

TEST_F(TreeViewControllerCommandsTest, ADoubleClickOnWhatStandsForNoFileDoesNothing)
{
    const std::unique_ptr<FreeSpace> space = makeNode<FreeSpace>("");
    const std::unique_ptr<Unknown> unknown = makeNode<Unknown>("");
    const std::unique_ptr<TimeMachine> backups = makeNode<TimeMachine>("");
    for (File* const node :
         {static_cast<File*>(space.get()),
          static_cast<File*>(unknown.get()),
          static_cast<File*>(backups.get())}) {
        controller->setSelectedFile(node);
        NotificationCenter::defaultCenter().post("DoubleClickTreeItem");
        EXPECT_FALSE(panel.isOpen()) << node->name();
        EXPECT_EQ(controller->currentFolder(), model.topFolder()) << node->name();
        EXPECT_EQ(controller->selectedFile(), node) << node->name();
    }
    controller->setSelectedFile(nullptr);
}

TEST_F(TreeViewControllerCommandsTest, ThePreviewHasOneItemWhateverIsSelected)
{
    EXPECT_EQ(panel.dataSource()->numberOfPreviewItemsInPreviewPanel(), 1);
    EXPECT_TRUE(panel.dataSource()->previewItemAtIndex(0).previewItemURL().empty());
    select("docs/a");
    EXPECT_EQ(panel.dataSource()->numberOfPreviewItemsInPreviewPanel(), 1);
    EXPECT_EQ(
        panel.dataSource()->previewItemAtIndex(7).previewItemURL(), Url("/data/docs/a", false));
}

TEST_F(TreeViewControllerCommandsTest, ThePreviewLooksWhereTheLinksToTheScanLed)
{
    model.topFolder()->setRealOrigin("/disk");
    select("docs/a");
    EXPECT_EQ(
        panel.dataSource()->previewItemAtIndex(0).previewItemURL(), Url("/disk/docs/a", false));
}

TEST_F(TreeViewControllerCommandsTest, ThePreviewGrowsOutOfTheSelectedBox)
{
    select("c\xFF");
    const Rect box = view.findRectForFile(node("c\xFF")).value();
    const QRectF frame = panel.delegate()->sourceFrameOnScreenForPreviewItem(
        panel.dataSource()->previewItemAtIndex(0));
    EXPECT_EQ(frame.topLeft(), view.mapToGlobal(QPointF(box.x, box.y)));
    EXPECT_EQ(frame.size(), QSizeF(box.width, box.height));
}

TEST_F(TreeViewControllerCommandsTest, WhatIsNotInThePictureHasNoPlaceToGrowOutOf)
{
    EXPECT_TRUE(panel.delegate()
                    ->sourceFrameOnScreenForPreviewItem(panel.dataSource()->previewItemAtIndex(0))
                    .isEmpty());
}

TEST_F(TreeViewControllerCommandsTest, KeysInThePreviewReachTheTreeScreen)
{
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
    EXPECT_TRUE(panel.delegate()->handleEvent(down));
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Left, Qt::NoModifier);
    EXPECT_FALSE(panel.delegate()->handleEvent(up));
}

TEST_F(TreeViewControllerCommandsTest, GoingAwayTakesThePreviewAlong)
{
    select("docs/a");
    controller->quickLook();
    controller.reset();
    EXPECT_FALSE(panel.isOpen());
    EXPECT_EQ(panel.dataSource(), nullptr);
    EXPECT_EQ(panel.delegate(), nullptr);
}

TEST_F(TreeViewControllerCommandsTest, ArrowsMoveTheSelection)
{
    EXPECT_TRUE(press(Qt::Key_Right));
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
    const Rect docs = view.findRectForFile(node("docs")).value();
    const Rect c = view.findRectForFile(node("c\xFF")).value();
    EXPECT_TRUE(press(c.x > docs.x ? Qt::Key_Right : Qt::Key_Down));
    EXPECT_EQ(controller->selectedFile(), &node("c\xFF"));
    EXPECT_FALSE(press(c.x > docs.x ? Qt::Key_Right : Qt::Key_Down));
}

TEST_F(TreeViewControllerCommandsTest, AMovedSelectionIsDrawn)
{
    const QImage before = view.picture().copy();
    press(Qt::Key_Right);
    EXPECT_NE(view.picture(), before);
}

TEST_F(TreeViewControllerCommandsTest, EnterZoomsIntoAFolder)
{
    EXPECT_FALSE(press(Qt::Key_Return));
    select("docs");
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_EQ(controller->currentFolder(), &node("docs"));
}

TEST_F(TreeViewControllerCommandsTest, EnterPreviewsADocument)
{
    select("c\xFF");
    EXPECT_TRUE(press(Qt::Key_Enter, Qt::KeypadModifier));
    EXPECT_TRUE(panel.isOpen());
}

TEST_F(TreeViewControllerCommandsTest, BackspaceAndEscapeZoomOut)
{
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Escape}) {
        EXPECT_FALSE(press(key));
        select("docs");
        press(Qt::Key_Return);
        EXPECT_TRUE(press(key));
        EXPECT_EQ(controller->currentFolder(), model.topFolder());
    }
}

TEST_F(TreeViewControllerCommandsTest, SpaceOpensAndClosesThePreview)
{
    EXPECT_FALSE(press(Qt::Key_Space));
    select("docs/a");
    EXPECT_TRUE(press(Qt::Key_Space));
    EXPECT_TRUE(panel.isOpen());
    EXPECT_TRUE(press(Qt::Key_Space));
    EXPECT_FALSE(panel.isOpen());
}

TEST_F(TreeViewControllerCommandsTest, DeleteMovesToTheTrash)
{
    EXPECT_FALSE(press(Qt::Key_Delete));
    select("docs/a");
    EXPECT_TRUE(press(Qt::Key_Delete));
    EXPECT_EQ(services.workspace.recycled.size(), 1U);
}

TEST_F(TreeViewControllerCommandsTest, AHeldDeleteKeyAsksOnce)
{
    select("docs/a");
    const QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), true);
    EXPECT_FALSE(controller->keyDown(repeated));
    EXPECT_TRUE(services.workspace.recycled.empty());
}

TEST_F(TreeViewControllerCommandsTest, KeysWithModifiersAreLeftToOthers)
{
    select("docs/a");
    EXPECT_FALSE(press(Qt::Key_Delete, Qt::ShiftModifier));
    EXPECT_FALSE(press(Qt::Key_Left, Qt::AltModifier));
    EXPECT_FALSE(press(Qt::Key_A));
}

TEST_F(TreeViewControllerCommandsTest, AKeyThatNeedsASelectionSaysSo)
{
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Space, Qt::Key_Return}) {
        controller->renderTree();
        ASSERT_EQ(said(), QString());
        press(key);
        EXPECT_EQ(said(), QStringLiteral("Select a file or a folder first."));
    }
}

TEST_F(TreeViewControllerCommandsTest, AWayOutThatIsNoneSaysSo)
{
    press(Qt::Key_Escape);
    EXPECT_EQ(
        said(),
        QStringLiteral("'data' is all that was scanned. There is no folder around it here."));
}

TEST_F(TreeViewControllerCommandsTest, AnArrowThatLeadsNowhereSaysSo)
{
    press(Qt::Key_Right);
    ASSERT_EQ(said(), QString());
    press(Qt::Key_Left);
    EXPECT_EQ(said(), QStringLiteral("There is no box that way."));
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
}

TEST_F(TreeViewControllerCommandsTest, AKeyThatIsHeldDownSaysItOnce)
{
    press(Qt::Key_Right);
    const QKeyEvent held(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier, QString(), true);
    controller->keyDown(held);
    EXPECT_EQ(said(), QString());
}

TEST_F(TreeViewControllerCommandsTest, WhatWasSaidGoesWithTheNextPicture)
{
    press(Qt::Key_Delete);
    ASSERT_NE(said(), QString());
    press(Qt::Key_Right);
    EXPECT_EQ(said(), QString());
}

TEST_F(TreeViewControllerCommandsTest, KeysOfOthersSayNothing)
{
    press(Qt::Key_A);
    press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(said(), QString());
}

TEST_F(TreeViewControllerCommandsTest, EachCommandHasItsReason)
{
    const QString anything = QStringLiteral("Select a file or a folder first.");
    const QString folder = QStringLiteral("Select a folder first.");
    EXPECT_EQ(controller->whyNot(TreeCommand::ShowInFinder), anything);
    EXPECT_EQ(controller->whyNot(TreeCommand::Compress), anything);
    EXPECT_EQ(controller->whyNot(TreeCommand::ZoomIn), folder);
    EXPECT_EQ(controller->whyNot(TreeCommand::Ignore), folder);
    select("docs/a");
    EXPECT_EQ(controller->whyNot(TreeCommand::ShowInFinder), QString());
    EXPECT_EQ(controller->whyNot(TreeCommand::ZoomIn), folder);
    EXPECT_TRUE(controller->whyNot(TreeCommand::Rescan)
                    .startsWith(QStringLiteral("Only folders can be scanned again.")));
}

TEST_F(TreeViewControllerCommandsTest, TheViewPassesItsKeysOn)
{
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
}

TEST_F(TreeViewControllerCommandsTest, TheMenuKeyOpensTheMenuOfTheSelectedBox)
{
    select("docs");
    controller->renderTree();
    pressMenuKey();
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions().front()->isEnabled());
    QApplication::activePopupWidget()->close();
}

TEST_F(TreeViewControllerCommandsTest, TheMenuKeySaysThatNothingIsSelected)
{
    pressMenuKey();
    EXPECT_EQ(said(), QStringLiteral("Select a file or a folder first."));
}

TEST_F(TreeViewControllerCommandsTest, TheMenuKeySaysSoOfAnItemWithoutABoxOfItsOwn)
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
