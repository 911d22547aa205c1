// SPDX-License-Identifier: MIT
#include "Basket/Basket.h"

#include "Model/Allocation.h"
#include "Model/FreeSpace.h"
#include "Model/TreeEdit.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

using test::at;
using test::makeTree;
using testing::ElementsAre;
using testing::IsEmpty;

using Entry = Basket::Entry;

class BasketTest : public testing::Test {
protected:
    void add(std::string_view path) { EXPECT_TRUE(m_basket.add(at(*m_top, path))) << path; }

    File& node(std::string_view path) { return at(*m_top, path); }

    /// As a rescan of the folder does that finds these items.
    std::vector<std::string> rescan(std::string_view path, std::string_view items)
    {
        auto* const folder = nodeCast<Folder>(&node(path));
        auto scanned = makeTree(folder->absolutePath(), items);
        const std::unique_ptr<File> old = exchange(*folder, loose(std::move(scanned)));
        return m_basket.folderWasReplaced(*folder, *m_top);
    }

    std::vector<std::string> takeAway(std::string_view path)
    {
        std::vector<std::string> gone = m_basket.nodeWillLeave(node(path));
        takeOut(node(path));
        return gone;
    }

    std::unique_ptr<TopFolder> m_top
        = makeTree("/t", "a/ ( b/ ( c/ ( x:700 ) y:20 ) z:3 ) d/ ( v:3000 ) w:50");
    Basket m_basket;
};

TEST_F(BasketTest, ItemsStandInTheOrderOfChoosing)
{
    add("w");
    add("d/v");
    add("a/z");
    EXPECT_THAT(
        m_basket.entries(),
        ElementsAre(
            Entry{&node("w"), nullptr},
            Entry{&node("d/v"), nullptr},
            Entry{&node("a/z"), nullptr}));
    EXPECT_EQ(m_basket.size(), 3U);
}

TEST_F(BasketTest, NothingIsChosenTwice)
{
    add("w");
    EXPECT_FALSE(m_basket.add(node("w")));
    EXPECT_EQ(m_basket.size(), 1U);
}

TEST_F(BasketTest, TheRootCannotBeChosen)
{
    EXPECT_FALSE(m_basket.add(*m_top));
    EXPECT_TRUE(m_basket.isEmpty());
}

TEST_F(BasketTest, SpaceIsNoItem)
{
    File& space = m_top->insertChild(makeNode<FreeSpace>(""));
    EXPECT_FALSE(m_basket.add(space));
    EXPECT_FALSE(m_basket.toggle(space));
    EXPECT_TRUE(m_basket.isEmpty());
}

TEST_F(BasketTest, WhatIsTakenOutIsChosenNoLonger)
{
    add("w");
    add("d");
    EXPECT_TRUE(m_basket.remove(node("w")));
    EXPECT_FALSE(m_basket.isMarked(node("w")));
    EXPECT_FALSE(m_basket.remove(node("w")));
    EXPECT_THAT(m_basket.entries(), ElementsAre(Entry{&node("d"), nullptr}));
}

TEST_F(BasketTest, TogglingGoesToAndFro)
{
    EXPECT_TRUE(m_basket.toggle(node("w")));
    EXPECT_TRUE(m_basket.isMarked(node("w")));
    EXPECT_FALSE(m_basket.toggle(node("w")));
    EXPECT_FALSE(m_basket.isMarked(node("w")));
}

TEST_F(BasketTest, AnEmptiedBasketMarksNothing)
{
    add("a/b");
    m_basket.clear();
    EXPECT_TRUE(m_basket.isEmpty());
    EXPECT_FALSE(m_basket.isMarked(node("a/b")));
    EXPECT_FALSE(m_basket.holdsMarked(node("a")));
}

TEST_F(BasketTest, FoldersAboveKnowThatSomethingInThemIsChosen)
{
    add("a/b/y");
    add("a/b/c");
    EXPECT_TRUE(m_basket.holdsMarked(*m_top));
    EXPECT_TRUE(m_basket.holdsMarked(node("a/b")));
    EXPECT_FALSE(m_basket.holdsMarked(node("a/b/c"))) << "it is chosen itself";
    EXPECT_FALSE(m_basket.isMarked(node("a/b")));
    EXPECT_FALSE(m_basket.holdsMarked(node("d")));
    m_basket.remove(node("a/b/y"));
    EXPECT_TRUE(m_basket.holdsMarked(node("a")));
    m_basket.remove(node("a/b/c"));
    EXPECT_FALSE(m_basket.holdsMarked(node("a")));
}

TEST_F(BasketTest, AnItemInAnotherOneIsTheNearestOnes)
{
    add("a/b/c/x");
    add("a");
    add("a/b");
    EXPECT_THAT(
        m_basket.entries(),
        ElementsAre(
            Entry{&node("a/b/c/x"), &node("a/b")},
            Entry{&node("a"), nullptr},
            Entry{&node("a/b"), &node("a")}));
    EXPECT_THAT(m_basket.outermost(), ElementsAre(&node("a")));
}

TEST_F(BasketTest, NothingCountsTwice)
{
    add("a/b/c/x");
    add("a");
    add("a/b");
    add("w");
    EXPECT_EQ(m_basket.totalAllocation(), 723U + 50U);
}

TEST_F(BasketTest, WithoutTheOuterItemTheInnerOneCountsForItself)
{
    add("a/b/y");
    add("a");
    m_basket.remove(node("a"));
    EXPECT_THAT(m_basket.entries(), ElementsAre(Entry{&node("a/b/y"), nullptr}));
    EXPECT_EQ(m_basket.totalAllocation(), 20U);
}

TEST_F(BasketTest, SizesBeyondAllMeasureAddUpToTheLargest)
{
    node("w").setTotalAllocation(kMaxAllocation);
    add("w");
    add("d");
    EXPECT_EQ(m_basket.totalAllocation(), kMaxAllocation);
}

TEST_F(BasketTest, BySizeTheLargestComesFirstAndWhatIsInItBehindIt)
{
    add("w");
    add("a/z");
    add("a/b/y");
    add("a");
    add("a/b");
    add("d/v");
    EXPECT_THAT(
        m_basket.entriesBySize(),
        ElementsAre(
            Entry{&node("d/v"), nullptr},
            Entry{&node("a"), nullptr},
            Entry{&node("a/b"), &node("a")},
            Entry{&node("a/b/y"), &node("a/b")},
            Entry{&node("a/z"), &node("a")},
            Entry{&node("w"), nullptr}));
}

TEST_F(BasketTest, OfOneSizeTheFirstChosenComesFirst)
{
    m_top = makeTree("/t", "p:5 q:5 r:5");
    add("q");
    add("r");
    add("p");
    EXPECT_THAT(
        m_basket.entriesBySize(),
        ElementsAre(
            Entry{&node("q"), nullptr}, Entry{&node("r"), nullptr}, Entry{&node("p"), nullptr}));
}

TEST_F(BasketTest, WhatLeavesTheTreeLeavesTheBasketAndIsTold)
{
    add("a/b/c/x");
    add("w");
    add("a/b");
    EXPECT_THAT(takeAway("a/b"), ElementsAre("/t/a/b/c/x", "/t/a/b"));
    EXPECT_THAT(m_basket.entries(), ElementsAre(Entry{&node("w"), nullptr}));
    EXPECT_FALSE(m_basket.holdsMarked(node("a")));
    EXPECT_TRUE(m_basket.holdsMarked(*m_top));
}

TEST_F(BasketTest, WhatLeavesWithoutAnythingChosenIsNotTold)
{
    add("a/b");
    EXPECT_THAT(takeAway("a/b/y"), IsEmpty());
    EXPECT_THAT(takeAway("d"), IsEmpty());
    EXPECT_TRUE(m_basket.isMarked(node("a/b")));
}

TEST_F(BasketTest, InAFolderThatWasReadAnewItemsAreFoundAgainInTheirPlaces)
{
    add("a/b/c/x");
    add("w");
    add("a/b");
    add("a/z");
    EXPECT_THAT(rescan("a", "b/ ( c/ ( x:900 ) u:1 ) z:4"), IsEmpty());
    EXPECT_THAT(
        m_basket.entries(),
        ElementsAre(
            Entry{&node("a/b/c/x"), &node("a/b")},
            Entry{&node("w"), nullptr},
            Entry{&node("a/b"), nullptr},
            Entry{&node("a/z"), nullptr}));
    EXPECT_EQ(m_basket.totalAllocation(), 901U + 50U + 4U);
    EXPECT_TRUE(m_basket.holdsMarked(node("a/b/c")));
}

TEST_F(BasketTest, TheFolderThatWasReadAnewIsChosenStill)
{
    add("a/b");
    add("a/b/y");
    EXPECT_THAT(rescan("a/b", "y:1"), IsEmpty());
    EXPECT_THAT(
        m_basket.entries(),
        ElementsAre(Entry{&node("a/b"), nullptr}, Entry{&node("a/b/y"), &node("a/b")}));
}

TEST_F(BasketTest, WhatIsNotFoundAnyMoreIsTold)
{
    add("a/b/y");
    add("a/z");
    add("a/b/c/x");
    EXPECT_THAT(rescan("a", "z:4 b/ ( o:1 )"), ElementsAre("/t/a/b/y", "/t/a/b/c/x"));
    EXPECT_THAT(m_basket.entries(), ElementsAre(Entry{&node("a/z"), nullptr}));
    EXPECT_FALSE(m_basket.holdsMarked(node("a/b")));
    EXPECT_TRUE(m_basket.holdsMarked(node("a")));
}

TEST_F(BasketTest, AFileThatTookAFoldersNameIsAnotherItem)
{
    add("a/b");
    EXPECT_THAT(rescan("a", "b:20 z:4"), ElementsAre("/t/a/b"));
    EXPECT_TRUE(m_basket.isEmpty());
}

TEST_F(BasketTest, AFolderReadAnewElsewhereChangesNothing)
{
    add("w");
    add("a/z");
    EXPECT_THAT(rescan("d", "v:1"), IsEmpty());
    EXPECT_THAT(
        m_basket.entries(), ElementsAre(Entry{&node("w"), nullptr}, Entry{&node("a/z"), nullptr}));
}

TEST_F(BasketTest, AfterTheFolderAboveItLeftARescanKnowsNothingOfIt)
{
    add("a/b/y");
    takeAway("a/b");
    EXPECT_THAT(rescan("a", "b/ ( y:20 )"), IsEmpty());
    EXPECT_TRUE(m_basket.isEmpty());
}

TEST_F(BasketTest, ANodeThatARescanCarriesOverStaysChosenAndCanBeTakenOut)
{
    add("a/b/y");
    File& carried = node("a/b/y");
    auto* const folder = nodeCast<Folder>(&node("a"));
    auto scanned = makeTree("/t/a", "b/ ( c/ ( x:700 ) ) z:3");
    putIn(static_cast<Folder&>(at(*scanned, "b")), takeOut(carried));
    Folder& with = *scanned;
    const std::unique_ptr<File> old = exchange(*folder, loose(std::move(scanned)));
    EXPECT_THAT(m_basket.folderWasReplaced(*folder, *m_top), IsEmpty());
    EXPECT_TRUE(m_basket.isMarked(carried));
    EXPECT_TRUE(m_basket.holdsMarked(with));
    EXPECT_FALSE(m_basket.holdsMarked(*folder));
    EXPECT_TRUE(m_basket.remove(carried));
    EXPECT_FALSE(m_basket.holdsMarked(with));
    EXPECT_FALSE(m_basket.holdsMarked(*m_top));
}

} // namespace
} // namespace tessera
