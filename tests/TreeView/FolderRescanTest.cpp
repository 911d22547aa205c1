// SPDX-License-Identifier: MIT
#include "TreeView/FolderRescan.h"

#include "Model/NotificationCenter.h"
#include "Model/RootModel.h"
#include "Model/nodeLookup.h"
#include "TreeView/TreeMapView.h"
#include "TreeView/TreeViewController.h"
#include "support/FakeRootModelServices.h"
#include "support/FakeTreeViewServices.h"
#include "support/makeTree.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace tessera {
namespace {

/// A tree whose folders hold "a:900 new/ ( b:100 )" when they are scanned anew.
class FolderRescanTest : public testing::Test {
protected:
    explicit FolderRescanTest(std::string home = "/me")
    {
        services.home = std::move(home);
        model.setTopFolder(test::makeTree(
            "/data", "docs/ ( a:500 gone/ ( deep/ ( x:200 ) ) ) other/ ( o:600 ) tiny/ ( t:1 )"));
        view.resize(400, 300);
        controller = std::make_unique<TreeViewController>(model, view, services.get());
    }
    ~FolderRescanTest() override
    {
        controller.reset();
        endWorkers();
    }

    /// A worker may wait for the main thread, so that has to turn meanwhile.
    void endWorkers()
    {
        std::atomic<bool> isDone = false;
        std::thread waiting([&] {
            services.workers->waitForNone();
            isDone = true;
            services.mainThread.perform([] {});
        });
        services.mainThread.runUntil([&] { return isDone.load(); });
        waiting.join();
    }

    File& node(std::string_view path) { return test::at(*model.topFolder(), path); }
    Folder& folder(std::string_view path) { return static_cast<Folder&>(node(path)); }

    void rescan(std::string_view path)
    {
        controller->setSelectedFile(&node(path));
        controller->refreshFolder();
    }

    void goTo(std::string_view path)
    {
        controller->setCurrentFolder(path.empty() ? model.topFolder() : &folder(path));
        controller->renderTree();
    }

    const RescanIndicator* indicator() const { return view.findChild<RescanIndicator*>(); }
    bool isRescanning() const { return !controller->validate(TreeCommand::Rescan); }

    /// Moves the item to a trash outside the tree.
    void trash(std::string_view path) { trashTo(path, "/trash/item"); }
    void trashTo(std::string_view path, std::string_view to)
    {
        const Url url = node(path).url();
        controller->setSelectedFile(&node(path));
        controller->trashItem();
        RecycleResult result;
        result.newUrls[url.absoluteString()] = Url(to, url.isDirectory());
        ASSERT_TRUE(services.workspace.finishRecycling(result));
    }

    bool has(std::string_view path)
    {
        return nodeAtPath(*model.topFolder(), "/data/" + std::string(path)) != nullptr;
    }

    void finish()
    {
        const Folder* const old = &folder("docs");
        services.mainThread.runUntil([&] { return &folder("docs") != old; });
    }

    test::FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    test::FakeTreeViewServices services;
    TreeMapView view{services.defaults};
    std::unique_ptr<TreeViewController> controller;
};

TEST_F(FolderRescanTest, PutsTheNewTreeInTheFoldersPlace)
{
    rescan("docs");
    finish();
    EXPECT_EQ(services.files.enumeratedPaths().back(), "/data/docs");
    EXPECT_EQ(node("docs/new/b").totalAllocation(), 100U);
    EXPECT_EQ(node("docs/new/b").absolutePath(), "/data/docs/new/b");
    EXPECT_EQ(model.topFolder()->totalAllocation(), 1601U);
    EXPECT_TRUE(view.findRectForFile(node("docs")).has_value());
}

TEST_F(FolderRescanTest, AFolderOnWhichADiskIsMountedNowHoldsNothingAndIsNoDisk)
{
    services.resourceValues.volumes = {"/data/docs"};
    rescan("docs");
    finish();
    EXPECT_EQ(node("docs").type(), NodeType::TopFolder);
    EXPECT_EQ(node("docs").totalAllocation(), 0U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 601U);
}

/// Rescans of what lies around the user's home, a volume of its own that was scanned in a pass of
/// its own.
class HomeRescanTest : public FolderRescanTest {
protected:
    HomeRescanTest()
        : FolderRescanTest("/data/docs/new")
    {
        services.resourceValues.volumes = {"/data/docs/new"};
    }
};

TEST_F(HomeRescanTest, TheHomeIsScannedAgainToo)
{
    rescan("docs");
    finish();
    // Whatever is scanned holds "a:900 new/ ( b:100 )": first docs, then the home in there.
    EXPECT_EQ(node("docs/new").totalAllocation(), 1000U);
    EXPECT_EQ(node("docs/new").type(), NodeType::Folder);
    EXPECT_EQ(node("docs").totalAllocation(), 1900U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 2501U);
}

TEST_F(HomeRescanTest, TheBarStaysUntilTheEndOfTheSecondScan)
{
    bool isInHome = false;
    services.files.onItem([&](const std::string& /*path*/) {
        // Each scan counts before it walks.
        if (services.files.enumeratedPaths().size() == 3) {
            services.mainThread.performAndWait([&isInHome] { isInHome = true; });
        }
    });
    rescan("docs");
    services.mainThread.runUntil([&isInHome] { return isInHome; });
    EXPECT_NE(indicator(), nullptr);
    EXPECT_TRUE(isRescanning());
    finish();
    EXPECT_EQ(indicator(), nullptr);
}

TEST_F(FolderRescanTest, ShowsTheFolderWithoutItsContentMeanwhile)
{
    rescan("docs");
    EXPECT_TRUE(folder("docs").rescanning());
    EXPECT_FALSE(view.findRectForFile(node("docs/a")).has_value());
    finish();
    EXPECT_FALSE(folder("docs").rescanning());
    EXPECT_TRUE(view.findRectForFile(node("docs/a")).has_value());
}

TEST_F(FolderRescanTest, TakesTheSelectionAway)
{
    rescan("docs");
    EXPECT_EQ(controller->selectedFile(), nullptr);
    finish();
}

TEST_F(FolderRescanTest, NothingHappensToAFileOrTheScannedFolder)
{
    controller->refreshFolder();
    controller->setSelectedFile(&node("docs/a"));
    controller->refreshFolder();
    EXPECT_TRUE(services.files.enumeratedPaths().empty());
    EXPECT_EQ(controller->selectedFile(), &node("docs/a"));
}

TEST_F(FolderRescanTest, ASecondRequestMeanwhileIsIgnored)
{
    rescan("docs");
    rescan("other");
    EXPECT_FALSE(folder("other").rescanning());
    finish();
    EXPECT_EQ(services.files.enumeratedPaths().size(), 2U);
    EXPECT_EQ(node("other").totalAllocation(), 600U);
}

TEST_F(FolderRescanTest, ASecondRequestMeanwhileKeepsTheSelectionAndItsLook)
{
    rescan("docs");
    controller->setSelectedFile(&node("other"));
    controller->renderTree();
    const QImage selected = view.picture().copy();
    controller->refreshFolder();
    EXPECT_EQ(controller->selectedFile(), &node("other"));
    EXPECT_EQ(view.picture(), selected);
    finish();
}

TEST_F(FolderRescanTest, WithNothingSelectedItIsOfTheFolderInView)
{
    goTo("docs");
    controller->refreshFolder();
    EXPECT_TRUE(folder("docs").rescanning());
    finish();
    EXPECT_EQ(controller->currentFolder(), &folder("docs"));
    EXPECT_TRUE(has("docs/new/b"));
}

TEST_F(FolderRescanTest, ABarCrossesTheViewWhileTheFolderInViewIsRescanned)
{
    goTo("docs");
    controller->refreshFolder();
    ASSERT_NE(indicator(), nullptr);
    EXPECT_EQ(indicator()->geometry(), QRect(10, 10, 380, 280));
    finish();
}

TEST_F(FolderRescanTest, TheNewTreeKeepsTheFoldersColour)
{
    for (const std::uint8_t hue : std::array<std::uint8_t, 3>{1, 2, 6}) {
        folder("docs").setHue(hue);
        rescan("docs");
        finish();
        EXPECT_EQ(folder("docs").hue(), hue);
    }
}

TEST_F(FolderRescanTest, WhatIsTrashedMeanwhileIsNotInTheNewTree)
{
    rescan("docs");
    trash("docs/a");
    finish();
    EXPECT_FALSE(has("docs/a"));
    EXPECT_EQ(node("docs").totalAllocation(), 100U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 701U);
}

TEST_F(FolderRescanTest, AFolderTrashedAfterAnItemInItIsNotInTheNewTree)
{
    folder("docs").insertChild(test::makeTree("/data/docs/new", "b:100 c:1"));
    rescan("docs");
    trash("docs/new/b");
    trash("docs/new");
    finish();
    EXPECT_FALSE(has("docs/new"));
    EXPECT_EQ(node("docs").totalAllocation(), 900U);
}

TEST_F(FolderRescanTest, WhatIsTrashedBesideTheFolderMeanwhileChangesNothingInIt)
{
    rescan("docs");
    trash("other/o");
    finish();
    EXPECT_FALSE(has("other/o"));
    EXPECT_EQ(node("docs").totalAllocation(), 1000U);
}

TEST_F(FolderRescanTest, AnArchiveThatComesMeanwhileIsInTheNewTree)
{
    services.resourceValues.size = 4096;
    rescan("docs");
    NotificationCenter::defaultCenter().post("ItemCompressed", Url("/data/docs/x.zip", false));
    finish();
    EXPECT_EQ(node("docs/x.zip").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs").totalAllocation(), 5096U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 5697U);
}

TEST_F(FolderRescanTest, AnArchiveThatWasReadHalfWrittenHasItsWholeSize)
{
    services.resourceValues.size = 4096;
    rescan("docs");
    NotificationCenter::defaultCenter().post("ItemCompressed", Url("/data/docs/a", false));
    finish();
    EXPECT_EQ(node("docs/a").totalAllocation(), 4096U);
    EXPECT_EQ(node("docs").totalAllocation(), 4196U);
}

TEST_F(FolderRescanTest, AnArchiveInAFolderThatVanishedIsInNoTree)
{
    services.resourceValues.size = 4096;
    rescan("docs");
    NotificationCenter::defaultCenter().post("ItemCompressed", Url("/data/docs/gone/x.zip", false));
    controller->setSelectedFile(&node("docs/gone/x.zip"));
    finish();
    EXPECT_FALSE(has("docs/gone"));
    EXPECT_EQ(controller->selectedFile(), nullptr);
    EXPECT_EQ(node("docs").totalAllocation(), 1000U);
}

TEST_F(FolderRescanTest, WhatMovesIntoTheFolderMeanwhileIsInTheNewTreeAndStaysSelected)
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

TEST_F(FolderRescanTest, TheNextRescanKnowsNothingOfWhatLeftDuringTheOneBefore)
{
    rescan("docs");
    trash("docs/a");
    finish();
    rescan("docs");
    finish();
    EXPECT_TRUE(has("docs/a"));
}

TEST_F(FolderRescanTest, AnEmptyMountPointIsNotRescanned)
{
    folder("other").removeChild(node("other/o"));
    services.resourceValues.mountPoints = {"/data/other"};
    controller->setSelectedFile(&node("other"));
    EXPECT_FALSE(controller->validate(TreeCommand::Rescan));
    controller->refreshFolder();
    EXPECT_FALSE(folder("other").rescanning());
    EXPECT_TRUE(controller->whyNot(TreeCommand::Rescan)
                    .startsWith(QStringLiteral("A disk is mounted at 'other'.")));
}

TEST_F(FolderRescanTest, AMountPointThatASecondScanFilledIsRescanned)
{
    services.resourceValues.mountPoints = {"/data/docs"};
    controller->setSelectedFile(&node("docs"));
    EXPECT_TRUE(controller->validate(TreeCommand::Rescan));
}

TEST_F(FolderRescanTest, AnEmptyFolderIsRescanned)
{
    folder("other").removeChild(node("other/o"));
    controller->setSelectedFile(&node("other"));
    EXPECT_TRUE(controller->validate(TreeCommand::Rescan));
}

TEST_F(FolderRescanTest, TheScannedFolderMayBeAMountPoint)
{
    model.setTopFolder(test::makeTree("/data", ""));
    services.resourceValues.mountPoints = {"/data"};
    controller = std::make_unique<TreeViewController>(model, view, services.get());
    EXPECT_TRUE(controller->validate(TreeCommand::Rescan));
}

TEST_F(FolderRescanTest, WhileOneRunsThereIsAReasonAgainstAnother)
{
    rescan("docs");
    controller->setSelectedFile(&node("other"));
    EXPECT_TRUE(controller->whyNot(TreeCommand::Rescan)
                    .startsWith(QStringLiteral("A rescan is running already.")));
    finish();
    EXPECT_EQ(controller->whyNot(TreeCommand::Rescan), QString());
}

TEST_F(FolderRescanTest, TheBarHidesDuringAZoom)
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

TEST_F(FolderRescanTest, ARescanThatEndsDuringAZoomOutShowsTheNewTreeAtOnce)
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

TEST_F(FolderRescanTest, ARescanThatBeginsDuringAZoomOutEndsTheZoom)
{
    goTo("other");
    controller->zoomOutFolder(*model.topFolder());
    controller->rescanSelectedFolder(folder("docs"));
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(view.branches().size(), 1U);
    EXPECT_TRUE(indicator()->isVisibleTo(&view));
    finish();
}

TEST_F(FolderRescanTest, AnotherCanFollow)
{
    rescan("docs");
    finish();
    controller->setSelectedFile(&node("other"));
    EXPECT_TRUE(controller->validate(TreeCommand::Rescan));
}

TEST_F(FolderRescanTest, TheTopFolderHasNoPlaceToBeReplacedIn)
{
    controller->rescanSelectedFolder(*model.topFolder());
    EXPECT_FALSE(model.topFolder()->rescanning());
}

TEST_F(FolderRescanTest, ABarLiesTenPointsInsideTheFoldersBox)
{
    rescan("docs");
    const Rect box = view.findRectForFile(node("docs")).value();
    ASSERT_NE(indicator(), nullptr);
    EXPECT_EQ(
        indicator()->geometry(),
        QRectF(box.x + 10, box.y + 10, box.width - 20, box.height - 20).toRect());
    EXPECT_EQ(indicator()->value(), 0.0);
    finish();
    EXPECT_EQ(indicator(), nullptr);
}

TEST_F(FolderRescanTest, ASmallBoxGetsNoBar)
{
    rescan("tiny");
    EXPECT_EQ(indicator(), nullptr);
    const Folder* const old = &folder("tiny");
    services.mainThread.runUntil([&] { return &folder("tiny") != old; });
}

TEST_F(FolderRescanTest, TheBarShowsTheProgress)
{
    bool isUnderWay = false;
    services.files.onItem([&](const std::string& /*path*/) {
        if (services.files.enumeratedPaths().size() == 2 && !isUnderWay) {
            isUnderWay = true;
            services.scanClock = services.scanClock.load() + 1.0;
        }
    });
    rescan("docs");
    bool wasShown = false;
    services.mainThread.runUntil([&] {
        wasShown = wasShown || (indicator() != nullptr && indicator()->value() > 0);
        return node("docs").totalAllocation() == 1000U;
    });
    EXPECT_TRUE(wasShown);
}

TEST_F(FolderRescanTest, TheBarFollowsTheBoxWhenTheViewIsResized)
{
    rescan("docs");
    view.resize(640, 480);
    const Rect box = view.findRectForFile(node("docs")).value();
    EXPECT_EQ(indicator()->geometry().topLeft(), QPointF(box.x + 10, box.y + 10).toPoint());
    finish();
}

TEST_F(FolderRescanTest, TheBarHidesWithTheBox)
{
    rescan("docs");
    goTo("other");
    EXPECT_FALSE(indicator()->isVisibleTo(&view));
    goTo("");
    EXPECT_TRUE(indicator()->isVisibleTo(&view));
    finish();
}

TEST_F(FolderRescanTest, AFolderThatIsHiddenOrIgnoredStaysSo)
{
    folder("docs").setHidden(true);
    folder("docs").setIgnored(true);
    rescan("docs");
    finish();
    EXPECT_TRUE(folder("docs").hidden());
    EXPECT_TRUE(folder("docs").ignored());
}

TEST_F(FolderRescanTest, TheFolderInViewIsTheNewOne)
{
    rescan("docs");
    goTo("docs");
    finish();
    EXPECT_EQ(controller->currentFolder(), &folder("docs"));
    EXPECT_TRUE(view.findRectForFile(node("docs/new")).has_value());
}

TEST_F(FolderRescanTest, WhenTheFolderInViewVanishedTheOneAroundItIsShown)
{
    rescan("docs");
    goTo("docs/gone/deep");
    finish();
    EXPECT_EQ(controller->currentFolder(), &folder("docs"));
}

TEST_F(FolderRescanTest, ASelectionInsideMovesToTheSameItem)
{
    rescan("docs");
    controller->setSelectedFile(&node("docs/a"));
    finish();
    EXPECT_EQ(controller->selectedFile(), &node("docs/a"));
    EXPECT_TRUE(node("docs/a").selected());
}

TEST_F(FolderRescanTest, ASelectionOfWhatVanishedIsTakenAway)
{
    rescan("docs");
    controller->setSelectedFile(&node("docs/gone"));
    finish();
    EXPECT_EQ(controller->selectedFile(), nullptr);
}

TEST_F(FolderRescanTest, WithoutAThreadForItTheTreeStaysAndTheUserIsTold)
{
    services.hasThreads = false;
    rescan("docs");
    services.mainThread.runUntil([this] { return !services.alert.told.empty(); });
    EXPECT_EQ(services.alert.told[0].messageText, QStringLiteral("The folder cannot be scanned"));
    EXPECT_EQ(indicator(), nullptr);
    EXPECT_FALSE(folder("docs").rescanning());
    EXPECT_TRUE(view.findRectForFile(node("docs/a")).has_value());
    controller->setSelectedFile(&node("docs"));
    EXPECT_TRUE(controller->validate(TreeCommand::Rescan)) << "it can be tried again";
}

TEST_F(FolderRescanTest, GoingAwayEndsIt)
{
    rescan("docs");
    controller.reset();
    EXPECT_EQ(indicator(), nullptr);
    endWorkers();
    EXPECT_EQ(node("docs").totalAllocation(), 700U);
}

TEST_F(FolderRescanTest, TrashingTheFolderEndsIt)
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
    EXPECT_TRUE(controller->validate(TreeCommand::Rescan));
}

TEST_F(FolderRescanTest, TrashingSomethingElseDoesNot)
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

TEST_F(FolderRescanTest, AnItemTrashedWhileItsFolderIsRescannedLeavesTheNewTree)
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
class EmptyRescanTest : public FolderRescanTest {
protected:
    EmptyRescanTest()
        : FolderRescanTest("")
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
         {std::errc::no_such_file_or_directory, std::errc::not_a_directory}) {
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

TEST_F(FolderRescanTest, AFolderInWhichSomethingWasFoundIsNotAskedFor)
{
    services.folderProblem = std::make_error_code(std::errc::permission_denied);
    rescan("docs");
    finish();
    EXPECT_EQ(services.checkedFolder, "");
    EXPECT_EQ(node("docs").totalAllocation(), 1000U);
}

TEST(RescanIndicator, NeedsABoxThatLeavesMoreThanTwentyByThirtyFive)
{
    EXPECT_EQ(RescanIndicator::frameFor({5, 6, 41, 56}), (Rect{15, 16, 21, 36}));
    EXPECT_TRUE(RescanIndicator::fits({0, 0, 20.5, 35.5}));
    EXPECT_FALSE(RescanIndicator::fits({0, 0, 20, 36}));
    EXPECT_FALSE(RescanIndicator::fits({0, 0, 21, 35}));
}

TEST(RescanIndicator, HoldsItsValueBetweenItsEnds)
{
    QWidget parent;
    RescanIndicator indicator(&parent);
    indicator.setValue(0.25);
    EXPECT_EQ(indicator.value(), 0.25);
    indicator.setValue(7);
    EXPECT_EQ(indicator.value(), 1.0);
    indicator.setValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(indicator.value(), 0.0);
}

TEST(RescanIndicator, ThePointerDoesNotNoticeIt)
{
    QWidget parent;
    RescanIndicator indicator(&parent);
    indicator.place({0, 0, 100, 100});
    EXPECT_TRUE(indicator.testAttribute(Qt::WA_TransparentForMouseEvents));
}

} // namespace
} // namespace tessera
