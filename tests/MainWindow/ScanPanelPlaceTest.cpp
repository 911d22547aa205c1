// SPDX-License-Identifier: MIT
#include "MainWindow/ScanPanelPlace.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr double kWidth = 1000;
constexpr double kHeight = 600;

TEST(ScanPanelPlace, AtFirstThePanelIsJustBelowTheArea)
{
    const ScanPanelPlace place = ScanPanelPlace::before();
    EXPECT_EQ(place.homeFrame(kWidth, kHeight), (Rect{0, 0, 1000, 600}));
    EXPECT_EQ(place.panelFrame(kWidth, kHeight), (Rect{0, 600, 1000, 230}));
}

TEST(ScanPanelPlace, SlidInThePanelCoversTheLowest56PointsOfTheHomeScreen)
{
    const ScanPanelPlace place = ScanPanelPlace::slidIn();
    EXPECT_EQ(place.homeFrame(kWidth, kHeight), (Rect{0, 0, 1000, 426}));
    EXPECT_EQ(place.panelFrame(kWidth, kHeight), (Rect{0, 370, 1000, 230}));
}

TEST(ScanPanelPlace, AHigherPanelCoversNoMoreOfTheHomeScreen)
{
    const ScanPanelPlace place = ScanPanelPlace::slidIn(300);
    EXPECT_EQ(place.homeFrame(kWidth, kHeight), (Rect{0, 0, 1000, 356}));
    EXPECT_EQ(place.panelFrame(kWidth, kHeight), (Rect{0, 300, 1000, 300}));
    EXPECT_EQ(place.slidOut().panelFrame(kWidth, kHeight), (Rect{0, 600, 1000, 300}));
}

TEST(ScanPanelPlace, OnItsWayThePanelIsAsHighAsWhereItGoes)
{
    const ScanPanelPlace place = ScanPanelPlace::before().toward(ScanPanelPlace::slidIn(300), 0.5);
    EXPECT_EQ(place.panelFrame(kWidth, kHeight).height, 300);
}

TEST(ScanPanelPlace, SlidOutEverythingIsAsBefore)
{
    EXPECT_EQ(ScanPanelPlace::slidIn().slidOut(), ScanPanelPlace::before());
}

TEST(ScanPanelPlace, ACancelOnTheWayInMovesThePanelDownByItsWholeHeight)
{
    const ScanPanelPlace half = ScanPanelPlace::before().toward(ScanPanelPlace::slidIn(), 0.5);
    EXPECT_EQ(half.panelFrame(kWidth, kHeight), (Rect{0, 485, 1000, 230}));
    EXPECT_EQ(half.slidOut().panelFrame(kWidth, kHeight), (Rect{0, 715, 1000, 230}));
    EXPECT_EQ(half.slidOut().homeFrame(kWidth, kHeight), (Rect{0, 0, 1000, 600}));
}

TEST(ScanPanelPlace, HalfwayBothHaveGoneHalfTheirWay)
{
    const ScanPanelPlace half = ScanPanelPlace::before().toward(ScanPanelPlace::slidIn(), 0.5);
    EXPECT_EQ(half.homeFrame(kWidth, kHeight), (Rect{0, 0, 1000, 513}));
}

TEST(ScanPanelPlace, InALargerAreaThePanelStaysAtTheBottom)
{
    EXPECT_EQ(ScanPanelPlace::slidIn().panelFrame(1200, 800), (Rect{0, 570, 1200, 230}));
    EXPECT_EQ(ScanPanelPlace::slidIn().homeFrame(1200, 800), (Rect{0, 0, 1200, 626}));
}

} // namespace
} // namespace tessera
