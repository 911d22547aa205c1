// SPDX-License-Identifier: MIT
#include "Layout/LevelRenderer.h"

#include "Layout/MultiLayoutObject.h"
#include "Model/Folder.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;

std::vector<std::string> namesOf(const RenderedLevel& level)
{
    std::vector<std::string> names;
    for (const auto& item : level.layoutItems) {
        names.emplace_back(item->ref == nullptr ? "(group)" : std::string(item->ref->name()));
    }
    return names;
}

RenderedLevel render(TopFolder& folder, double width, double height)
{
    return LevelRenderer(false).renderTop(&folder, {0, 0, width, height});
}

TEST(LevelRenderer, TheTopLevelStartsThreePointsInside)
{
    const auto top = test::makeTree("/t", "a:1");
    const RenderedLevel level = render(*top, 106, 206);
    EXPECT_EQ(level.layoutItems[0]->rect, (Rect{3, 3, 100, 200}));
    EXPECT_EQ(level.frame, (Rect{0, 0, 106, 206}));
    EXPECT_EQ(level.level, 0);
}

TEST(LevelRenderer, ANestedLevelSitsInsideItsFoldersBoxAndStartsAtItsOwnOrigin)
{
    const auto top = test::makeTree("/t", "f/ ( a:1 )");
    const RenderedLevel level = render(*top, 206, 106);
    ASSERT_EQ(level.nested.size(), 1U);
    EXPECT_EQ(level.nested[0].frame, (Rect{11, 27, 184, 68}));
    EXPECT_EQ(level.nested[0].layoutItems[0]->rect, (Rect{0, 0, 184, 68}));
    EXPECT_EQ(level.nested[0].level, 1);
    EXPECT_EQ(level.nested[0].folder, &test::at(*top, "f"));
}

TEST(LevelRenderer, AFolderBoxFiftySixPointsWideShowsNoLevelInside)
{
    const auto top = test::makeTree("/t", "f/ ( a:1 )");
    EXPECT_TRUE(render(*top, 62, 206).nested.empty());
    EXPECT_EQ(render(*top, 62.5, 206).nested.size(), 1U);
}

TEST(LevelRenderer, AFolderBoxSeventyTwoPointsHighShowsNoLevelInside)
{
    const auto top = test::makeTree("/t", "f/ ( a:1 )");
    EXPECT_TRUE(render(*top, 206, 78).nested.empty());
    EXPECT_EQ(render(*top, 206, 78.5).nested.size(), 1U);
}

TEST(LevelRenderer, AChildWorthExactlyTheThresholdGetsABoxOfItsOwn)
{
    // 100 x 100 points stand for 10000 bytes.
    const auto exact = test::makeTree("/t", "big:9568 a:144 b:144 c:144");
    EXPECT_THAT(namesOf(render(*exact, 106, 106)), ElementsAre("big", "a", "b", "c"));
    const auto below = test::makeTree("/t", "big:9570 a:144 b:143 c:143");
    EXPECT_THAT(namesOf(render(*below, 106, 106)), ElementsAre("big", "a", "(group)"));
}

TEST(LevelRenderer, OneSmallChildComesLastAsAnOrdinaryBox)
{
    const auto top = test::makeTree("/t", "big:9900 small:100");
    const RenderedLevel level = render(*top, 106, 106);
    EXPECT_THAT(namesOf(level), ElementsAre("big", "small"));
    EXPECT_EQ(level.layoutItems[1]->totalAllocation, 100.0);
}

TEST(LevelRenderer, TwoSmallChildrenMakeOneGroupAtTheEnd)
{
    const auto top = test::makeTree("/t", "big:9800 small:100 tiny:50");
    const RenderedLevel level = render(*top, 106, 106);
    EXPECT_THAT(namesOf(level), ElementsAre("big", "(group)"));
    const auto* group = dynamic_cast<const MultiLayoutObject*>(level.layoutItems[1].get());
    ASSERT_NE(group, nullptr);
    EXPECT_THAT(group->refs, ElementsAre(&test::at(*top, "small"), &test::at(*top, "tiny")));
    EXPECT_EQ(group->totalAllocation, 150.0);
}

TEST(LevelRenderer, ASmallFolderAloneGetsNoLevelInsideHoweverLargeItsBox)
{
    // 630,000 square points stand for 629.24 million bytes. Two hundred strips of three files each
    // are 31.5 points thick and round down to 31, so the folder, worth 140 square points, gets all
    // that is left: a box that any other folder would have a level in.
    std::string items;
    for (int i = 0; i < 600; ++i) {
        items += "d" + std::to_string(i) + ":1048500 ";
    }
    const auto top = test::makeTree("/t", items + "f/ ( a:140000 )");
    const RenderedLevel level = render(*top, 6306, 106);
    EXPECT_EQ(level.layoutItems.back()->ref, &test::at(*top, "f"));
    EXPECT_EQ(level.layoutItems.back()->rect, (Rect{6203, 3, 100, 100}));
    EXPECT_TRUE(level.nested.empty());
}

TEST(LevelRenderer, IgnoredChildrenTakeNoSpace)
{
    const auto top = test::makeTree("/t", "a:500 b:300 c:200");
    test::at(*top, "a").setIgnored(true);
    const RenderedLevel level = render(*top, 106, 106);
    EXPECT_THAT(namesOf(level), ElementsAre("b", "c"));
    EXPECT_DOUBLE_EQ(level.layoutItems[0]->pixelCount, 6000.0);
}

TEST(LevelRenderer, HiddenChildrenTakeNoSpaceOnlyWhileTheyAreIgnored)
{
    const auto top = test::makeTree("/t", ".a:500 b:300 c:200");
    EXPECT_THAT(
        namesOf(LevelRenderer(false).renderTop(top.get(), {0, 0, 106, 106})),
        ElementsAre(".a", "b", "c"));
    EXPECT_THAT(
        namesOf(LevelRenderer(true).renderTop(top.get(), {0, 0, 106, 106})), ElementsAre("b", "c"));
}

TEST(LevelRenderer, TheFoldersOwnTotalPlaysNoPart)
{
    const auto top = test::makeTree("/t", "a:500 b:500");
    top->setTotalAllocation(123456);
    const RenderedLevel level = render(*top, 106, 106);
    EXPECT_DOUBLE_EQ(
        level.layoutItems[0]->rect.area() + level.layoutItems[1]->rect.area(), 10000.0);
}

TEST(LevelRenderer, AFolderBeingRescannedKeepsItsBoxButShowsNoLevelInside)
{
    const auto top = test::makeTree("/t", "f/ ( a:1 )");
    test::at(*top, "f").setRescanning(true);
    const RenderedLevel level = render(*top, 206, 206);
    EXPECT_THAT(namesOf(level), ElementsAre("f"));
    EXPECT_TRUE(level.nested.empty());
}

TEST(LevelRenderer, AFolderWithoutVisibleChildrenGivesAnEmptyLevel)
{
    const auto top = test::makeTree("/t", "");
    EXPECT_TRUE(render(*top, 206, 206).layoutItems.empty());
}

TEST(LevelRenderer, NoFolderGivesAnEmptyLevel)
{
    const RenderedLevel level = LevelRenderer(false).renderTop(nullptr, {0, 0, 100, 100});
    EXPECT_EQ(level.folder, nullptr);
    EXPECT_TRUE(level.layoutItems.empty());
}

TEST(LevelRenderer, AViewWithoutRoomInsideItsMarginsShowsNothing)
{
    const auto top = test::makeTree("/t", "a:1 b:2");
    EXPECT_TRUE(render(*top, 6, 100).layoutItems.empty());
    EXPECT_TRUE(render(*top, 0, 0).layoutItems.empty());
}

TEST(LevelRenderer, ChildrenWithoutBytesAreGrouped)
{
    const auto top = test::makeTree("/t", "a:0 b:0");
    const RenderedLevel level = render(*top, 106, 106);
    EXPECT_THAT(namesOf(level), ElementsAre("(group)"));
    EXPECT_EQ(level.layoutItems[0]->rect, (Rect{3, 3, 100, 100}));
}

TEST(LevelRenderer, AGroupOfMoreThanCanBeCountedHoldsTheMostThatCan)
{
    // A broken file system may give such sizes; in the smallest of windows none is worth a box.
    const auto top = test::makeTree(
        "/t",
        "a:4611686018427387904 b:4611686018427387904 c:4611686018427387904 d:4611686018427387904");
    const RenderedLevel level = render(*top, 16, 16);
    ASSERT_THAT(namesOf(level), ElementsAre("(group)"));
    EXPECT_EQ(level.layoutItems[0]->totalAllocation, 9223372036854775807.0);
}

TEST(LevelRenderer, ADeepChainIsShownAsFarAsThereIsRoom)
{
    std::string items = "x:7 ";
    for (int i = 0; i < 2000; ++i) {
        items.insert(0, "f/ ( ");
        items += ") ";
    }
    const auto top = test::makeTree("/t", items);
    const RenderedLevel level = render(*top, 1006, 1006);
    int depth = 0;
    const RenderedLevel* deepest = &level;
    while (!deepest->nested.empty()) {
        deepest = &deepest->nested.front();
        ++depth;
    }
    EXPECT_EQ(depth, 29);
}

} // namespace
} // namespace tessera
