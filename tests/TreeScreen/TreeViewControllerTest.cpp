// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeViewController.h"

#include "Model/RootModel.h"
#include "TreeScreen/ClickBox.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeViewServices.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/MakeTree.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tessera {
namespace {

/// What encloses all pixels that are not dark.
QRect litArea(const QImage& picture)
{
    constexpr int kDark = 40;
    QRect lit;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) > kDark) {
                lit |= QRect(x, y, 1, 1);
            }
        }
    }
    return lit;
}

class TreeViewControllerTest : public testing::Test {
protected:
    TreeViewControllerTest()
    {
        model.setTopFolder(test::makeTree("/data", "docs/ ( a:500 b:200 ) c:300"));
        view.resize(400, 300);
        view.show();
    }

    File& node(std::string_view path) { return test::at(*model.topFolder(), path); }
    const TreeBranch& topBranch() { return *view.branches().at(0); }

    void click(const File& file) { test::clickBox(view, file); }

    test::FakeRootModelServices services;
    RootModel model{services.get()};
    test::FakeUserDefaults defaults;
    test::FakeTreeViewServices viewServices;
    TreeMapView view{defaults};
};

TEST_F(TreeViewControllerTest, ShowsTheModelsTree)
{
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(controller.currentFolder(), model.topFolder());
    ASSERT_EQ(view.branches().size(), 1U);
    EXPECT_EQ(topBranch().name(), "data");
    EXPECT_EQ(topBranch().frame(), (Rect{0, 0, 400, 300}));
}

TEST_F(TreeViewControllerTest, ChildFoldersGetBranchesOfTheNextLevel)
{
    const TreeViewController controller(model, view, viewServices.get());
    ASSERT_EQ(topBranch().subBranches().size(), 1U);
    const TreeBranch& docs = *topBranch().subBranches().front();
    EXPECT_EQ(docs.name(), "docs");
    EXPECT_EQ(docs.level(), 1);
    EXPECT_EQ(docs.layoutItems().size(), 2U);
}

TEST_F(TreeViewControllerTest, WithoutATreeTheViewIsEmpty)
{
    model.setTopFolder(nullptr);
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(topBranch().name(), "");
    EXPECT_TRUE(topBranch().layoutItems().empty());
}

TEST_F(TreeViewControllerTest, AnEmptyFolderSaysSoInTheMiddleOfThePicture)
{
    model.setTopFolder(test::makeTree("/data", ""));
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(
        topBranch().textWithoutBoxes(), "This folder is empty. Rescan it when something has come.");
    const QRect written = litArea(view.picture());
    EXPECT_NEAR(written.center().x(), 200, 2);
    EXPECT_NEAR(written.center().y(), 150, 5);
    EXPECT_GT(written.width(), 50);
    EXPECT_LT(written.height(), 16);
}

TEST_F(TreeViewControllerTest, WhatThePictureSaysInPlaceOfBoxesIsReadOut)
{
    model.setTopFolder(test::makeTree("/data", ""));
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(view.accessibleDescription().toStdString(), topBranch().textWithoutBoxes());
    EXPECT_FALSE(view.accessibleDescription().isEmpty());
}

TEST_F(TreeViewControllerTest, AFolderThatTheUserMayNotReadIsNotCalledEmpty)
{
    auto tree = test::makeTree("/data", "");
    tree->findings().addUnreadable(
        {"/data", std::make_error_code(std::errc::permission_denied), tree.get()});
    model.setTopFolder(std::move(tree));
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(
        topBranch().textWithoutBoxes(),
        "You may not look into this folder. See Frequently Asked Questions in the Help menu.");
}

TEST_F(TreeViewControllerTest, AFolderThatCouldNotBeReadIsNotCalledEmpty)
{
    auto tree = test::makeTree("/data", "");
    tree->findings().addUnreadable(
        {"/data", std::make_error_code(std::errc::io_error), tree.get()});
    model.setTopFolder(std::move(tree));
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(
        topBranch().textWithoutBoxes(), "This folder could not be read. Rescan it to try again.");
}

TEST_F(TreeViewControllerTest, AFolderOfWhichNothingIsShownIsNotCalledEmpty)
{
    model.setTopFolder(test::makeTree("/data", ".a:500"));
    model.pictureFilter().setIgnoreHiddenFiles(true);
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(
        topBranch().textWithoutBoxes(),
        "Everything in this folder is left out of the picture. The Ignore menu brings it back.");
}

TEST_F(TreeViewControllerTest, AnEmptyFolderInsideSaysNothing)
{
    model.setTopFolder(test::makeTree("/data", "docs/ ( ) c:300"));
    test::at(*model.topFolder(), "docs").setTotalAllocation(500); // else it has no box
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(topBranch().textWithoutBoxes(), "");
    ASSERT_FALSE(topBranch().subBranches().empty());
    for (const auto& nested : topBranch().subBranches()) {
        EXPECT_EQ(nested->textWithoutBoxes(), "");
    }
}

TEST_F(TreeViewControllerTest, WithoutATreeThereIsNothingToSay)
{
    model.setTopFolder(nullptr);
    const TreeViewController controller(model, view, viewServices.get());
    EXPECT_TRUE(litArea(view.picture()).isEmpty());
}

TEST_F(TreeViewControllerTest, FollowsTheViewsSize)
{
    const TreeViewController controller(model, view, viewServices.get());
    view.resize(640, 480);
    EXPECT_EQ(topBranch().frame(), (Rect{0, 0, 640, 480}));
    EXPECT_EQ(view.branches().size(), 1U);
}

TEST_F(TreeViewControllerTest, SelectingNothingClearsTheMark)
{
    TreeViewController controller(model, view, viewServices.get());
    controller.setSelectedFile(&node("c"));
    controller.setSelectedFile(nullptr);
    EXPECT_FALSE(node("c").selected());
    EXPECT_EQ(controller.selectedFile(), nullptr);
}

TEST_F(TreeViewControllerTest, ChangingTheFolderIsAnnouncedAndDrawnOnRequest)
{
    TreeViewController controller(model, view, viewServices.get());
    const QSignalSpy changes(&controller, &TreeViewController::currentFolderChanged);
    controller.setCurrentFolder(static_cast<Folder*>(&node("docs")));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(topBranch().name(), "data");
    controller.renderTree();
    EXPECT_EQ(topBranch().name(), "docs");
}

TEST_F(TreeViewControllerTest, HiddenFilesAreLeftOutWhileTheyAreIgnored)
{
    model.setTopFolder(test::makeTree("/data", ".a:500 b:500"));
    TreeViewController controller(model, view, viewServices.get());
    EXPECT_EQ(topBranch().layoutItems().size(), 2U);
    model.pictureFilter().setIgnoreHiddenFiles(true);
    controller.renderTree();
    EXPECT_EQ(topBranch().layoutItems().size(), 1U);
}

TEST_F(TreeViewControllerTest, WhatIsHiddenWhileItIsSelectedIsSelectedNoLonger)
{
    model.setTopFolder(test::makeTree("/data", ".a:500 b:500"));
    TreeViewController controller(model, view, viewServices.get());
    const QSignalSpy changes(&controller, &TreeViewController::selectionChanged);
    click(node(".a"));
    model.pictureFilter().setIgnoreHiddenFiles(true);
    controller.renderTree();
    EXPECT_EQ(controller.selectedFile(), nullptr);
    EXPECT_FALSE(node(".a").selected());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(TreeViewControllerTest, WhatLiesInAFolderThatIsIgnoredIsSelectedNoLonger)
{
    TreeViewController controller(model, view, viewServices.get());
    click(node("docs/a"));
    node("docs").setIgnored(true);
    controller.renderTree();
    EXPECT_EQ(controller.selectedFile(), nullptr);
}

TEST_F(TreeViewControllerTest, WhatIsHiddenInAnInnerFolderIsSelectedNoLonger)
{
    model.setTopFolder(test::makeTree("/data", "docs/ ( .a:500 b:200 ) c:300"));
    TreeViewController controller(model, view, viewServices.get());
    click(node("docs/.a"));
    ASSERT_EQ(controller.selectedFile(), &node("docs/.a"));
    model.pictureFilter().setIgnoreHiddenFiles(true);
    controller.renderTree();
    EXPECT_EQ(controller.selectedFile(), nullptr);
}

TEST_F(TreeViewControllerTest, WhatIsInThePictureStaysSelectedWhenOtherThingsAreHidden)
{
    model.setTopFolder(test::makeTree("/data", "docs/ ( .a:500 b:200 ) c:300"));
    TreeViewController controller(model, view, viewServices.get());
    click(node("docs/b"));
    model.pictureFilter().setIgnoreHiddenFiles(true);
    controller.renderTree();
    EXPECT_EQ(controller.selectedFile(), &node("docs/b"));
}

TEST_F(TreeViewControllerTest, WhatTheBoxOfAGroupStandsForStaysSelected)
{
    model.setTopFolder(test::makeTree("/data", "a:900000 b:1 c:1 d:1"));
    TreeViewController controller(model, view, viewServices.get());
    controller.setSelectedFile(&node("c"));
    controller.renderTree();
    ASSERT_FALSE(view.findRectForFile(node("c")).has_value());
    EXPECT_EQ(controller.selectedFile(), &node("c"));
}

TEST_F(TreeViewControllerTest, AFolderRenderedInsideABranchBecomesPartOfIt)
{
    TreeViewController controller(model, view, viewServices.get());
    TreeBranch parent({0, 0, 300, 300});
    auto* folder = static_cast<Folder*>(&node("docs"));
    EXPECT_EQ(controller.renderFolder(folder, {8, 24, 200, 100}, &parent, 3), nullptr);
    ASSERT_EQ(parent.subBranches().size(), 1U);
    const TreeBranch& added = *parent.subBranches().front();
    EXPECT_EQ(added.frame(), (Rect{8, 24, 200, 100}));
    EXPECT_EQ(added.level(), 3);
    EXPECT_EQ(added.layoutItems().front()->rect.x, 0);
}

} // namespace
} // namespace tessera
