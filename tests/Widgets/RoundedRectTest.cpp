// SPDX-License-Identifier: MIT
#include "Widgets/RoundedRect.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tessera {
namespace {

/// Curves only come close to an arc.
constexpr double kCurveError = 1e-3;

QPainterPath roundedRect(const Rect& rect, double radius)
{
    QPainterPath path;
    addRoundedRectToPath(path, rect, radius);
    return path;
}

TEST(AddArcToPoint, TouchesBothLinesAtTheSameDistanceFromARightCorner)
{
    QPainterPath path(QPointF(0, 10));
    addArcToPoint(path, {0, 0}, {10, 0}, 4);
    EXPECT_NEAR(path.elementAt(1).y, 4, 1e-9);
    EXPECT_NEAR(path.elementAt(1).x, 0, 1e-9);
    EXPECT_NEAR(path.currentPosition().x(), 4, 1e-9);
    EXPECT_NEAR(path.currentPosition().y(), 0, 1e-9);
}

TEST(AddArcToPoint, BendsAroundACentreInsideTheCorner)
{
    QPainterPath path(QPointF(0, 10));
    addArcToPoint(path, {0, 0}, {10, 0}, 4);
    const double middle = 4 - 4 / std::sqrt(2.0);
    // Half of the arc's length lies behind the straight 6 points.
    const double half = path.percentAtLength(6 + std::acos(-1.0) * 4 / 4);
    EXPECT_NEAR(path.pointAtPercent(half).x(), middle, 2e-3);
    EXPECT_NEAR(path.pointAtPercent(half).y(), middle, 2e-3);
}

TEST(AddArcToPoint, BendsTheOtherWayInAMirroredCorner)
{
    QPainterPath path(QPointF(10, 0));
    addArcToPoint(path, {0, 0}, {0, 10}, 4);
    EXPECT_NEAR(path.elementAt(1).x, 4, 1e-9);
    EXPECT_NEAR(path.currentPosition().x(), 0, 1e-9);
    EXPECT_NEAR(path.currentPosition().y(), 4, 1e-9);
    EXPECT_GT(path.boundingRect().left(), -1e-9);
    EXPECT_GT(path.boundingRect().top(), -1e-9);
}

TEST(AddArcToPoint, IsTangentInASharpCorner)
{
    // 60 degrees: the tangent points are radius / tan(30 degrees) away.
    QPainterPath path(QPointF(20, 0));
    addArcToPoint(path, {0, 0}, {10, 10 * std::sqrt(3.0)}, 2);
    const double distance = 2 * std::sqrt(3.0);
    EXPECT_NEAR(path.elementAt(1).x, distance, 1e-9);
    EXPECT_NEAR(path.currentPosition().x(), distance / 2, kCurveError);
    EXPECT_NEAR(path.currentPosition().y(), distance * std::sqrt(3.0) / 2, kCurveError);
}

TEST(AddArcToPoint, IsALineToTheCornerWhenNoArcExists)
{
    QPainterPath straight(QPointF(0, 0));
    addArcToPoint(straight, {5, 0}, {10, 0}, 4);
    EXPECT_EQ(straight.currentPosition(), QPointF(5, 0));
    QPainterPath sharp(QPointF(0, 10));
    addArcToPoint(sharp, {0, 0}, {10, 0}, 0);
    EXPECT_EQ(sharp.currentPosition(), QPointF(0, 0));
}

TEST(RoundedRect, AddsNothingWhenItBeginsAtZero)
{
    EXPECT_TRUE(roundedRect({0, 5, 10, 10}, 2).isEmpty());
    EXPECT_TRUE(roundedRect({5, 0, 10, 10}, 2).isEmpty());
}

TEST(RoundedRect, AddsNothingForNumbersThatAreNotNormal)
{
    for (const double odd :
         {std::nan(""),
          std::numeric_limits<double>::infinity(),
          0.0,
          std::numeric_limits<double>::denorm_min()}) {
        EXPECT_TRUE(roundedRect({odd, 5, 10, 10}, 2).isEmpty());
        EXPECT_TRUE(roundedRect({5, odd, 10, 10}, 2).isEmpty());
        EXPECT_TRUE(roundedRect({5, 5, odd, 10}, 2).isEmpty());
        EXPECT_TRUE(roundedRect({5, 5, 10, odd}, 0).isEmpty());
    }
}

TEST(RoundedRect, HasPlainCornersBelowARadiusOfOne)
{
    QPainterPath expected;
    expected.addRect(5, 6, 10, 20);
    EXPECT_EQ(roundedRect({5, 6, 10, 20}, 0.99), expected);
}

TEST(RoundedRect, HasRoundCornersFromARadiusOfOneOn)
{
    const QPainterPath path = roundedRect({5, 6, 10, 20}, 1);
    EXPECT_FALSE(path.contains(QPointF(5.2, 6.2)));
    EXPECT_TRUE(path.contains(QPointF(5.4, 6.4)));
}

TEST(RoundedRect, RoundsAllFourCorners)
{
    const QPainterPath path = roundedRect({5, 5, 20, 10}, 3);
    EXPECT_EQ(path.boundingRect().toAlignedRect(), QRect(5, 5, 20, 10));
    for (const QPointF corner :
         {QPointF(5.5, 5.5), QPointF(24.5, 5.5), QPointF(24.5, 14.5), QPointF(5.5, 14.5)}) {
        EXPECT_FALSE(path.contains(corner));
    }
    EXPECT_TRUE(path.contains(QPointF(6.2, 6.2)));
}

TEST(RoundedRect, LimitsTheRadiusToHalfOfTheShorterSide)
{
    const QPainterPath path = roundedRect({5, 5, 20, 4}, 10);
    QPainterPath expected;
    addRoundedRectToPath(expected, {5, 5, 20, 4}, 2);
    EXPECT_EQ(path, expected);
}

TEST(RoundedRect, IsClosed)
{
    const QPainterPath path = roundedRect({5, 5, 20, 10}, 3);
    EXPECT_EQ(path.elementAt(0).x, path.currentPosition().x());
    EXPECT_EQ(path.elementAt(0).y, path.currentPosition().y());
}

} // namespace
} // namespace tessera
