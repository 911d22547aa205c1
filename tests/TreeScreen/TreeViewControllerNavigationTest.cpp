// SPDX-License-Identifier: MIT
#include "Base/Url.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Model/Volume.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/TreeViewController.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeViewServices.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/MakeTree.h"

#include <QKeyEvent>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace tessera {
namespace {

class TreeViewControllerNavigationTest : public testing::Test {
protected:
    TreeViewControllerNavigationTest()
    {
        model.setTopFolder(test::makeTree(
            "/data", "docs/ ( deep/ ( a:400000 b:300000 ) c:200000 ) d\xFF/ ( e:600000 )"));
        view.resize(400, 300);
        controller = std::make_unique<TreeViewController>(model, view, viewServices.get());
    }

    File& node(std::string_view path) { return test::at(*model.topFolder(), path); }
    Folder& folder(std::string_view path) { return static_cast<Folder&>(node(path)); }

    void goTo(Folder& destination)
    {
        controller->setCurrentFolder(&destination);
        controller->renderTree();
    }

    /// What ends it is "recycled".
    void beginToTrashDocs()
    {
        const Url url = node("docs").url();
        controller->setSelectedFile(&node("docs"));
        controller->trashItem();
        recycled.newUrls[url.absoluteString()] = Url("/trash/docs", true);
    }

    void doubleClick(File& file) { emit view.doubleClickTreeItem(file); }

    void showVolume()
    {
        auto volume = makeNode<Volume>("disk");
        volume->setOrigin("/");
        volume->addChild(test::makeTree("/", "a:100"));
        model.setTopFolder(std::move(volume));
        controller = std::make_unique<TreeViewController>(model, view, viewServices.get());
    }

    test::FakeRootModelServices services;
    RootModel model{services.get()};
    test::FakeUserDefaults defaults;
    test::FakeTreeViewServices viewServices;
    RecycleResult recycled;
    TreeMapView view{defaults};
    std::unique_ptr<TreeViewController> controller;
};

TEST_F(TreeViewControllerNavigationTest, ZoomsIntoTheSelectedFolder)
{
    controller->setSelectedFile(&node("docs"));
    controller->zoomIn();
    EXPECT_EQ(controller->currentFolder(), &node("docs"));
}

TEST_F(TreeViewControllerNavigationTest, WithoutASelectedFolderZoomingInDoesNothing)
{
    controller->zoomIn();
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    controller->setSelectedFile(&node("docs/c"));
    controller->zoomIn();
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_EQ(controller->selectedFile(), &node("docs/c"));
}

TEST_F(TreeViewControllerNavigationTest, ZoomsOutToTheFolderAround)
{
    goTo(folder("docs/deep"));
    controller->zoomOut();
    EXPECT_EQ(controller->currentFolder(), &node("docs"));
}

TEST_F(TreeViewControllerNavigationTest, AtTheRootZoomingOutDoesNothing)
{
    controller->setSelectedFile(&node("docs"));
    controller->zoomOut();
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_EQ(controller->selectedFile(), &node("docs"));
}

TEST_F(TreeViewControllerNavigationTest, AnArrowDuringAZoomMovesInTheFolderThatComesIntoView)
{
    controller->zoomInFolder(folder("docs"));
    ASSERT_TRUE(view.isZooming());
    (void)controller->keyDown(QKeyEvent(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier));
    ASSERT_NE(controller->selectedFile(), nullptr);
    EXPECT_EQ(controller->selectedFile()->parent(), &node("docs"));
}

TEST_F(TreeViewControllerNavigationTest, WhoKnowsANodeHearsThatItLeaves)
{
    std::vector<File*> leaving;
    QObject::connect(controller.get(), &TreeViewController::nodeLeaving, [&leaving](File* file) {
        leaving.push_back(file);
    });
    File* const trashed = &node("docs");
    beginToTrashDocs();
    ASSERT_TRUE(viewServices.workspace.finishRecycling(recycled));
    EXPECT_EQ(leaving, std::vector<File*>{trashed});
}

TEST_F(TreeViewControllerNavigationTest, WhatIsInViewEndsWhenAFolderAroundItIsTrashed)
{
    beginToTrashDocs();
    goTo(folder("docs/deep"));
    ASSERT_TRUE(viewServices.workspace.finishRecycling(recycled));
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
}

TEST_F(TreeViewControllerNavigationTest, ASelectionEndsBeforeAnArchiveTakesItsFoldersPlace)
{
    controller->setSelectedFile(&node("docs/deep/a"));
    bool wasThere = false;
    QObject::connect(controller.get(), &TreeViewController::selectionChanged, [this, &wasThere] {
        wasThere = wasThere || nodeAtPath(*model.topFolder(), "/data/docs/deep/a") != nullptr;
    });
    emit viewServices.diskChanges.itemCompressed(Url("/data/docs/deep", false));
    EXPECT_TRUE(wasThere);
}

TEST_F(TreeViewControllerNavigationTest, WithoutATreeZoomingDoesNothing)
{
    model.setTopFolder(nullptr);
    controller = std::make_unique<TreeViewController>(model, view, viewServices.get());
    controller->zoomIn();
    controller->zoomOut();
    EXPECT_EQ(controller->currentFolder(), nullptr);
}

TEST_F(TreeViewControllerNavigationTest, TellsWhenTheTreeHasOtherSizes)
{
    const QSignalSpy changes(controller.get(), &TreeViewController::treeChanged);
    controller->objectTreeRefreshed();
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(TreeViewControllerNavigationTest, ADoubleClickOnSpaceThatIsNoFileDoesNothing)
{
    showVolume();
    auto& volume = static_cast<Volume&>(*model.topFolder());
    for (File* const space :
         {static_cast<File*>(&volume.freeFile()), static_cast<File*>(&volume.unreadFile())}) {
        controller->setSelectedFile(space);
        doubleClick(*space);
        EXPECT_EQ(controller->currentFolder(), &volume);
        EXPECT_EQ(controller->selectedFile(), space);
        EXPECT_FALSE(view.isZooming());
    }
}

TEST_F(TreeViewControllerNavigationTest, AClickInThePathBarZoomsOutToThatFolder)
{
    goTo(folder("docs/deep"));
    controller->setSelectedFile(&node("docs/deep/a"));
    controller->clickFolderPath(model.topFolder()->url());
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_EQ(controller->selectedFile(), nullptr);
    EXPECT_TRUE(view.isZooming());
}

TEST_F(TreeViewControllerNavigationTest, AClickOnTheCurrentFolderInThePathBarDeselectsAndRenders)
{
    controller->setSelectedFile(&node("docs"));
    controller->renderTree();
    const QImage selected = view.picture();
    controller->clickFolderPath(model.topFolder()->url());
    EXPECT_EQ(controller->selectedFile(), nullptr);
    EXPECT_FALSE(node("docs").selected());
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_FALSE(view.isZooming());
    EXPECT_NE(view.picture(), selected);
}

TEST_F(TreeViewControllerNavigationTest, AClickInThePathBarOnAFolderThatIsNotAboveOnlyDeselects)
{
    goTo(folder("docs"));
    controller->setSelectedFile(&node("docs/c"));
    controller->clickFolderPath(node("docs/deep").url());
    EXPECT_EQ(controller->selectedFile(), nullptr);
    EXPECT_EQ(controller->currentFolder(), &node("docs"));
    EXPECT_FALSE(view.isZooming());
}

TEST_F(TreeViewControllerNavigationTest, PathsAreComparedAsBytes)
{
    goTo(folder("d\xFF"));
    controller->clickFolderPath(Url("/data/d\xFE", true));
    EXPECT_EQ(controller->currentFolder(), &node("d\xFF"));
    controller->clickFolderPath(Url("/data", false));
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
}

TEST_F(TreeViewControllerNavigationTest, AVolumeReadsItsSizesWhenTheScreenOpens)
{
    showVolume();
    EXPECT_EQ(viewServices.fileSystem.askedFor(), "/");
    EXPECT_EQ(static_cast<Volume&>(*model.topFolder()).freeSize(), 300U);
}

TEST_F(TreeViewControllerNavigationTest, AVolumeThatDoesNotAnswerKeepsItsSizes)
{
    showVolume();
    viewServices.fileSystem.setSizes(std::nullopt);
    controller->objectTreeRefreshed();
    const auto& volume = static_cast<Volume&>(*model.topFolder());
    EXPECT_EQ(volume.volumeSize(), 1000U);
    EXPECT_EQ(volume.totalAllocation(), 700U);
}

TEST_F(TreeViewControllerNavigationTest, AFolderAsksForNoSizes)
{
    EXPECT_EQ(viewServices.fileSystem.askedFor(), "");
}

TEST_F(TreeViewControllerNavigationTest, TheFirstFolderIsInViewFromTheStart)
{
    const TreeViewController other(model, view, viewServices.get());
    EXPECT_EQ(other.currentFolder(), model.topFolder());
}

} // namespace
} // namespace tessera
