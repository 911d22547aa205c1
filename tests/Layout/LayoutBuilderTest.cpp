// SPDX-License-Identifier: MIT
#include "Layout/LayoutBuilder.h"

#include "Layout/LayoutObject.h"

#include <gtest/gtest.h>

#include <cmath>
#include <deque>
#include <numeric>
#include <vector>

namespace tessera {
namespace {

/// Items of the given sizes, laid out in an area that stands for their sum.
class Level {
public:
    Level(const std::vector<double>& sizes, const Rect& area)
        : Level(
            sizes,
            area,
            static_cast<std::uint64_t>(std::accumulate(sizes.begin(), sizes.end(), 0.0)))
    {
    }

    Level(const std::vector<double>& sizes, const Rect& area, std::uint64_t total)
    {
        std::vector<LayoutObject*> items;
        for (const double size : sizes) {
            m_items.emplace_back().totalAllocation = size;
            items.push_back(&m_items.back());
        }
        LayoutBuilder builder(total, area);
        result = builder.layoutItems(items);
    }

    const Rect& rect(std::size_t index) const { return m_items.at(index).rect; }
    const LayoutObject& item(std::size_t index) const { return m_items.at(index); }

    std::vector<LayoutObject*> result;

private:
    std::deque<LayoutObject> m_items;
};

TEST(LayoutBuilder, AnEmptyListYieldsAnEmptyResult)
{
    EXPECT_TRUE(Level({}, {0, 0, 100, 50}).result.empty());
}

TEST(LayoutBuilder, ASingleItemGetsTheWholeArea)
{
    EXPECT_EQ(Level({42}, {3, 5, 97.5, 50}).rect(0), (Rect{3, 5, 97.5, 50}));
}

TEST(LayoutBuilder, ASizeOfZeroCountsAsOne)
{
    EXPECT_EQ(LayoutBuilder(0, {0, 0, 10, 10}).pixelsFor(1), 100.0);
    EXPECT_EQ(LayoutBuilder(7, {0, 0, 10, 10}).pixelsFor(7), 100.0);
}

TEST(LayoutBuilder, TheWholeSizeIsWorthTheAreaAndTheLeastStripIsTwelvePoints)
{
    const LayoutBuilder builder(7, {1, 2, 10, 20});
    EXPECT_EQ(builder.pixelsFor(7), 200.0);
    EXPECT_EQ(builder.minSize(), 12.0);
}

TEST(LayoutBuilder, AspectRatioIsTheLargerSideByTheSmaller)
{
    EXPECT_EQ(LayoutBuilder::aspectRatio({0, 0, 2, 8}), 4.0F);
    EXPECT_EQ(LayoutBuilder::aspectRatio({0, 0, 8, 2}), 4.0F);
}

TEST(LayoutBuilder, EachStripRunsAlongTheShorterSideOfWhatIsLeft)
{
    const Level level({50, 30, 20}, {0, 0, 100, 50});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 50, 50}));
    EXPECT_EQ(level.rect(1), (Rect{50, 0, 30, 50}));
    EXPECT_EQ(level.rect(2), (Rect{80, 0, 20, 50}));
}

TEST(LayoutBuilder, PixelCountIsTheShareOfTheArea)
{
    const Level level({50, 30, 20}, {0, 0, 100, 50});
    EXPECT_DOUBLE_EQ(level.item(0).pixelCount, 2500.0);
    EXPECT_DOUBLE_EQ(level.item(2).pixelCount, 1000.0);
}

TEST(LayoutBuilder, ASquareAreaStartsWithAColumn)
{
    const Level level({80, 20}, {0, 0, 100, 100});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 80, 100}));
}

TEST(LayoutBuilder, AHighAreaStartsWithARow)
{
    const Level level({80, 20}, {0, 0, 50, 100});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 50, 80}));
    EXPECT_EQ(level.rect(1), (Rect{0, 80, 50, 20}));
}

TEST(LayoutBuilder, AnItemThatMakesTheFirstSquarerJoinsIts)
{
    // The first alone would be 25 x 100; two stacked are 50 x 50 each.
    const Level level({25, 25, 50}, {0, 0, 100, 100});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 50, 50}));
    EXPECT_EQ(level.rect(1), (Rect{0, 50, 50, 50}));
    EXPECT_EQ(level.rect(2), (Rect{50, 0, 50, 100}));
}

TEST(LayoutBuilder, AnItemThatLeavesTheFirstAsSquareAsBeforeIsRefused)
{
    // 40 x 80 alone, 80 x 40 with a second one as large: the same ratio of 2.
    const Level level({3200, 3200, 1600}, {0, 0, 100, 80});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 40, 80}));
}

/// Whether a second item joins the first of a column when, joined, the first is a square and the
/// second `secondRatio` times as wide as high.
bool joins(double secondRatio)
{
    // Strip width s; the first is s x s, the second s x (s / secondRatio); the rest is huge.
    constexpr double kWidth = 60;
    const double height = kWidth + kWidth / secondRatio;
    const double first = kWidth * kWidth;
    const double second = kWidth * kWidth / secondRatio;
    const double rest = height * 1000 - first - second;
    const Level level(
        {first * 1e6, second * 1e6, rest * 1e6},
        {0, 0, 1000, height},
        static_cast<std::uint64_t>(height * 1000 * 1e6));
    return level.rect(0).height < height;
}

TEST(LayoutBuilder, ARatioDifferenceOf599IsAccepted)
{
    EXPECT_TRUE(joins(6.99));
}

TEST(LayoutBuilder, ARatioDifferenceOfSixIsRefused)
{
    EXPECT_FALSE(joins(7.01));
}

TEST(LayoutBuilder, ARatioDifferenceOfExactlySixIsRefused)
{
    // Joined they would be 7 x 7 and 7 x 1; all shares are powers of two, and so exact.
    const Level level({49, 7, 8136}, {0, 0, 1024, 8});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 6, 8}));
    EXPECT_EQ(level.rect(1), (Rect{6, 0, 1, 8}));
}

TEST(LayoutBuilder, AnItemThatWouldBeMuchSquarerThanTheFirstIsRefused)
{
    // Joined they would be 80 x 8 and 20 x 8: ratios of 10 and 2.5.
    const Level level({640, 160, 99200}, {0, 0, 100, 1000});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 100, 6}));
    EXPECT_EQ(level.rect(1), (Rect{0, 6, 100, 2}));
}

TEST(LayoutBuilder, RatiosAreComparedInSinglePrecision)
{
    // Two of half the squared height each: 32 x 64 alone, 64 x 32 together. In double precision
    // the second ratio comes out a trace smaller than the first.
    const Level level({167936, 167936, 645504}, {0, 0, 187, 64}, 981376);
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 32, 64}));
    EXPECT_EQ(level.rect(1), (Rect{32, 0, 32, 64}));
}

TEST(LayoutBuilder, ARatioDifferenceBeyond32BitsIsRefused)
{
    EXPECT_FALSE(joins(1e10));
}

TEST(LayoutBuilder, AStripLeavesTwelvePointsForTheRest)
{
    const Level level({95, 5}, {0, 0, 100, 50});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 88, 50}));
    EXPECT_EQ(level.rect(1), (Rect{88, 0, 12, 50}));
}

TEST(LayoutBuilder, AStripAsThickAsAllowedIsNotCutBack)
{
    const Level level({88, 12}, {0, 0, 100, 50});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 88, 50}));
}

TEST(LayoutBuilder, WhereLessThanTwoStripsAreLeftOneTakesHalfRoundedUp)
{
    // Twenty points of height are left and the row would take more than eight of them.
    const Level level({80, 20}, {0, 0, 15, 20});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 15, 10}));
    EXPECT_EQ(level.rect(1), (Rect{0, 10, 15, 10}));
}

TEST(LayoutBuilder, AStripThatLeavesExactlyTheLeastIsNotCutBackWhereLittleIsLeft)
{
    // Twelve of twenty points remain.
    const Level row({2, 3}, {0, 0, 15, 20});
    EXPECT_EQ(row.rect(0), (Rect{0, 0, 15, 8}));
    EXPECT_EQ(row.rect(1), (Rect{0, 8, 15, 12}));
    EXPECT_EQ(Level({2, 3}, {0, 0, 20, 15}).rect(0), (Rect{0, 0, 8, 15}));
}

TEST(LayoutBuilder, HalfRoundedUpHoldsForColumnsToo)
{
    const Level level({80, 20}, {0, 0, 21, 15});
    EXPECT_EQ(level.rect(0), (Rect{0, 0, 11, 15}));
}

TEST(LayoutBuilder, TheLastOfAStripEndsAtItsFarEdgeAndTheOthersAreWhole)
{
    const Level level({10, 10, 10, 1000}, {0.25, 0.5, 1000, 100.75});
    const Rect& last = level.rect(2);
    EXPECT_EQ(std::fmod(level.rect(0).height, 1.0), 0.0);
    EXPECT_EQ(last.bottom(), 0.5 + 100.75);
}

TEST(LayoutBuilder, ItemsWithoutBytesTakeNoRoomUnlessTheyAreLast)
{
    const Level level({100, 0, 0}, {0, 0, 100, 50});
    for (const LayoutObject* item : level.result) {
        EXPECT_TRUE(std::isfinite(item->rect.area()));
    }
    EXPECT_EQ(level.rect(1).area(), 0.0);
    EXPECT_EQ(level.rect(2).right(), 100.0);
}

TEST(LayoutBuilder, OutputOrderIsInputOrder)
{
    const Level level({9, 8, 7, 6, 5, 4, 3, 2, 1}, {0, 0, 300, 200});
    ASSERT_EQ(level.result.size(), 9U);
    for (std::size_t i = 0; i < level.result.size(); ++i) {
        EXPECT_EQ(level.result[i], &level.item(i));
    }
}

} // namespace
} // namespace tessera
