// SPDX-License-Identifier: MIT
#include "MainWindowFixture.h"
#include "TreeScreen/PathBar/ToolbarPathControl.h"

#include <gmock/gmock.h>

namespace tessera {
namespace {

using testing::ElementsAre;

class MainWindowScreensTest : public test::MainWindowFixture { };

TEST_F(MainWindowScreensTest, OpensOnTheHomeScreenWhichFillsIt)
{
    EXPECT_EQ(controller->state(), ScreenState::Home);
    EXPECT_TRUE(services.screens.home->isVisible());
    EXPECT_EQ(homeFrame(), QRect(QPoint(0, 0), area()));
}

TEST_F(MainWindowScreensTest, TheHomeScreenGetsTheKeyboard)
{
    EXPECT_EQ(services.screens.homeFocused, 1);
}

TEST_F(MainWindowScreensTest, AfterACancelTheHomeScreenGetsTheKeyboardBack)
{
    requestScan();
    slideFor(0.5);
    cancelScan();
    slideFor(0.5625);
    EXPECT_EQ(services.screens.homeFocused, 2);
}

TEST_F(MainWindowScreensTest, AScanRequestDisablesTheHomeScreenAndStartsTheScan)
{
    requestScan("/data/some\xFF");
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data/some\xFF"));
    EXPECT_FALSE(services.screens.homeEnabled);
    EXPECT_TRUE(services.screens.scan->isVisible());
}

TEST_F(MainWindowScreensTest, WhatTheHomeScreenAsksForIsScanned)
{
    emit services.screens.homeScreen->scanUrl(Url("/data/some\xFF", true));
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data/some\xFF"));
    EXPECT_EQ(controller->state(), ScreenState::Scanning);
}

TEST_F(MainWindowScreensTest, TheScanPanelBeginsJustBelowTheLowerEdge)
{
    requestScan();
    EXPECT_EQ(scanFrame(), QRect(0, area().height(), area().width(), 230));
    EXPECT_EQ(homeFrame().height(), area().height());
}

TEST_F(MainWindowScreensTest, WithinHalfASecondThePanelSlidesInAndTheHomeScreenGetsShorter)
{
    requestScan();
    slideFor(0.5);
    EXPECT_EQ(scanFrame(), QRect(0, area().height() - 230, area().width(), 230));
    EXPECT_EQ(homeFrame(), QRect(0, 0, area().width(), area().height() - 174));
}

TEST_F(MainWindowScreensTest, APanelThatNeedsMoreHeightGetsIt)
{
    services.screens.leastScanHeight = 310;
    requestScan();
    slideFor(0.5);
    EXPECT_EQ(scanFrame(), QRect(0, area().height() - 310, area().width(), 310));
    EXPECT_EQ(homeFrame(), QRect(0, 0, area().width(), area().height() - 254));
}

TEST_F(MainWindowScreensTest, ThePanelStaysAtTheBottomOfALargerWindow)
{
    requestScan();
    slideFor(0.5);
    controller->window().resize(1300, 900);
    EXPECT_EQ(scanFrame(), QRect(0, area().height() - 230, area().width(), 230));
    EXPECT_EQ(homeFrame(), QRect(0, 0, area().width(), area().height() - 174));
}

TEST_F(
    MainWindowScreensTest, AfterACancelTheHomeScreenIsBackInHalfASecondAndEnabledAfter55Hundredths)
{
    requestScan();
    slideFor(0.5);
    cancelScan();
    slideFor(0.5);
    EXPECT_EQ(homeFrame(), QRect(QPoint(0, 0), area()));
    EXPECT_FALSE(services.screens.homeEnabled);
    slideFor(0.0625);
    EXPECT_TRUE(services.screens.homeEnabled);
    EXPECT_EQ(controller->state(), ScreenState::Home);
    QCoreApplication::processEvents();
    EXPECT_EQ(services.screens.scanScreens, 0);
}

TEST_F(MainWindowScreensTest, AScanRequestedWhileTheCancelledPanelSlidesAwayIsNotCleanedUp)
{
    requestScan();
    slideFor(0.5);
    cancelScan();
    slideFor(0.25);
    requestScan("/other");
    slideFor(1);
    EXPECT_EQ(controller->state(), ScreenState::Scanning);
    EXPECT_FALSE(services.screens.homeEnabled);
    QCoreApplication::processEvents();
    EXPECT_EQ(services.screens.scanScreens, 1);
}

TEST_F(MainWindowScreensTest, AnotherRequestTakesTheRunningScansPlace)
{
    requestScan();
    slideFor(0.5);
    requestScan("/other");
    QCoreApplication::processEvents();
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data", "/other"));
    EXPECT_EQ(services.screens.scanScreens, 1);
    EXPECT_EQ(scanFrame(), QRect(0, area().height() - 230, area().width(), 230));
}

TEST_F(MainWindowScreensTest, AScanThatEndsWhileItsPanelSlidesAwayShowsItsTreeAndIsNotCleanedUp)
{
    requestScan();
    slideFor(0.5);
    cancelScan();
    slideFor(0.25);
    finishScan();
    slideFor(1);
    EXPECT_EQ(controller->state(), ScreenState::Tree);
    EXPECT_EQ(services.screens.homeScreens, 0);
}

TEST_F(MainWindowScreensTest, AReplacedScanIsGoneAtOnceSoThatItsEndIsNotTakenForTheNewOnes)
{
    requestScan();
    requestScan("/other");
    EXPECT_EQ(services.screens.scanScreens, 1);
    slideFor(0.5);
    cancelScan();
    slideFor(0.25);
    requestScan("/third");
    EXPECT_EQ(services.screens.scanScreens, 1);
}

TEST_F(MainWindowScreensTest, AFinishedScanShowsTheTreeAlone)
{
    showTree();
    ASSERT_NE(controller->treeVC(), nullptr);
    EXPECT_EQ(controller->treeVC()->currentFolder(), services.model.topFolder());
    EXPECT_EQ(services.screens.homeScreens, 0);
    EXPECT_EQ(services.screens.scanScreens, 0);
}

TEST_F(MainWindowScreensTest, TheHomeButtonLeadsFromTheTreeToANewHomeScreen)
{
    showTree();
    controller->toolbar().toolbarHomeButton().click();
    EXPECT_EQ(controller->treeVC(), nullptr);
    EXPECT_EQ(services.screens.homeScreensMade, 2);
    EXPECT_EQ(homeFrame(), QRect(QPoint(0, 0), area()));
}

TEST_F(MainWindowScreensTest, AScanRequestedFromTheTreeFirstBringsTheHomeScreenBack)
{
    showTree();
    requestScan("/other");
    EXPECT_EQ(controller->treeVC(), nullptr);
    EXPECT_EQ(services.screens.homeScreens, 1);
    EXPECT_EQ(scanFrame().top(), area().height());
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data", "/other"));
}

TEST_F(MainWindowScreensTest, AfterTheTreeThePanelSlidesInFromBelowAgain)
{
    requestScan();
    slideFor(0.5);
    finishScan();
    controller->homeSelected();
    EXPECT_EQ(homeFrame(), QRect(QPoint(0, 0), area()));
    requestScan();
    EXPECT_EQ(scanFrame(), QRect(0, area().height(), area().width(), 230));
    slideFor(0.5);
    EXPECT_EQ(scanFrame().top(), area().height() - 230);
}

TEST_F(MainWindowScreensTest, EventsThatMakeNoSenseChangeNothing)
{
    requestScan();
    cancelScan();
    slideFor(0.5625);
    ASSERT_EQ(controller->state(), ScreenState::Home);
    cancelScan();
    EXPECT_EQ(controller->state(), ScreenState::Home);
    emit services.screens.scanScreen->scanComplete();
    EXPECT_EQ(controller->state(), ScreenState::Home);
    controller->homeSelected();
    EXPECT_EQ(services.screens.homeScreensMade, 1);
}

TEST_F(MainWindowScreensTest, DisabledButtonsOfTheToolbarSayWhy)
{
    const QToolButton& home = controller->toolbar().toolbarHomeButton();
    const QToolButton& commands = controller->toolbar().toolbarActionsButton();
    EXPECT_EQ(
        home.toolTip(),
        QStringLiteral("Choose another disk or folder\nThis is the home screen already."));
    EXPECT_EQ(commands.accessibleDescription(), QStringLiteral("Scan a disk or a folder first."));
    requestScan();
    EXPECT_TRUE(commands.toolTip().endsWith(QStringLiteral("Wait until it has ended.")));
    finishScan();
    EXPECT_EQ(commands.toolTip(), QStringLiteral("Commands for the selected item"));
    EXPECT_EQ(commands.accessibleDescription(), QString());
}

TEST_F(MainWindowScreensTest, TheToolbarFollowsTheScreen)
{
    const MainToolbar& toolbar = controller->toolbar();
    const auto isAsWithTree = [&] {
        return std::vector<bool>{
            toolbar.toolbarHomeButton().isEnabled(),
            toolbar.toolbarSeparator().isVisible(),
            toolbar.toolbarPathControl().isVisible(),
            toolbar.toolbarActionsButton().isEnabled()};
    };
    EXPECT_THAT(isAsWithTree(), ElementsAre(false, false, false, false));
    requestScan();
    EXPECT_THAT(isAsWithTree(), ElementsAre(false, false, false, false));
    finishScan();
    EXPECT_THAT(isAsWithTree(), ElementsAre(true, true, true, true));
    controller->homeSelected();
    EXPECT_THAT(isAsWithTree(), ElementsAre(false, false, false, false));
}

TEST_F(MainWindowScreensTest, OnTheHomeScreenTheIgnoreMenuHasItsFixedEntriesOnly)
{
    showTree();
    select("docs");
    controller->perform(Command::Ignore);
    EXPECT_TRUE(test::at(*services.model.topFolder(), "docs").ignored());
    EXPECT_EQ(controller->ignoreMenu().actions().size(), 8);
    requestScan();
    EXPECT_EQ(controller->ignoreMenu().actions().size(), 6);
}

TEST_F(MainWindowScreensTest, NothingJumpsWhenTheScreenChanges)
{
    const QSize before = area();
    showTree();
    EXPECT_EQ(area(), before);
}

TEST_F(MainWindowScreensTest, WithReducedMotionNothingSlides)
{
    services.treeScreen.motion.reduced = true;
    requestScan();
    EXPECT_EQ(scanFrame().top(), area().height() - 230);
}

TEST_F(MainWindowScreensTest, WhatLeavesItsPlaceDuringAScanIsNotInTheNewTree)
{
    requestScan();
    emit services.treeScreen.diskChanges.itemGone(Url("/data/docs/a", false));
    finishScan();
    EXPECT_EQ(services.model.topFolder()->totalAllocation(), 250U);
}

TEST_F(MainWindowScreensTest, AnArchiveThatComesDuringAScanIsInTheNewTree)
{
    services.treeScreen.resourceValues.size = 4096;
    requestScan();
    emit services.treeScreen.diskChanges.itemCompressed(Url("/data/docs/x.zip", false));
    finishScan();
    EXPECT_EQ(services.model.topFolder()->totalAllocation(), 950U + 4096U);
}

TEST_F(MainWindowScreensTest, WhatLeftBeforeTheScanMayBeBack)
{
    emit services.treeScreen.diskChanges.itemGone(Url("/data/docs/a", false));
    requestScan();
    finishScan();
    EXPECT_EQ(services.model.topFolder()->totalAllocation(), 950U);
}

TEST_F(MainWindowScreensTest, AnItemWhoseMoveEndsDuringTheNextScanIsNotInTheNewTree)
{
    showTree();
    select("docs/a");
    controller->perform(Command::MoveToTrash);
    requestScan();
    RecycleResult result;
    result.newUrls["file:///data/docs/a"] = Url("/trash/a", false);
    ASSERT_TRUE(services.treeScreen.workspace.finishRecycling(result));
    finishScan();
    EXPECT_EQ(services.model.topFolder()->totalAllocation(), 250U);
}

} // namespace
} // namespace tessera
