// SPDX-License-Identifier: MIT
#include "TreeScreen/Zoom/ZoomGeometry.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

using Box = ZoomGeometry::Box;

constexpr Rect kBounds{0, 0, 806, 606};
constexpr Rect kArea{3, 3, 800, 600};

void expectScaleAndTranslation(
    const QTransform& matrix, double scaleX, double scaleY, double dx, double dy)
{
    EXPECT_DOUBLE_EQ(matrix.m11(), scaleX);
    EXPECT_DOUBLE_EQ(matrix.m22(), scaleY);
    EXPECT_DOUBLE_EQ(matrix.dx(), dx);
    EXPECT_DOUBLE_EQ(matrix.dy(), dy);
    EXPECT_EQ(matrix.m12(), 0);
    EXPECT_EQ(matrix.m21(), 0);
    EXPECT_TRUE(matrix.isAffine());
}

Rect innerOf(double width, double height)
{
    return ZoomGeometry({100, 50, width, height}, Box::Folder, kBounds).inner;
}

QRectF mapped(const QTransform& transform, const Rect& rect, const Rect& bounds)
{
    return ZoomGeometry::inView(transform, bounds.height)
        .mapRect(QRectF(rect.x, rect.y, rect.width, rect.height));
}

TEST(ZoomGeometry, ABoxWithALevelInItIsMovedByItsInside)
{
    const ZoomGeometry zoom({103, 53, 216, 182}, Box::Folder, kBounds);
    EXPECT_EQ(zoom.inner, (Rect{111, 77, 200, 150}));
    // Shrinking by 200 / 800 and 150 / 600.
    expectScaleAndTranslation(
        zoom.shrunk,
        0.25 * 0.975,
        0.25 * 0.975,
        111 - 3 * 0.25 + 1, // the inside's left edge
        606 - (77 + 150) - 3 * 0.25 + 1); // from the view's bottom to the inside's
    // Enlarging by 800 / 200 and 600 / 150.
    expectScaleAndTranslation(
        zoom.enlarged, 4, 4, -(111 * 4) + 3, -(606 * 4 - (150 * 4 + 77 * 4)) + 3);
}

TEST(ZoomGeometry, ABoxOf56By80IsMovedByWhatIsBelowItsHeader)
{
    // An area of 800 by 536.
    const ZoomGeometry zoom({100, 50, 56, 80}, Box::Folder, {0, 0, 806, 542});
    EXPECT_EQ(zoom.inner, (Rect{103, 60, 50, 67}));
    expectScaleAndTranslation(
        zoom.shrunk,
        0.0625 * 0.975, // 50 / 800
        0.125 * 0.975, // 67 / 536
        103 - 3 * 0.0625 + 1,
        542 - (60 + 67) - 3 * 0.125 + 1);
    expectScaleAndTranslation(
        zoom.enlarged, 16, 8, -(103 * 16) + 3, -(542 * 8 - (67 * 8 + 60 * 8)) + 3);
}

TEST(ZoomGeometry, ASmallBoxIsMovedByWhatIsInsideItsOutline)
{
    const ZoomGeometry zoom({10, 20, 29, 104}, Box::Folder, kBounds);
    EXPECT_EQ(zoom.inner, (Rect{12, 22, 25, 100}));
    const float sixth = 1.0F / 6.0F; // 100 / 600, and not as exact as a double could be
    expectScaleAndTranslation(
        zoom.shrunk,
        0.03125 * 0.975, // 25 / 800
        static_cast<double>(sixth) * 0.975,
        12 - 3 * 0.03125 + 1,
        606 - (22 + 100) - static_cast<double>(3.0F * sixth) + 1);
    expectScaleAndTranslation(
        zoom.enlarged, 32, 6, -(12 * 32) + 3, -(606 * 6 - (100 * 6 + 22 * 6)) + 3);
}

TEST(ZoomGeometry, ALevelNeedsMoreThan56By72)
{
    EXPECT_EQ(innerOf(57, 73), (Rect{108, 74, 41, 41}));
    EXPECT_EQ(innerOf(56, 73), (Rect{103, 60, 50, 60}));
    EXPECT_EQ(innerOf(57, 72), (Rect{103, 60, 51, 59}));
}

TEST(ZoomGeometry, AHeaderNeedsMoreThan30By20)
{
    EXPECT_EQ(innerOf(31, 21), (Rect{103, 60, 25, 8}));
    EXPECT_EQ(innerOf(30, 21), (Rect{102, 52, 26, 17}));
    EXPECT_EQ(innerOf(31, 20), (Rect{102, 52, 27, 16}));
}

TEST(ZoomGeometry, AFolderWithoutABoxGrowsOutOfTheMiddleOfItsAncestors)
{
    const ZoomGeometry zoom({100, 50, 30, 17}, Box::Ancestor, kBounds);
    EXPECT_EQ(zoom.inner, (Rect{110, 55, 10, 7}));
    EXPECT_DOUBLE_EQ(zoom.enlarged.m11(), 80);
    EXPECT_DOUBLE_EQ(zoom.enlarged.dx(), -(110 * 80) + 3);
}

TEST(ZoomGeometry, TheMiddleOfALargeAncestorIsAsSmall)
{
    const ZoomGeometry zoom({100, 50, 410, 307}, Box::Ancestor, kBounds);
    EXPECT_EQ(zoom.inner, (Rect{300, 200, 10, 7}));
}

TEST(ZoomGeometry, ABoxWithoutAnInsideIsMovedByItsMiddle)
{
    EXPECT_EQ(innerOf(4, 107), (Rect{97, 100, 10, 7}));
    EXPECT_EQ(innerOf(110, 3), (Rect{150, 48, 10, 7}));
}

TEST(ZoomGeometry, ScalesHaveSinglePrecision)
{
    const ZoomGeometry zoom({0, 0, 316, 182}, Box::Folder, kBounds);
    EXPECT_EQ(zoom.enlarged.m11(), static_cast<double>(800.0F / 300.0F));
    EXPECT_NE(zoom.enlarged.m11(), 800.0 / 300.0);
}

TEST(ZoomGeometry, EnlargedTheInsideFillsTheTopLevelsArea)
{
    const ZoomGeometry zoom({103, 53, 216, 182}, Box::Folder, kBounds);
    EXPECT_EQ(mapped(zoom.enlarged, zoom.inner, kBounds), QRectF(3, 3, 800, 600));
}

TEST(ZoomGeometry, ShrunkTheTopLevelsAreaLiesWithinTheInside)
{
    const ZoomGeometry zoom({103, 53, 216, 182}, Box::Folder, kBounds);
    const QRectF area = mapped(zoom.shrunk, kArea, kBounds);
    EXPECT_DOUBLE_EQ(area.width(), 200 * 0.975);
    EXPECT_DOUBLE_EQ(area.height(), 150 * 0.975);
    EXPECT_TRUE(QRectF(111, 77, 200, 150).contains(area)) << area.x() << ' ' << area.y();
    // A point at the left and at the bottom, less what the inset takes of the margin.
    EXPECT_NEAR(area.left(), 111 + 1, 0.03);
    EXPECT_NEAR(area.bottom(), 77 + 150 - 1, 0.03);
}

TEST(ZoomGeometry, InTheViewWhatLayAtTheTopLiesAtTheTop)
{
    const QTransform up = QTransform::fromTranslate(0, 10);
    EXPECT_EQ(ZoomGeometry::inView(up, 600).map(QPointF(5, 100)), QPointF(5, 90));
}

} // namespace
} // namespace tessera
