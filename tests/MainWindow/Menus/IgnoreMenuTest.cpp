// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/IgnoreMenu.h"

#include "Model/FreeSpace.h"
#include "Model/RootModel.h"
#include "Model/Volume.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/TreeViewController.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeViewServices.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

namespace tessera {
namespace {

constexpr int kFixedCount = 6;

class IgnoreMenuTest : public testing::Test {
protected:
    IgnoreMenuTest()
    {
        services.motion.reduced = true;
        view.resize(400, 300);
        showTree(test::makeTree(
            "/Volumes/Data",
            "Projects/ ( sub/ ( s:50000 ) x:400000 ) docs/ ( y:300000 ) z:200000"));
    }

    void showTree(std::unique_ptr<TopFolder> top)
    {
        tree.reset();
        model.setTopFolder(std::move(top));
        tree = std::make_unique<TreeViewController>(model, view, services.get());
        menu.setTreeViewController(tree.get());
        QObject::connect(
            tree.get(), &TreeViewController::pictureRebuilt, &menu, [this] { ++drawCount; });
    }

    void showVolume()
    {
        auto volume = makeNode<Volume>("disk");
        volume->setOrigin("/disk");
        volume->addChild(makeNode<Folder>("a"));
        volume->addChild(makeNode<Folder>("b"));
        showTree(std::move(volume));
    }

    File& node(std::string_view path) { return test::at(*model.topFolder(), path); }

    void ignore(std::string_view path)
    {
        tree->setSelectedFile(&node(path));
        menu.ignoreFolder();
    }

    QAction& entry(qsizetype index) const { return *menu.actions().at(index); }

    /// "-" is a separator; what is on has a tick.
    QString shape() const
    {
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            const QString tick = action->isChecked() ? QStringLiteral("*") : QString();
            texts.append(action->isSeparator() ? QStringLiteral("-") : tick + action->text());
        }
        return texts.mid(4).join(QLatin1Char('|'));
    }

    bool isInPicture(std::string_view path) { return view.findRectForFile(node(path)).has_value(); }

    test::FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    test::FakeTreeViewServices services;
    TreeMapView view{services.defaults};
    std::unique_ptr<TreeViewController> tree;
    IgnoreMenu menu{model};
    int drawCount = 0;
};

const QString kNoFolders = QStringLiteral("-|&Show Everything");

} // namespace

TEST_F(IgnoreMenuTest, HasSixEntriesAtFirst)
{
    EXPECT_EQ(menu.actions().size(), kFixedCount);
    EXPECT_FALSE(entry(0).isEnabled());
    EXPECT_EQ(entry(1).data().toInt(), 1);
    EXPECT_EQ(entry(2).data().toInt(), 2);
    EXPECT_EQ(entry(3).data().toInt(), 4);
    EXPECT_TRUE(entry(4).isSeparator());
    EXPECT_EQ(entry(5).data().toInt(), 31);
}

TEST_F(IgnoreMenuTest, TheFirstTicksAreThoseOfThePictureFilter)
{
    model.pictureFilter().setIgnoreHiddenFiles(true);
    const IgnoreMenu other(model);
    EXPECT_FALSE(other.actions().at(1)->isChecked());
    EXPECT_TRUE(other.actions().at(2)->isChecked());
    EXPECT_FALSE(other.actions().at(3)->isChecked());
}

TEST_F(IgnoreMenuTest, AFirstFolderComesBetweenTwoSeparators)
{
    ignore("Projects");
    EXPECT_EQ(shape(), QStringLiteral("-|*Data/Projects|-|&Show Everything"));
}

TEST_F(IgnoreMenuTest, ASecondFolderIsListedBelowTheFirst)
{
    ignore("Projects");
    ignore("docs");
    EXPECT_EQ(shape(), QStringLiteral("-|*Data/Projects|*Data/docs|-|&Show Everything"));
}

TEST_F(IgnoreMenuTest, AFolderRightBelowTheRootKeepsItsWholePath)
{
    showTree(test::makeTree("/", "Applications/ ( a:1000 )"));
    ignore("Applications");
    EXPECT_EQ(shape(), QStringLiteral("-|*/Applications|-|&Show Everything"));
}

TEST_F(IgnoreMenuTest, ThreeComponentsAreEnoughForTwoToBeShown)
{
    showTree(test::makeTree("/usr", "R&D/ ( a:1000 )"));
    ignore("R&D");
    EXPECT_EQ(shape(), QStringLiteral("-|*usr/R&&D|-|&Show Everything"));
}

TEST_F(IgnoreMenuTest, AnIgnoredFolderIsNeitherSelectedNorInThePicture)
{
    ASSERT_TRUE(isInPicture("Projects"));
    ignore("Projects");
    EXPECT_EQ(tree->selectedFile(), nullptr);
    EXPECT_FALSE(node("Projects").selected());
    EXPECT_TRUE(node("Projects").ignored());
    EXPECT_FALSE(isInPicture("Projects"));
}

TEST_F(IgnoreMenuTest, ADocumentCannotBeIgnored)
{
    ignore("z");
    EXPECT_EQ(tree->selectedFile(), &node("z"));
    EXPECT_FALSE(node("z").ignored());
    EXPECT_EQ(menu.actions().size(), kFixedCount);
}

TEST_F(IgnoreMenuTest, NothingHappensWithoutASelectionOrATree)
{
    menu.ignoreFolder();
    menu.setTreeViewController(nullptr);
    menu.ignoreFolder();
    EXPECT_EQ(menu.actions().size(), kFixedCount);
}

TEST_F(IgnoreMenuTest, TheTreesOwnCommandIgnores)
{
    tree->setSelectedFile(&node("docs"));
    EXPECT_TRUE(tree->validate(Command::Ignore));
    tree->perform(Command::Ignore);
    EXPECT_TRUE(node("docs").ignored());
}

TEST_F(IgnoreMenuTest, ThePictureFilterFollowsItsEntries)
{
    entry(1).trigger();
    EXPECT_TRUE(model.pictureFilter().ignoreFreeSpace());
    entry(2).trigger();
    EXPECT_TRUE(model.pictureFilter().ignoreHiddenFiles());
    entry(3).trigger();
    EXPECT_TRUE(model.pictureFilter().ignoreRestrictedFiles());
    EXPECT_TRUE(entry(3).isChecked());
    entry(3).trigger();
    EXPECT_FALSE(model.pictureFilter().ignoreRestrictedFiles());
    EXPECT_FALSE(entry(3).isChecked());
    EXPECT_EQ(drawCount, 4);
}

TEST_F(IgnoreMenuTest, TheVolumesFreeSpaceFollowsAtOnce)
{
    showVolume();
    const auto& volume = static_cast<const Volume&>(*model.topFolder());
    entry(1).trigger();
    EXPECT_TRUE(volume.freeFile().ignored());
    EXPECT_FALSE(volume.unreadFile().ignored());
}

TEST_F(IgnoreMenuTest, UntickingAFolderShowsItAgain)
{
    ignore("Projects");
    entry(5).trigger();
    EXPECT_TRUE(isInPicture("Projects"));
    EXPECT_EQ(shape(), QStringLiteral("-|Data/Projects|-|&Show Everything"));
}

TEST_F(IgnoreMenuTest, TickingAFolderAgainIgnoresItAgain)
{
    ignore("Projects");
    entry(5).trigger();
    entry(5).trigger();
    EXPECT_FALSE(isInPicture("Projects"));
    EXPECT_TRUE(entry(5).isChecked());
}

TEST_F(IgnoreMenuTest, AFolderThatIsIgnoredOnceMoreHasOneEntryStill)
{
    ignore("Projects");
    ignore("docs");
    menu.actions().back()->trigger();
    ignore("Projects");
    EXPECT_EQ(shape(), QStringLiteral("-|Data/docs|*Data/Projects|-|&Show Everything"));
    entry(6).trigger();
    EXPECT_FALSE(node("Projects").ignored());
}

TEST_F(IgnoreMenuTest, ATickFlipsWhatTheFolderItselfSays)
{
    ignore("Projects");
    node("Projects").setIgnored(false);
    menu.toggleIgnore(entry(5));
    EXPECT_FALSE(entry(5).isChecked());
    EXPECT_TRUE(node("Projects").ignored());
}

TEST_F(IgnoreMenuTest, TogglingAloneDoesNotDraw)
{
    ignore("Projects");
    drawCount = 0;
    menu.toggleIgnore(entry(5));
    EXPECT_FALSE(node("Projects").ignored());
    EXPECT_EQ(drawCount, 0);
}

TEST_F(IgnoreMenuTest, ResetTurnsAllOffKeepsTheFoldersAndDrawsOnce)
{
    showVolume();
    entry(1).trigger();
    ignore("a");
    ignore("b");
    drawCount = 0;
    menu.actions().back()->trigger();

    EXPECT_EQ(drawCount, 1);
    EXPECT_FALSE(model.pictureFilter().ignoreFreeSpace());
    EXPECT_FALSE(entry(1).isChecked());
    EXPECT_FALSE(node("a").ignored());
    EXPECT_FALSE(node("b").ignored());
    EXPECT_EQ(shape(), QStringLiteral("-|disk/a|disk/b|-|&Show Everything"));
}

TEST_F(IgnoreMenuTest, RemovingTheFoldersLeavesTheFixedEntriesAsTheyAre)
{
    entry(2).trigger();
    ignore("Projects");
    ignore("docs");
    menu.removeFolders();

    EXPECT_EQ(shape(), kNoFolders);
    EXPECT_EQ(menu.actions().size(), kFixedCount);
    EXPECT_TRUE(entry(2).isChecked());
    menu.removeFolders();
    EXPECT_EQ(menu.actions().size(), kFixedCount);
}

TEST_F(IgnoreMenuTest, AFolderThatLeavesTheTreeLeavesTheMenu)
{
    ignore("docs");
    ignore("Projects/sub");
    emit tree->nodeLeaving(&node("Projects"));

    EXPECT_EQ(shape(), QStringLiteral("-|*Data/docs|-|&Show Everything"));
    EXPECT_FALSE(node("Projects/sub").ignored());
}

TEST_F(IgnoreMenuTest, WithTheLastFolderItsSeparatorLeaves)
{
    ignore("Projects/sub");
    emit tree->nodeLeaving(&node("Projects"));
    EXPECT_EQ(shape(), kNoFolders);
}

/// A rescan of the folder Projects finds what the constructor's text says.
class IgnoreMenuAfterRescanTest : public IgnoreMenuTest {
protected:
    void replaceProjects(std::string_view found)
    {
        auto& old = static_cast<Folder&>(node("Projects"));
        const auto taken
            = old.parent()->replaceChild(old, test::makeTree("/Volumes/Data/Projects", found));
        emit tree->folderReplaced(&old);
    }
};

TEST_F(IgnoreMenuAfterRescanTest, WhatWasIgnoredInsideStaysSo)
{
    ignore("Projects/sub");
    replaceProjects("sub/ ( s:70000 )");
    EXPECT_TRUE(node("Projects/sub").ignored());
    entry(5).trigger();
    EXPECT_FALSE(node("Projects/sub").ignored());
}

TEST_F(IgnoreMenuAfterRescanTest, WhatIsGoneLeavesTheMenu)
{
    ignore("Projects/sub");
    replaceProjects("sub:70000");
    EXPECT_EQ(shape(), kNoFolders);
}

} // namespace tessera
