// SPDX-License-Identifier: MIT
#include "FolderRescanFixture.h"

#include <array>
#include <cstdint>
#include <limits>

namespace tessera {
namespace {

using test::FolderRescanTest;

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

TEST_F(FolderRescanTest, TheRestOfTheWindowHearsOfTheNewTree)
{
    int changes = 0;
    QObject::connect(controller.get(), &TreeViewController::treeChanged, [&changes] { ++changes; });
    rescan("docs");
    finish();
    EXPECT_EQ(changes, 1);
}

TEST_F(FolderRescanTest, AFolderOnWhichADiskIsMountedNowHoldsNothingAndIsNoDisk)
{
    services.scanResourceValues.volumes = {"/data/docs"};
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
        services.scanResourceValues.volumes = {"/data/docs/new"};
    }

    /// Scans "docs" anew until the second scan, that of the home in it, is on its way.
    void rescanUntilInHome()
    {
        services.files.onItem([this](const std::string& /*path*/) {
            // Each scan counts before it walks.
            if (services.files.enumeratedPaths().size() == 3) {
                services.mainThread.performAndWait([this] { m_isInHome = true; });
            }
        });
        rescan("docs");
        services.mainThread.runUntil([this] { return m_isInHome; });
    }

private:
    bool m_isInHome = false; ///< touched by the main thread alone
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

TEST_F(HomeRescanTest, BothAreReachedOverNoLink)
{
    model.topFolder()->setRealOrigin("/disk");
    rescan("docs");
    finish();
    EXPECT_EQ(
        services.files.enumeratedPaths(),
        (std::vector<std::string>{"/disk/docs", "/disk/docs", "/disk/docs/new", "/disk/docs/new"}));
    EXPECT_EQ(services.files.linksToStarts().back(), LinksToStart::Refuse);
}

TEST_F(HomeRescanTest, TheBarStaysUntilTheEndOfTheSecondScan)
{
    rescanUntilInHome();
    EXPECT_NE(indicator(), nullptr);
    EXPECT_TRUE(isRescanning());
    finish();
    EXPECT_EQ(indicator(), nullptr);
}

TEST_F(HomeRescanTest, OneThatEndsEarlyLeavesNothingToTheNext)
{
    rescanUntilInHome();
    trash("docs");
    endWorkers();
    rescan("other");
    services.mainThread.runUntil([this] { return !isRescanning(); });
    EXPECT_TRUE(has("other/new/b"));
}

TEST_F(HomeRescanTest, AnotherVolumeOfTheUsersNameHasNoSpaceThatNoFileTakes)
{
    services.home = "/elsewhere/new";
    controller = std::make_unique<TreeViewController>(model, view, services.get());
    services.fileSystem.setSizes(FileSystemSizes{5000, 1000});
    rescan("docs");
    finish();
    EXPECT_EQ(node("docs/new").totalAllocation(), 1000U);
}

TEST_F(FolderRescanTest, FollowsNoLinkThatWasPutInTheFoldersPlace)
{
    model.topFolder()->setRealOrigin("/disk");
    rescan("docs");
    finish();
    EXPECT_EQ(services.files.enumeratedPaths().back(), "/disk/docs");
    EXPECT_EQ(services.files.linksToStarts().back(), LinksToStart::Refuse);
    EXPECT_EQ(node("docs/a").absolutePath(), "/data/docs/a");
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

TEST_F(FolderRescanTest, AnEmptyFolderIsRescanned)
{
    folder("other").removeChild(node("other/o"));
    controller->setSelectedFile(&node("other"));
    EXPECT_TRUE(controller->validate(Command::Rescan));
}

TEST_F(FolderRescanTest, WhileOneRunsThereIsAReasonAgainstAnother)
{
    rescan("docs");
    controller->setSelectedFile(&node("other"));
    EXPECT_TRUE(controller->whyNot(Command::Rescan)
                    .startsWith(QStringLiteral("A rescan is running already.")));
    finish();
    EXPECT_EQ(controller->whyNot(Command::Rescan), QString());
}

TEST_F(FolderRescanTest, AnotherCanFollow)
{
    rescan("docs");
    finish();
    controller->setSelectedFile(&node("other"));
    EXPECT_TRUE(controller->validate(Command::Rescan));
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
    EXPECT_TRUE(controller->validate(Command::Rescan)) << "it can be tried again";
}

TEST_F(FolderRescanTest, GoingAwayEndsIt)
{
    rescan("docs");
    controller.reset();
    EXPECT_EQ(indicator(), nullptr);
    endWorkers();
    EXPECT_EQ(node("docs").totalAllocation(), 700U);
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
