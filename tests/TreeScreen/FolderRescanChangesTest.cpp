// SPDX-License-Identifier: MIT
#include "FolderRescanFixture.h"

#include <system_error>

namespace tessera {
namespace {

/// What happens to the tree while one of its folders is rescanned.
using FolderRescanChanges = test::FolderRescanTest;

TEST_F(FolderRescanChanges, WhatIsTrashedMeanwhileIsNotInTheNewTree)
{
    rescan("docs");
    trash("docs/a");
    finish();
    EXPECT_FALSE(has("docs/a"));
    EXPECT_EQ(node("docs").totalAllocation(), 100U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 701U);
}

TEST_F(FolderRescanChanges, AFolderTrashedAfterAnItemInItIsNotInTheNewTree)
{
    folder("docs").insertChild(test::makeTree("/data/docs/new", "b:100 c:1"));
    rescan("docs");
    trash("docs/new/b");
    trash("docs/new");
    finish();
    EXPECT_FALSE(has("docs/new"));
    EXPECT_EQ(node("docs").totalAllocation(), 900U);
}

TEST_F(FolderRescanChanges, WhatIsTrashedBesideTheFolderMeanwhileChangesNothingInIt)
{
    rescan("docs");
    trash("other/o");
    finish();
    EXPECT_FALSE(has("other/o"));
    EXPECT_EQ(node("docs").totalAllocation(), 1000U);
}

TEST_F(FolderRescanChanges, AnArchiveThatComesMeanwhileIsInTheNewTree)
{
    services.resourceValues.size = 4096;
    rescan("docs");
    emit services.diskChanges.itemCompressed(Url("/data/docs/x.zip", false));
    finish();
    EXPECT_EQ(node("docs/x.zip").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs").totalAllocation(), 5096U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 5697U);
}

TEST_F(FolderRescanChanges, AnArchiveThatWasReadHalfWrittenHasItsWholeSize)
{
    services.resourceValues.size = 4096;
    rescan("docs");
    emit services.diskChanges.itemCompressed(Url("/data/docs/a", false));
    finish();
    EXPECT_EQ(node("docs/a").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs").totalAllocation(), 4196U);
}

TEST_F(FolderRescanChanges, WhatHasLeftItsPlaceIsInTheTreeNoMore)
{
    controller->setSelectedFile(&node("docs/a"));
    emit services.diskChanges.itemGone(Url("/data/docs/a", false));
    EXPECT_FALSE(has("docs/a"));
    EXPECT_EQ(controller->selectedFile(), nullptr);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 801U);
}

TEST_F(FolderRescanChanges, WhatAScanMetBeforeItLeftIsNotInTheNewTree)
{
    rescan("docs");
    emit services.diskChanges.itemGone(Url("/data/docs/new/b", false));
    finish();
    EXPECT_FALSE(has("docs/new/b"));
    EXPECT_EQ(node("docs").totalAllocation(), 900U);
}

TEST_F(FolderRescanChanges, TheScannedFolderItselfStaysInView)
{
    emit services.diskChanges.itemGone(Url("/data", true));
    EXPECT_EQ(model.topFolder()->totalAllocation(), 1301U);
}

TEST_F(FolderRescanChanges, AnArchiveInAFolderThatVanishedIsInNoTree)
{
    services.resourceValues.size = 4096;
    rescan("docs");
    emit services.diskChanges.itemCompressed(Url("/data/docs/gone/x.zip", false));
    controller->setSelectedFile(&node("docs/gone/x.zip"));
    finish();
    EXPECT_FALSE(has("docs/gone"));
    EXPECT_EQ(controller->selectedFile(), nullptr);
    EXPECT_EQ(node("docs").totalAllocation(), 1000U);
}

TEST_F(FolderRescanChanges, WhatMovesIntoTheFolderMeanwhileIsInTheNewTreeAndStaysSelected)
{
    rescan("docs");
    trashTo("other/o", "/data/docs/o 2");
    controller->setSelectedFile(&node("docs/o 2"));
    finish();
    EXPECT_EQ(node("docs/o 2").totalAllocation(), 600U);
    EXPECT_EQ(node("docs").totalAllocation(), 1600U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 1601U);
    EXPECT_EQ(controller->selectedFile(), &node("docs/o 2"));
}

TEST_F(FolderRescanChanges, WhatMovesIntoAFolderThatCameMeanwhileComesAlongWithIt)
{
    rescan("docs");
    trashTo("other/o", "/data/docs/.Trash-7/files/o");
    trashTo("tiny/t", "/data/docs/.Trash-7/files/t");
    controller->setSelectedFile(&node("docs/.Trash-7/files/t"));
    finish();
    EXPECT_EQ(node("docs/.Trash-7/files/o").totalAllocation(), 600U);
    EXPECT_EQ(node("docs/.Trash-7/files/t").totalAllocation(), 1U);
    EXPECT_EQ(controller->selectedFile(), &node("docs/.Trash-7/files/t"));
    EXPECT_EQ(model.topFolder()->totalAllocation(), 1601U);
}

TEST_F(FolderRescanChanges, TheNextRescanKnowsNothingOfWhatLeftDuringTheOneBefore)
{
    rescan("docs");
    trash("docs/a");
    finish();
    rescan("docs");
    finish();
    EXPECT_TRUE(has("docs/a"));
}

TEST_F(FolderRescanChanges, AnEmptyMountPointIsNotRescanned)
{
    folder("other").removeChild(node("other/o"));
    services.resourceValues.mountPoints = {"/data/other"};
    controller->setSelectedFile(&node("other"));
    EXPECT_FALSE(controller->validate(Command::Rescan));
    controller->refreshFolder();
    EXPECT_FALSE(folder("other").rescanning());
    EXPECT_TRUE(controller->whyNot(Command::Rescan)
                    .startsWith(QStringLiteral("A disk is mounted at 'other'.")));
}

TEST_F(FolderRescanChanges, AMountPointThatASecondScanFilledIsRescanned)
{
    services.resourceValues.mountPoints = {"/data/docs"};
    controller->setSelectedFile(&node("docs"));
    EXPECT_TRUE(controller->validate(Command::Rescan));
}

TEST_F(FolderRescanChanges, TheScannedFolderMayBeAMountPoint)
{
    model.setTopFolder(test::makeTree("/data", ""));
    services.resourceValues.mountPoints = {"/data"};
    controller = std::make_unique<TreeViewController>(model, view, services.get());
    EXPECT_TRUE(controller->validate(Command::Rescan));
}

TEST_F(FolderRescanChanges, TheBarHidesDuringAZoom)
{
    rescan("docs");
    controller->zoomInFolder(folder("other"));
    ASSERT_TRUE(view.isZooming());
    EXPECT_FALSE(indicator()->isVisibleTo(&view));
    controller->zoomOutFolder(*model.topFolder());
    ASSERT_TRUE(view.isZooming());
    EXPECT_FALSE(indicator()->isVisibleTo(&view));
    controller->animationDidStop();
    EXPECT_TRUE(indicator()->isVisibleTo(&view));
    finish();
}

TEST_F(FolderRescanChanges, ARescanThatEndsDuringAZoomOutShowsTheNewTreeAtOnce)
{
    rescan("docs");
    goTo("other");
    controller->zoomOutFolder(*model.topFolder());
    ASSERT_TRUE(view.isZooming());
    finish();
    EXPECT_FALSE(view.isZooming());
    EXPECT_TRUE(view.findRectForFile(node("docs")).has_value());
    EXPECT_EQ(view.branches().size(), 1U);
}

TEST_F(FolderRescanChanges, ARescanThatBeginsDuringAZoomOutEndsTheZoom)
{
    goTo("other");
    controller->zoomOutFolder(*model.topFolder());
    controller->rescanSelectedFolder(folder("docs"));
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(view.branches().size(), 1U);
    EXPECT_TRUE(indicator()->isVisibleTo(&view));
    finish();
}

TEST_F(FolderRescanChanges, TrashingTheFolderEndsIt)
{
    rescan("docs");
    const Url url = node("docs").url();
    controller->setSelectedFile(&node("docs"));
    controller->trashItem();
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/trash/docs", true);
    ASSERT_TRUE(services.workspace.finishRecycling(result));
    endWorkers();
    EXPECT_EQ(indicator(), nullptr);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 601U);
    controller->setSelectedFile(&node("other"));
    EXPECT_TRUE(controller->validate(Command::Rescan));
}

TEST_F(FolderRescanChanges, TrashingAFolderAroundItEndsIt)
{
    rescan("docs/gone");
    trash("docs");
    endWorkers();
    EXPECT_FALSE(isRescanning());
    EXPECT_EQ(model.topFolder()->totalAllocation(), 601U);
}

TEST_F(FolderRescanChanges, TrashingSomethingElseDoesNot)
{
    rescan("docs");
    const Url url = node("other").url();
    controller->setSelectedFile(&node("other"));
    controller->trashItem();
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/trash/other", true);
    ASSERT_TRUE(services.workspace.finishRecycling(result));
    finish();
    EXPECT_EQ(node("docs").totalAllocation(), 1000U);
}

TEST_F(FolderRescanChanges, AnItemTrashedWhileItsFolderIsRescannedLeavesTheNewTree)
{
    const Url url = node("docs/a").url();
    controller->setSelectedFile(&node("docs/a"));
    controller->trashItem();
    rescan("docs");
    finish();
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/trash/a", false);
    ASSERT_TRUE(services.workspace.finishRecycling(result));
    EXPECT_EQ(node("docs").totalAllocation(), 100U);
}

/// A rescan that finds nothing.
class EmptyRescanTest : public test::FolderRescanTest {
protected:
    EmptyRescanTest()
        : FolderRescanTest("/me", "")
    {
    }

    void rescanDocs()
    {
        rescan("docs");
        services.mainThread.runUntil([this] { return !isRescanning(); });
    }
};

TEST_F(EmptyRescanTest, AnEmptyFolderIsShownEmpty)
{
    rescanDocs();
    EXPECT_EQ(node("docs").totalAllocation(), 0U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 601U);
    EXPECT_TRUE(services.alert.told.empty());
}

TEST_F(EmptyRescanTest, AFolderThatIsGoneLeavesTheTreeWithoutAWord)
{
    for (const std::errc problem :
         {std::errc::no_such_file_or_directory,
          std::errc::not_a_directory,
          std::errc::too_many_symbolic_link_levels}) {
        model.setTopFolder(test::makeTree("/data", "docs/ ( a:500 ) other/ ( o:600 )"));
        controller = std::make_unique<TreeViewController>(model, view, services.get());
        services.folderProblem = std::make_error_code(problem);
        rescanDocs();
        EXPECT_FALSE(has("docs"));
        EXPECT_EQ(model.topFolder()->totalAllocation(), 600U);
        EXPECT_TRUE(view.findRectForFile(node("other")).has_value());
        EXPECT_TRUE(services.alert.told.empty());
        EXPECT_EQ(services.checkedFolder, "/data/docs");
    }
}

TEST_F(EmptyRescanTest, AnEmptyFolderIsAskedForByThePathWithoutLinks)
{
    model.topFolder()->setRealOrigin("/disk");
    rescanDocs();
    EXPECT_EQ(services.checkedFolder, "/disk/docs");
}

TEST_F(EmptyRescanTest, TheRestOfTheWindowHearsThatAFolderIsGone)
{
    int changes = 0;
    QObject::connect(controller.get(), &TreeViewController::treeChanged, [&changes] { ++changes; });
    services.folderProblem = std::make_error_code(std::errc::no_such_file_or_directory);
    rescanDocs();
    EXPECT_EQ(changes, 1);
}

TEST_F(EmptyRescanTest, WhenTheFolderInViewIsGoneTheOneAroundItIsShown)
{
    services.folderProblem = std::make_error_code(std::errc::no_such_file_or_directory);
    goTo("docs");
    controller->refreshFolder();
    services.mainThread.runUntil([this] { return !isRescanning(); });
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
    EXPECT_FALSE(has("docs"));
}

TEST_F(EmptyRescanTest, AFolderThatCannotBeReadKeepsItsContentAndTheUserIsTold)
{
    services.folderProblem = std::make_error_code(std::errc::permission_denied);
    rescanDocs();
    ASSERT_EQ(services.alert.told.size(), 1U);
    EXPECT_EQ(services.alert.told[0].messageText, QStringLiteral("The folder cannot be scanned"));
    EXPECT_TRUE(services.alert.told[0].informativeText.contains(QStringLiteral("/data/docs")));
    EXPECT_EQ(node("docs").totalAllocation(), 700U);
    EXPECT_FALSE(folder("docs").rescanning());
    EXPECT_TRUE(view.findRectForFile(node("docs/a")).has_value());
    EXPECT_EQ(indicator(), nullptr);
}

TEST_F(EmptyRescanTest, WhatLeftMeanwhileStaysAwayWhenTheFolderCannotBeRead)
{
    services.folderProblem = std::make_error_code(std::errc::timed_out);
    rescan("docs");
    trash("docs/a");
    services.mainThread.runUntil([this] { return !isRescanning(); });
    EXPECT_FALSE(has("docs/a"));
    EXPECT_EQ(node("docs").totalAllocation(), 200U);
}

TEST_F(FolderRescanChanges, AFolderInWhichSomethingWasFoundIsNotAskedFor)
{
    services.folderProblem = std::make_error_code(std::errc::permission_denied);
    rescan("docs");
    finish();
    EXPECT_EQ(services.checkedFolder, "");
    EXPECT_EQ(node("docs").totalAllocation(), 1000U);
}

} // namespace
} // namespace tessera
