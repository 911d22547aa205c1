// SPDX-License-Identifier: MIT
#include "TreeScreen/Tooltip/TooltipPlacement.h"

#include <gtest/gtest.h>

namespace tessera {

namespace {

constexpr QSizeF kSize(210, 100);
constexpr QRectF kScreen(0, 0, 1920, 1080);

} // namespace

TEST(TooltipPlacement, BeginsAtThePointerTwentyPointsBelowIt)
{
    EXPECT_EQ(tooltipFrame({500, 300}, kSize, kScreen), QRectF(500, 320, 210, 100));
}

TEST(TooltipPlacement, StaysRightOfThePointerUpToFivePointsFromTheEdge)
{
    EXPECT_EQ(tooltipFrame({1705, 300}, kSize, kScreen).x(), 1705);
}

TEST(TooltipPlacement, EndsAtThePointerWhereTheRightEdgeIsNear)
{
    EXPECT_EQ(tooltipFrame({1706, 300}, kSize, kScreen), QRectF(1496, 320, 210, 100));
}

TEST(TooltipPlacement, StaysBelowThePointerUpToFivePointsFromTheEdge)
{
    EXPECT_EQ(tooltipFrame({500, 955}, kSize, kScreen).y(), 975);
}

TEST(TooltipPlacement, LiesEightPointsAboveThePointerWhereTheBottomEdgeIsNear)
{
    const QRectF frame = tooltipFrame({500, 956}, kSize, kScreen);

    EXPECT_EQ(frame, QRectF(500, 848, 210, 100));
    EXPECT_EQ(frame.bottom(), 956 - 8);
}

TEST(TooltipPlacement, TheFlipUpwardIsTheHeightAndTwentyEightPoints)
{
    const double below = 1030 + 20;

    EXPECT_EQ(tooltipFrame({500, 1030}, {210, 42}, kScreen).y(), below - (42 + 28));
}

TEST(TooltipPlacement, FlipsBothWaysInTheCorner)
{
    EXPECT_EQ(tooltipFrame({1919, 1079}, kSize, kScreen), QRectF(1709, 971, 210, 100));
}

TEST(TooltipPlacement, DoesNotFlipAtTheLeftAndTopEdges)
{
    EXPECT_EQ(tooltipFrame({0, 0}, kSize, kScreen), QRectF(0, 20, 210, 100));
}

TEST(TooltipPlacement, TheEdgesAreThoseOfAScreenToTheLeftAndAbove)
{
    const QRectF screen(-1280, -1024, 1280, 1024);

    EXPECT_EQ(tooltipFrame({-600, -600}, kSize, screen), QRectF(-600, -580, 210, 100));
    EXPECT_EQ(tooltipFrame({-215, -600}, kSize, screen).x(), -215);
    EXPECT_EQ(tooltipFrame({-214, -600}, kSize, screen).x(), -424);
    EXPECT_EQ(tooltipFrame({-600, -125}, kSize, screen).y(), -105);
    EXPECT_EQ(tooltipFrame({-600, -124}, kSize, screen).y(), -232);
}

TEST(TooltipPlacement, TheEdgesAreThoseOfAScreenToTheRight)
{
    const QRectF screen(1920, 200, 1280, 1024);

    EXPECT_EQ(tooltipFrame({1950, 300}, kSize, screen), QRectF(1950, 320, 210, 100));
    EXPECT_EQ(tooltipFrame({2985, 300}, kSize, screen).x(), 2985);
    EXPECT_EQ(tooltipFrame({2986, 300}, kSize, screen).x(), 2776);
    EXPECT_EQ(tooltipFrame({1950, 1100}, kSize, screen).y(), 992);
}

TEST(TooltipPlacement, WithoutAScreenAllItsEdgesAreZero)
{
    EXPECT_EQ(tooltipFrame({500, 300}, kSize, QRectF()), QRectF(290, 192, 210, 100));
    EXPECT_EQ(tooltipFrame({-300, -300}, kSize, QRectF()), QRectF(-300, -280, 210, 100));
}

} // namespace tessera
