// SPDX-License-Identifier: MIT
#include "Layout/LayoutBuilder.h"
#include "Layout/LayoutObject.h"

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <numeric>
#include <ostream>
#include <vector>

namespace tessera {
namespace {

/// A level whose figures another program worked out, which has no code in common with this one.
struct WorkedOutLevel {
    Rect area;
    std::vector<double> sizes; ///< they fill the area
    std::vector<Rect> rects;
};

// NOLINTNEXTLINE(readability-identifier-naming): GoogleTest looks for this name
void PrintTo(const WorkedOutLevel& level, std::ostream* out)
{
    *out << level.sizes.size() << " boxes in " << level.area.width << " x " << level.area.height;
}

const std::array<WorkedOutLevel, 12> kLevels{{
    {{3, 5, 270, 183},
     {8350, 2670, 630, 590, 570, 450, 380, 350},
     {{3, 5, 161, 183},
      {164, 5, 88, 107},
      {252, 5, 21, 107},
      {164, 112, 54, 39},
      {164, 151, 54, 37},
      {218, 112, 30, 53},
      {248, 112, 25, 53},
      {218, 165, 55, 23}}},
    {{3, 5, 309, 121},
     {8930, 2600, 2180, 1620, 1190, 170, 130, 100},
     {{3, 5, 163, 121},
      {166, 5, 87, 66},
      {166, 71, 87, 55},
      {253, 5, 59, 61},
      {253, 66, 52, 48},
      {305, 66, 7, 48},
      {253, 114, 24, 12},
      {277, 114, 35, 12}}},
    {{3, 5, 350, 104},
     {5870, 4090, 2050, 340, 270, 220, 90, 60},
     {{3, 5, 158, 104},
      {161, 5, 110, 104},
      {271, 5, 70, 82},
      {341, 5, 12, 82},
      {271, 87, 34, 22},
      {305, 87, 28, 22},
      {333, 87, 20, 11},
      {333, 98, 20, 11}}},
    {{3, 5, 264, 189},
     {1570, 550, 540, 510, 310, 130, 100},
     {{3, 5, 151, 140},
      {3, 145, 151, 49},
      {154, 5, 113, 64},
      {154, 69, 70, 98},
      {224, 69, 43, 98},
      {154, 167, 65, 27},
      {219, 167, 48, 27}}},
    {{3, 5, 189, 258},
     {6040, 2440, 390, 350, 220, 150},
     {{3, 5, 189, 162},
      {3, 167, 129, 96},
      {132, 167, 60, 33},
      {132, 200, 37, 48},
      {169, 200, 23, 48},
      {132, 248, 60, 15}}},
    {{3, 5, 85, 168},
     {8300, 590, 550, 490, 370, 230, 180},
     {{3, 5, 85, 130},
      {3, 135, 21, 38},
      {24, 135, 36, 20},
      {24, 155, 36, 18},
      {60, 135, 28, 18},
      {60, 153, 15, 20},
      {75, 153, 13, 20}}},
    {{3, 5, 97, 212},
     {8740, 5370, 510, 490, 370},
     {{3, 5, 97, 120}, {3, 125, 78, 92}, {81, 125, 19, 36}, {81, 161, 19, 34}, {81, 195, 19, 22}}},
    {{3, 5, 196, 265},
     {8880, 8260, 8120, 2970, 2380, 1280},
     {{3, 5, 102, 142},
      {105, 5, 94, 142},
      {3, 147, 108, 123},
      {111, 147, 88, 55},
      {111, 202, 57, 68},
      {168, 202, 31, 68}}},
    {{3, 5, 189, 333},
     {6150, 3010, 1200, 440, 410, 340, 140, 90},
     {{3, 5, 189, 174},
      {3, 179, 141, 114},
      {3, 293, 141, 45},
      {144, 179, 48, 49},
      {144, 228, 48, 46},
      {144, 274, 48, 38},
      {144, 312, 29, 26},
      {173, 312, 19, 26}}},
    {{3, 5, 68, 252},
     {8430, 6530, 860, 410, 350, 330},
     {{3, 5, 68, 126},
      {3, 131, 68, 97},
      {3, 228, 30, 29},
      {33, 228, 26, 16},
      {33, 244, 26, 13},
      {59, 228, 12, 29}}},
    {{0.25, 0.5, 105.5, 306.75},
     {8440, 6210, 5370, 370, 260, 210},
     {{0.25, 0.5, 105.5, 124},
      {0.25, 124.5, 105.5, 91},
      {0.25, 215.5, 91, 91.75},
      {91.25, 215.5, 14.5, 40},
      {91.25, 255.5, 14.5, 28},
      {91.25, 283.5, 14.5, 23.75}}},
    {{0.25, 0.5, 224.5, 229.75},
     {5520, 3490, 3110, 510, 420, 170, 110},
     {{0.25, 0.5, 138, 155},
      {138.25, 0.5, 86.5, 155},
      {0.25, 155.5, 161, 74.75},
      {161.25, 155.5, 35, 57},
      {196.25, 155.5, 28.5, 57},
      {161.25, 212.5, 37, 17.75},
      {198.25, 212.5, 26.5, 17.75}}},
}};

class LayoutFigures : public testing::TestWithParam<WorkedOutLevel> { };

TEST_P(LayoutFigures, AreThoseOfAnIndependentProgram)
{
    const WorkedOutLevel& level = GetParam();
    std::deque<LayoutObject> boxes;
    std::vector<LayoutObject*> items;
    for (const double size : level.sizes) {
        boxes.emplace_back().totalAllocation = size;
        items.push_back(&boxes.back());
    }
    const double total = std::accumulate(level.sizes.begin(), level.sizes.end(), 0.0);
    LayoutBuilder(static_cast<std::uint64_t>(total), level.area).layoutItems(items);
    ASSERT_EQ(boxes.size(), level.rects.size());
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        EXPECT_EQ(boxes[i].rect, level.rects[i]) << "box " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Levels, LayoutFigures, testing::ValuesIn(kLevels));

} // namespace
} // namespace tessera
