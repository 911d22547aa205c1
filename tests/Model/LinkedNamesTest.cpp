// SPDX-License-Identifier: MIT
#include "Model/LinkedNames.h"

#include "Model/NodeLookup.h"
#include "Model/TopFolder.h"
#include "Model/TreeEdit.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tessera {
namespace {

using test::at;
using test::makeTree;

std::uint64_t sizeAt(TopFolder& top, std::string_view path)
{
    return at(top, path).totalAllocation();
}

TEST(LinkedNames, AFileCountsAtItsFirstName)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/2 z:40 )");
    EXPECT_EQ(sizeAt(*top, "a/x"), 700U);
    EXPECT_EQ(sizeAt(*top, "b/y"), 0U);
    EXPECT_EQ(top->totalAllocation(), 740U);
}

TEST(LinkedNames, TheSameInodeOnAnotherDeviceIsAnotherFile)
{
    const auto top = makeTree("/t", "x:1 y:1");
    LinkedNames& names = top->linkedNames();
    EXPECT_TRUE(names.add(at(*top, "x"), {1, 5}, 2));
    EXPECT_TRUE(names.add(at(*top, "y"), {2, 5}, 2));
}

TEST(LinkedNames, ANameSaysHowManyThereAreAndWhereTheFileIsCounted)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/13 ) b/ ( y:700#5/13 )");
    const auto description = top->linkedNames().describe(at(*top, "b/y"));
    ASSERT_TRUE(description);
    EXPECT_EQ(description->linkCount, 13U);
    EXPECT_EQ(description->countedAt, &at(*top, "a/x"));
}

TEST(LinkedNames, AFileOfOneNameHasNoDescription)
{
    const auto top = makeTree("/t", "x:700#5/2 y:700#5/2 z:1");
    EXPECT_FALSE(top->linkedNames().describe(at(*top, "z")));
}

TEST(LinkedNames, APartOfTheTreeHasAShareOfTheNames)
{
    const auto top = makeTree(
        "/t", "z:9#7/2 a/ ( x:700#5/13 v:20#6/2 ) b/ ( y:700#5/13 w:20#6/2 u:3 ) c/ ( o:1#8/2 )");
    const auto shares = top->linkedNames().sharesOf(
        [&](const File& name) { return isAtOrBelow(name, at(*top, "b")); });
    ASSERT_EQ(shares.size(), 2U);
    EXPECT_EQ(shares[0].countedAt, &at(*top, "a/x"));
    EXPECT_EQ(shares[0].inside, &at(*top, "b/y"));
    EXPECT_EQ(shares[0].namesInside, 1U);
    EXPECT_EQ(shares[0].names, 2U);
    EXPECT_EQ(shares[0].linkCount, 13U);
    EXPECT_EQ(shares[1].inside, &at(*top, "b/w"));
}

TEST(LinkedNames, OfSeveralCountsTheLargestIsToldOfAShare)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/3 ) c/ ( z:700#5/2 )");
    const auto shares = top->linkedNames().sharesOf([](const File&) { return true; });
    ASSERT_EQ(shares.size(), 1U);
    EXPECT_EQ(shares[0].linkCount, 3U);
    EXPECT_EQ(shares[0].namesInside, 3U);
}

TEST(LinkedNames, TheNextNameTakesOverTheSize)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/3 ) b/ ( y:700#5/3 ) c/ ( z:700#5/3 )");
    takeOut(at(*top, "a/x"));
    EXPECT_EQ(sizeAt(*top, "a"), 0U);
    EXPECT_EQ(sizeAt(*top, "b"), 700U);
    EXPECT_EQ(sizeAt(*top, "c"), 0U);
    EXPECT_EQ(top->totalAllocation(), 700U);
}

TEST(LinkedNames, WithTheFolderThatHoldsThemNamesLeave)
{
    const auto top = makeTree("/t", "a/ ( b/ ( x:700#5/3 y:700#5/3 ) ) z:700#5/3 v:8");
    takeOut(at(*top, "a"));
    EXPECT_EQ(sizeAt(*top, "z"), 700U);
    EXPECT_EQ(top->linkedNames().size(), 1U);
    EXPECT_EQ(top->totalAllocation(), 708U);
}

TEST(LinkedNames, AnotherNameLeavesWithoutAnyChangeOfSize)
{
    const auto top = makeTree("/t", "x:700#5/2 b/ ( y:700#5/2 )");
    takeOut(at(*top, "b"));
    EXPECT_EQ(sizeAt(*top, "x"), 700U);
    EXPECT_EQ(top->totalAllocation(), 700U);
}

TEST(LinkedNames, TheLastNameTakesTheSizeWithIt)
{
    const auto top = makeTree("/t", "x:700#5/2 y:700#5/2 z:1");
    takeOut(at(*top, "x"));
    takeOut(at(*top, "y"));
    EXPECT_EQ(top->totalAllocation(), 1U);
    EXPECT_TRUE(top->linkedNames().isEmpty());
}

TEST(LinkedNames, FoldersAreSortedAfterASizeWasTakenOver)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( small:10 y:700#5/2 ) c:300");
    takeOut(at(*top, "a"));
    EXPECT_EQ(top->children()[0]->name(), "b");
    EXPECT_EQ(at(*top, "b/y").parent()->children()[0]->name(), "y");
}

TEST(LinkedNames, WhatIsMovedInsideTheTreeCountsOnce)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/2 ) trash/ ( )");
    putIn(static_cast<Folder&>(at(*top, "trash")), takeOut(at(*top, "a")));
    EXPECT_EQ(sizeAt(*top, "b/y"), 700U);
    EXPECT_EQ(sizeAt(*top, "trash/a"), 0U);
    EXPECT_EQ(sizeAt(*top, "trash/a/x"), 0U);
    EXPECT_EQ(top->totalAllocation(), 700U);
}

TEST(LinkedNames, WhatLeftAloneComesBackWithItsSize)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( v:1 )");
    LooseNode loose = takeOut(at(*top, "a/x"));
    EXPECT_EQ(top->totalAllocation(), 1U);
    putIn(static_cast<Folder&>(at(*top, "b")), std::move(loose));
    EXPECT_EQ(sizeAt(*top, "b"), 701U);
    ASSERT_TRUE(top->linkedNames().describe(at(*top, "b/x")));
}

TEST(LinkedNames, AFileReadAnewStaysCountedInTheFolder)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/2 )");
    exchange(at(*top, "a"), loose(makeTree("/t/a", "x:900#5/2")));
    EXPECT_EQ(sizeAt(*top, "a/x"), 900U);
    EXPECT_EQ(sizeAt(*top, "b/y"), 0U);
    EXPECT_EQ(top->totalAllocation(), 900U);
}

TEST(LinkedNames, WhatIsCountedOutsideIsNotCountedAgainInsideAFolderReadAnew)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/2 old:5 )");
    exchange(at(*top, "b"), loose(makeTree("/t/b", "c/ ( y:700#5/2 ) new:6")));
    EXPECT_EQ(sizeAt(*top, "a/x"), 700U);
    EXPECT_EQ(sizeAt(*top, "b/c"), 0U);
    EXPECT_EQ(sizeAt(*top, "b"), 6U);
    EXPECT_EQ(top->totalAllocation(), 706U);
}

TEST(LinkedNames, ANameThatIsGoneFromAFolderReadAnewPassesItsSizeOn)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/2 )");
    exchange(at(*top, "a"), loose(makeTree("/t/a", "other:3")));
    EXPECT_EQ(sizeAt(*top, "b/y"), 700U);
    EXPECT_EQ(top->totalAllocation(), 703U);
}

TEST(LinkedNames, AFolderReadAnewKeepsItsPlaceInTheOrder)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/3 ) b/ ( y:700#5/3 ) c/ ( z:700#5/3 )");
    exchange(at(*top, "b"), loose(makeTree("/t/b", "y:700#5/3")));
    takeOut(at(*top, "a"));
    EXPECT_EQ(sizeAt(*top, "b"), 700U);
    EXPECT_EQ(sizeAt(*top, "c"), 0U);
}

TEST(LinkedNames, TheRootKnowsTheNamesOfAFolderReadAnew)
{
    const auto top = makeTree("/t", "a/ ( v:1 ) b/ ( y:700#5/3 )");
    exchange(at(*top, "a"), loose(makeTree("/t/a", "x:700#5/3")));
    const auto description = top->linkedNames().describe(at(*top, "a/x"));
    ASSERT_TRUE(description);
    EXPECT_EQ(description->countedAt, &at(*top, "b/y"));
}

TEST(LinkedNames, AVolumeThatHasMoreThanAnyNumberStaysThere)
{
    const auto top = makeTree("/t", "a/ ( x:9223372036854775807#5/2 ) b/ ( y:1#5/2 ) c:500");
    takeOut(at(*top, "a"));
    EXPECT_EQ(sizeAt(*top, "b/y"), 9223372036854775807U);
    EXPECT_EQ(top->totalAllocation(), 9223372036854775807U);
}

TEST(LinkedNames, WhatLeavesTogetherCountsAsIfItHadLeftOneByOne)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/4 ) y:700#5/4 b/ ( z:700#5/4 ) w:700#5/4 v:8");
    std::vector<LooseNode> loose
        = takeOut(std::vector{&at(*top, "b"), &at(*top, "a"), &at(*top, "y")});
    ASSERT_EQ(loose.size(), 3U);
    EXPECT_EQ(loose[0].node->name(), "b");
    for (const LooseNode& left : loose) {
        EXPECT_EQ(left.node->totalAllocation(), 700U);
        EXPECT_EQ(left.names.size(), 1U);
    }
    EXPECT_EQ(sizeAt(*top, "w"), 700U);
    EXPECT_EQ(top->totalAllocation(), 708U);
    EXPECT_EQ(top->linkedNames().size(), 1U);
}

TEST(LinkedNames, WhereAllNamesLeaveTogetherEachPartCountsTheFile)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) y:700#5/2 v:8");
    std::vector<LooseNode> loose = takeOut(std::vector{&at(*top, "y"), &at(*top, "a")});
    EXPECT_EQ(top->totalAllocation(), 8U);
    EXPECT_TRUE(top->linkedNames().isEmpty());
    for (LooseNode& left : loose) {
        EXPECT_EQ(left.node->totalAllocation(), 700U);
        putIn(*top, std::move(left));
    }
    EXPECT_EQ(top->totalAllocation(), 708U);
}

/// The figures, worked out by looking at every name: what each file of a tree counts.
class CountedFiles {
public:
    void look(const File& node, const LinkedNames& names)
    {
        if (const auto* folder = nodeCast<Folder>(&node)) {
            std::uint64_t sum = 0;
            for (const File* child : folder->children()) {
                look(*child, names);
                sum += child->totalAllocation();
            }
            EXPECT_EQ(sum, folder->totalAllocation()) << folder->absolutePath();
            return;
        }
        const std::uint64_t file = std::stoull(std::string(node.name().substr(1)));
        sizes[file] += node.totalAllocation();
        const auto description = names.describe(node);
        ASSERT_TRUE(description);
        EXPECT_EQ(description->countedAt == &node, node.totalAllocation() != 0);
    }

    std::map<std::uint64_t, std::uint64_t> sizes;
};

class RandomTree {
public:
    explicit RandomTree(unsigned seed)
        : m_random(seed)
    {
    }

    /// Folders of names "i7", of the file of inode 7, whose size is 1007.
    std::string folder()
    {
        std::string text;
        for (unsigned i = below(9); i > 0; --i) {
            const std::string file = std::to_string(below(12) + 1);
            const std::string size = std::to_string(1000 + std::stoul(file));
            text.append("i").append(file).append(":").append(size);
            text.append("#").append(file).append("/9 ");
        }
        return text;
    }

    std::string tree()
    {
        std::string text;
        for (const char* name : {"a", "b", "c"}) {
            text += std::string(name) + "/ ( " + folder() + "d/ ( " + folder() + ") ) ";
        }
        return text;
    }

    unsigned below(unsigned bound)
    {
        return std::uniform_int_distribution<unsigned>(0, bound - 1)(m_random);
    }

private:
    std::mt19937 m_random;
};

/// Whatever is done to a tree, each file in it counts once, and each folder what is in it.
TEST(LinkedNames, EachFileCountsOnceAfterWhateverHappens)
{
    for (unsigned seed = 0; seed < 200; ++seed) {
        RandomTree random(seed);
        const auto top = makeTree("/t", random.tree());
        for (int step = 0; step < 6; ++step) {
            const std::string name(1, static_cast<char>('a' + random.below(3)));
            File& folder = at(*top, name);
            switch (random.below(4)) {
            case 0:
                exchange(folder, loose(makeTree("/t/" + name, random.folder() + "d/ ( )")));
                break;
            case 1:
                putIn(*top, takeOut(folder));
                break;
            case 2:
                for (LooseNode& left :
                     takeOut(std::vector{&at(*top, "c/d"), &at(*top, "a"), &at(*top, "b")})) {
                    const bool isFromC = left.node->name() == "d";
                    auto& parent = static_cast<Folder&>(isFromC ? at(*top, "c") : *top);
                    putIn(parent, std::move(left));
                }
                break;
            default:
                putIn(static_cast<Folder&>(at(*top, "c")), takeOut(at(*top, name + "/d")));
                putIn(
                    static_cast<Folder&>(at(*top, name)),
                    loose(makeTree("/t/" + name + "/d", random.folder())));
            }
            CountedFiles counted;
            counted.look(*top, top->linkedNames());
            for (const auto& [file, bytes] : counted.sizes) {
                EXPECT_EQ(bytes, 1000 + file) << "seed " << seed << ", step " << step;
            }
        }
    }
}

/// What the heap holds. Sanitizers have heaps of their own and say nothing.
std::size_t allocatedBytes()
{
    const auto info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

TEST(LinkedNames, TakeAtMostThirtyTwoBytesEach)
{
    const auto top = makeTree("/t", "x:1");
    for (const std::size_t count : {4096U, 10'000U, 65'537U, 300'000U}) {
        const std::size_t before = allocatedBytes();
        LinkedNames names;
        for (std::size_t i = 0; i < count; ++i) {
            names.add(at(*top, "x"), {1, i}, 2);
        }
        EXPECT_LE(allocatedBytes() - before, 32 * count) << count;
    }
}

TEST(LinkedNames, APartThatGoesToAnotherTreeCountsItsFilesThere)
{
    const auto top = makeTree("/t", "x:700#5/2 a/ ( y:700#5/2 )");
    const auto other = makeTree("/u", "v:1");
    putIn(*other, takeOut(at(*top, "a")));
    EXPECT_EQ(other->totalAllocation(), 701U);
    EXPECT_EQ(top->totalAllocation(), 700U);
}

TEST(LinkedNames, TwoNamesThatGoToAnotherTreeCountOnceThere)
{
    for (const auto& [first, second] : {std::pair("x", "y"), std::pair("y", "x")}) {
        const auto top = makeTree("/t", "x:700#5/2 y:700#5/2");
        const auto other = makeTree("/u", "v:1");
        putIn(*other, takeOut(at(*top, first)));
        putIn(*other, takeOut(at(*top, second)));
        EXPECT_EQ(other->totalAllocation(), 701U);
        EXPECT_EQ(top->totalAllocation(), 0U);
    }
}

TEST(LinkedNames, AFileThatHasGrownHasItsNewSizeWhereItIsCounted)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/2 )");
    exchange(at(*top, "b"), loose(makeTree("/t/b", "y:900#5/2")));
    EXPECT_EQ(sizeAt(*top, "a"), 900U);
    EXPECT_EQ(top->totalAllocation(), 900U);
}

TEST(LinkedNames, WhoReadsAllNamesReadsAFileAtEach)
{
    const auto top = makeTree("/t", "x:700#5/3 a/ ( y:700#5/3 z:700#5/3 v:20 )");
    EXPECT_EQ(allocationOfAllNames(at(*top, "a")), 1420U);
    EXPECT_EQ(allocationOfAllNames(at(*top, "a/y")), 700U);
    EXPECT_EQ(allocationOfAllNames(at(*top, "x")), 700U);
}

/// Nobody can choose inodes that all come to lie behind one another.
TEST(LinkedNames, HashesOfFilesAreSpread)
{
    std::set<std::size_t> uppermost;
    for (std::uint64_t inode = 0; inode < 1000; ++inode) {
        uppermost.insert(FileIdentityHash()({1, inode}) >> 54U);
    }
    EXPECT_GT(uppermost.size(), 550U);
}

} // namespace
} // namespace tessera
