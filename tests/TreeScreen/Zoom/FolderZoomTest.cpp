// SPDX-License-Identifier: MIT
#include "TreeScreen/Zoom/FolderZoom.h"

#include "Model/RootModel.h"
#include "Model/TooltipType.h"
#include "Model/UserDefaults.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/Tooltip/TooltipController.h"
#include "TreeScreen/TreeViewController.h"
#include "Widgets/WaitForFrames.h"
#include "support/BecomesActive.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeViewServices.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/MakeTree.h"

#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace tessera {
namespace {

constexpr Rect kBounds{0, 0, 400, 300};
constexpr double kSeconds = ZoomAnimation::kSeconds;
/// Along edges, rounding may put a pixel on either side.
constexpr int kFewPixels = 50;
constexpr double kHalfWay = kSeconds * 0.6575;

/// A view of 400 by 300 with a folder in a folder, and one that is too small for a box.
class FolderZoomTest : public testing::Test {
protected:
    FolderZoomTest()
    {
        model.setTopFolder(test::makeTree(
            "/data", "docs/ ( deep/ ( a:400000 b:300000 ) c:200000 ) d:600000 tiny/ ( e:9 ) f:8"));
        view.resize(400, 300);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
        goTo(*model.topFolder());
    }

    Folder& folder(std::string_view path)
    {
        return static_cast<Folder&>(test::at(*model.topFolder(), path));
    }

    QImage shown() { return view.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    /// Names of the top branches, bottom to top.
    std::vector<std::string> branches() const
    {
        std::vector<std::string> names;
        for (const auto& branch : view.branches()) {
            names.push_back(branch->name());
        }
        return names;
    }

    void finishZoom()
    {
        viewServices.now += kSeconds;
        ASSERT_TRUE(QTest::qWaitFor([this] { return !view.isZooming(); }));
    }

    void goTo(Folder& destination)
    {
        controller.setCurrentFolder(&destination);
        controller.setSelectedFile(nullptr);
        controller.renderTree();
    }

    Rect boxOf(std::string_view path)
    {
        return view.findRectForFile(test::at(*model.topFolder(), path)).value();
    }

    static QTransform inView(const QTransform& transform)
    {
        return ZoomGeometry::inView(transform, kBounds.height);
    }

    static QImage expectedHalfWay(ZoomLayer lower, ZoomLayer upper)
    {
        double now = 0;
        const ZoomAnimation animation(std::move(lower), std::move(upper), [&now] { return now; });
        now = kHalfWay;
        QImage result(400, 300, QImage::Format_RGB32);
        QPainter painter(&result);
        animation.paint(painter);
        return result;
    }

    /// Pixels whose grey differs visibly.
    static int differences(const QImage& a, const QImage& b)
    {
        constexpr int kVisible = 8;
        int count = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > kVisible ? 1 : 0;
            }
        }
        return count;
    }

    using Names = std::vector<std::string>;

    test::FakeRootModelServices services;
    RootModel model{services.get()};
    test::FakeUserDefaults defaults;
    test::FakeTreeViewServices viewServices;
    TreeMapView view{defaults};
    TreeViewController controller{model, view, viewServices.get()};
};

TEST_F(FolderZoomTest, ZoomingInPutsTheNewPictureAboveTheOldOne)
{
    controller.zoomInFolder(folder("docs"));
    EXPECT_EQ(branches(), (Names{"data", "docs"}));
    EXPECT_TRUE(view.isZooming());
}

TEST_F(FolderZoomTest, ZoomingOutPutsTheNewPictureBelowTheOldOne)
{
    goTo(folder("docs"));
    controller.zoomOutFolder(*model.topFolder());
    EXPECT_EQ(branches(), (Names{"data", "docs"}));
    EXPECT_TRUE(view.isZooming());
}

TEST_F(FolderZoomTest, TheFolderChangesAtTheBeginning)
{
    controller.zoomInFolder(folder("docs"));
    EXPECT_EQ(controller.currentFolder(), &folder("docs"));
    controller.zoomOutFolder(*model.topFolder());
    EXPECT_EQ(controller.currentFolder(), model.topFolder());
}

TEST_F(FolderZoomTest, EveryZoomTakesTheSelectionAway)
{
    controller.setSelectedFile(&folder("docs"));
    controller.zoomInFolder(folder("docs"));
    EXPECT_EQ(controller.selectedFile(), nullptr);
    controller.setSelectedFile(&folder("docs/deep"));
    controller.zoomOutFolder(*model.topFolder());
    EXPECT_EQ(controller.selectedFile(), nullptr);
    EXPECT_FALSE(folder("docs/deep").selected());
}

TEST_F(FolderZoomTest, ZoomingInBeginsWithWhatIsOnScreen)
{
    controller.setSelectedFile(&folder("docs"));
    controller.renderTree();
    const QImage before = shown();
    controller.zoomInFolder(folder("docs"));
    EXPECT_EQ(shown(), before);
}

TEST_F(FolderZoomTest, ZoomingOutBeginsWithWhatIsOnScreen)
{
    goTo(folder("docs"));
    const QImage before = shown();
    controller.zoomOutFolder(*model.topFolder());
    EXPECT_EQ(shown(), before);
}

TEST_F(FolderZoomTest, ZoomingInEndsWithTheFoldersPicture)
{
    controller.zoomInFolder(folder("docs"));
    viewServices.now += kSeconds;
    const QImage last = shown();
    finishZoom();
    EXPECT_EQ(branches(), Names{"docs"});
    EXPECT_EQ(shown(), last);
}

TEST_F(FolderZoomTest, ZoomingOutEndsWithTheFoldersPicture)
{
    goTo(folder("docs"));
    controller.zoomOutFolder(*model.topFolder());
    viewServices.now += kSeconds;
    const QImage last = shown();
    finishZoom();
    EXPECT_EQ(branches(), Names{"data"});
    EXPECT_EQ(shown(), last);
}

TEST_F(FolderZoomTest, ZoomingInGrowsTheOldPictureAndTheNewOneOutOfTheFoldersBox)
{
    const QImage data = shown();
    const ZoomGeometry zoom(boxOf("docs"), ZoomGeometry::Box::Folder, kBounds);
    controller.zoomInFolder(folder("docs"));
    viewServices.now += kHalfWay;
    const QImage halfWay = shown();
    finishZoom();
    const QImage expected = expectedHalfWay(
        {data, {}, inView(zoom.enlarged), 1, 0}, {shown(), inView(zoom.shrunk), {}, 0, 1});
    EXPECT_LT(differences(halfWay, expected), kFewPixels);
}

TEST_F(FolderZoomTest, ZoomingOutShrinksTheOldPictureIntoTheFoldersBox)
{
    goTo(folder("docs"));
    const QImage docs = shown();
    controller.zoomOutFolder(*model.topFolder());
    viewServices.now += kHalfWay;
    const QImage halfWay = shown();
    finishZoom();
    const ZoomGeometry zoom(boxOf("docs"), ZoomGeometry::Box::Folder, kBounds);
    const QImage expected = expectedHalfWay(
        {shown(), inView(zoom.enlarged), {}, 0, 1}, {docs, {}, inView(zoom.shrunk), 1, 0});
    EXPECT_LT(differences(halfWay, expected), kFewPixels);
}

TEST_F(FolderZoomTest, AFolderInsideAGroupIsShownAtOnce)
{
    ASSERT_FALSE(view.findRectForFile(folder("tiny")).has_value());
    testing::internal::CaptureStderr();
    controller.zoomInFolder(folder("tiny"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "abort zoom animation\n");
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"tiny"});
    EXPECT_EQ(controller.currentFolder(), &folder("tiny"));
}

TEST_F(FolderZoomTest, AFolderThatIsTooSmallToShowShrinksIntoTheMiddleOfTheNextShownOne)
{
    model.setTopFolder(test::makeTree("/data", "big/ ( small/ ( x:1 ) y:1 z:900 ) w:900"));
    goTo(folder("big/small"));
    const QImage small = shown();
    controller.zoomOutFolder(*model.topFolder());
    ASSERT_TRUE(view.isZooming());
    viewServices.now += kHalfWay;
    const QImage halfWay = shown();
    finishZoom();
    ASSERT_FALSE(view.findRectForFile(folder("big/small")).has_value());
    const ZoomGeometry zoom(boxOf("big"), ZoomGeometry::Box::Ancestor, kBounds);
    const QImage expected = expectedHalfWay(
        {shown(), inView(zoom.enlarged), {}, 0, 1}, {small, {}, inView(zoom.shrunk), 1, 0});
    EXPECT_LT(differences(halfWay, expected), kFewPixels);
}

TEST_F(FolderZoomTest, ZoomingOutToAFolderThatShowsNothingOfTheOldOneIsAtOnce)
{
    goTo(folder("tiny"));
    folder("tiny").setIgnored(true);
    testing::internal::CaptureStderr();
    controller.zoomOutFolder(*model.topFolder());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "abort zoom animation\n");
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"data"});
}

TEST_F(FolderZoomTest, ASecondZoomEndsTheFirstAtOnce)
{
    controller.zoomInFolder(folder("docs"));
    controller.zoomInFolder(folder("docs/deep"));
    EXPECT_TRUE(view.isZooming());
    EXPECT_EQ(branches(), (Names{"docs", "deep"}));
    finishZoom();
    EXPECT_EQ(branches(), Names{"deep"});
}

TEST_F(FolderZoomTest, ANewSizeEndsTheZoomAtOnce)
{
    controller.zoomInFolder(folder("docs"));
    view.resize(500, 300);
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"docs"});
}

TEST_F(FolderZoomTest, AClickEndsTheZoomAtOnceAndSelectsInTheNewPicture)
{
    controller.zoomInFolder(folder("docs"));
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"docs"});
    EXPECT_EQ(controller.selectedFile(), &folder("docs/deep"));
}

TEST_F(FolderZoomTest, AnArrowKeyDuringAZoomOutSelectsInTheFolderThatComesIntoView)
{
    goTo(folder("docs/deep"));
    controller.zoomOutFolder(*model.topFolder());
    ASSERT_TRUE(view.isZooming());
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(controller.selectedFile(), &folder("docs"));
    EXPECT_TRUE(view.findRectForFile(*controller.selectedFile()).has_value());
}

TEST_F(FolderZoomTest, AnArrowKeyDuringAZoomInSelectsInTheFolderThatComesIntoView)
{
    controller.zoomInFolder(folder("docs"));
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(controller.selectedFile(), &folder("docs/deep"));
}

TEST_F(FolderZoomTest, AnArrowKeyEndsTheZoomAtOnce)
{
    goTo(folder("docs"));
    controller.zoomOutFolder(*model.topFolder());
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"data"});
}

TEST_F(FolderZoomTest, DeleteDuringAZoomOutMovesNothing)
{
    goTo(folder("docs"));
    controller.setSelectedFile(&folder("docs/deep"));
    controller.zoomOutFolder(*model.topFolder());
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_TRUE(viewServices.workspace.recycled.empty());
}

TEST_F(FolderZoomTest, WhatLeavesDuringAZoomOutIsNotInTheNewPicture)
{
    const Url url = folder("docs").url();
    controller.setSelectedFile(&folder("docs"));
    controller.trashItem();
    goTo(folder("docs/deep"));
    controller.zoomOut();
    RecycleResult result;
    result.newUrls[url.absoluteString()] = Url("/trash/docs", true);
    ASSERT_TRUE(viewServices.workspace.finishRecycling(result));
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"data"});
    EXPECT_EQ(controller.currentFolder(), model.topFolder());
}

TEST_F(FolderZoomTest, AnyButtonPressedAnywhereEndsTheZoomAtOnce)
{
    controller.zoomInFolder(folder("docs"));
    QTest::mouseClick(&view, Qt::MiddleButton, {}, QPoint(1, 1));
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"docs"});
}

TEST_F(FolderZoomTest, ThereIsNoTooltipDuringAZoom)
{
    view.activateWindow();
    ASSERT_TRUE(test::becomesActive(view));
    setTooltipType(defaults, TooltipType::Full);
    const QWidget& tooltip = TooltipController::sharedInstance().window();
    QTest::mouseMove(view.windowHandle(), QPoint(50, 100));
    ASSERT_TRUE(tooltip.isVisible());
    controller.zoomInFolder(folder("docs"));
    EXPECT_FALSE(tooltip.isVisible());
    QTest::mouseMove(view.windowHandle(), QPoint(60, 110));
    EXPECT_FALSE(tooltip.isVisible());
    finishZoom();
    EXPECT_FALSE(tooltip.isVisible());
    QTest::mouseMove(view.windowHandle(), QPoint(70, 120));
    EXPECT_TRUE(tooltip.isVisible());
    view.hideTooltip();
}

TEST_F(FolderZoomTest, TheTooltipClosesWhenThePictureIsRebuilt)
{
    view.activateWindow();
    ASSERT_TRUE(test::becomesActive(view));
    setTooltipType(defaults, TooltipType::Full);
    const QWidget& tooltip = TooltipController::sharedInstance().window();
    QTest::mouseMove(view.windowHandle(), QPoint(52, 100));
    ASSERT_TRUE(tooltip.isVisible());
    controller.renderTree();
    EXPECT_FALSE(tooltip.isVisible());
    QTest::mouseMove(view.windowHandle(), QPoint(53, 101));
    EXPECT_TRUE(tooltip.isVisible());
    view.hideTooltip();
}

TEST_F(FolderZoomTest, RenderingEndsTheZoomAtOnce)
{
    controller.zoomInFolder(folder("docs"));
    controller.renderTree();
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"docs"});
}

TEST_F(FolderZoomTest, WithReducedMotionTheFolderIsShownAtOnce)
{
    viewServices.motion.reduced = true;
    testing::internal::CaptureStderr();
    controller.zoomInFolder(folder("docs"));
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"docs"});
    controller.zoomOutFolder(*model.topFolder());
    EXPECT_FALSE(view.isZooming());
    EXPECT_EQ(branches(), Names{"data"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(FolderZoomTest, WhetherMotionIsReducedIsAskedAtEveryZoom)
{
    viewServices.motion.reduced = true;
    controller.zoomInFolder(folder("docs"));
    viewServices.motion.reduced = false;
    controller.zoomInFolder(folder("docs/deep"));
    EXPECT_TRUE(view.isZooming());
}

TEST_F(FolderZoomTest, TheScreenMayGoAwayDuringAZoom)
{
    TreeMapView otherView(defaults);
    otherView.resize(400, 300);
    auto other = std::make_unique<TreeViewController>(model, otherView, viewServices.get());
    other->zoomInFolder(folder("docs"));
    other.reset();
    viewServices.now += kSeconds;
    ASSERT_TRUE(test::waitForFrames());
    EXPECT_TRUE(otherView.isZooming());
}

} // namespace
} // namespace tessera
