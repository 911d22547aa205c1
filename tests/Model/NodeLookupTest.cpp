// SPDX-License-Identifier: MIT
#include "Model/NodeLookup.h"

#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

class NodeLookup : public testing::Test {
protected:
    File& node(std::string_view path) { return test::at(*m_top, path); }
    TopFolder& top() { return *m_top; }

private:
    std::unique_ptr<TopFolder> m_top
        = test::makeTree("/data", "a/ ( x:1 ) ab/ ( y:2 deep/ ( z:3 ) )");
};

TEST_F(NodeLookup, FindsTheTopFolderItself)
{
    EXPECT_EQ(nodeAtPath(top(), "/data"), &top());
}

TEST_F(NodeLookup, FindsNodesAtAnyDepth)
{
    EXPECT_EQ(nodeAtPath(top(), "/data/a"), &node("a"));
    EXPECT_EQ(nodeAtPath(top(), "/data/ab/deep/z"), &node("ab/deep/z"));
}

TEST_F(NodeLookup, ComparesWholeNames)
{
    EXPECT_EQ(nodeAtPath(top(), "/data/ab/y"), &node("ab/y"));
    EXPECT_EQ(nodeAtPath(top(), "/data/abc"), nullptr);
    EXPECT_EQ(nodeAtPath(top(), "/database"), nullptr);
}

TEST_F(NodeLookup, FindsNothingBelowADocument)
{
    EXPECT_EQ(nodeAtPath(top(), "/data/a/x/y"), nullptr);
}

TEST_F(NodeLookup, FindsBelowTheRootOfTheFileSystem)
{
    const auto root = test::makeTree("/", "usr/ ( bin:1 )");
    EXPECT_EQ(nodeAtPath(*root, "/usr/bin"), &test::at(*root, "usr/bin"));
    EXPECT_EQ(nodeAtPath(*root, "/"), root.get());
}

TEST_F(NodeLookup, TheNearestIsTheDeepestOnTheWay)
{
    EXPECT_EQ(nearestNodeAtPath(top(), "/data/ab/deep/gone/away"), &node("ab/deep"));
    EXPECT_EQ(nearestNodeAtPath(top(), "/data/ab/deep/z"), &node("ab/deep/z"));
    EXPECT_EQ(nearestNodeAtPath(top(), "/elsewhere"), nullptr);
}

TEST_F(NodeLookup, FoldersAndDocumentsAreItems)
{
    EXPECT_TRUE(isItem(node("a")));
    EXPECT_TRUE(isItem(node("a/x")));
    EXPECT_TRUE(isItem(top()));
}

TEST_F(NodeLookup, SpaceIsNoItem)
{
    EXPECT_FALSE(isItem(*makeNode<FreeSpace>("")));
    EXPECT_FALSE(isItem(*makeNode<Unknown>("")));
    EXPECT_FALSE(isItem(*makeNode<TimeMachine>("")));
}

TEST_F(NodeLookup, ANodesPlaceIsItsPathWhereNoLinkLedToTheScan)
{
    EXPECT_EQ(placeOnDisk(node("ab/deep")), Url("/data/ab/deep", true));
    EXPECT_EQ(placeOnDisk(node("a/x")), Url("/data/a/x", false));
}

TEST_F(NodeLookup, ANodesPlaceBeginsWhereTheLinksToTheScanLed)
{
    top().setRealOrigin("/disk/data");
    EXPECT_EQ(placeOnDisk(node("ab/deep/z")), Url("/disk/data/ab/deep/z", false));
    EXPECT_EQ(placeOnDisk(top()), Url("/disk/data", true));
}

TEST_F(NodeLookup, ALinkToTheRootLeadsToPathsWithoutASlashTooMany)
{
    top().setRealOrigin("/");
    EXPECT_EQ(placeOnDisk(node("a/x")), Url("/a/x", false));
}

TEST_F(NodeLookup, BelowARescannedFolderThePlaceBeginsThereToo)
{
    top().setRealOrigin("/disk/data");
    auto& above = static_cast<Folder&>(node("ab"));
    auto rescanned = test::makeTree("/data/ab/deep", "w:5");
    rescanned->setRealOrigin("/elsewhere");
    above.replaceChild(node("ab/deep"), std::move(rescanned));
    EXPECT_EQ(placeOnDisk(node("ab/deep/w")), Url("/disk/data/ab/deep/w", false));
}

TEST_F(NodeLookup, APlaceOnTheDiskHasItsPathInTheTree)
{
    top().setRealOrigin("/disk/data");
    EXPECT_EQ(pathInTree(top(), "/disk/data/ab/new"), "/data/ab/new");
    EXPECT_EQ(pathInTree(top(), "/disk/data"), "/data");
    EXPECT_EQ(pathInTree(top(), "/disk/database"), "/disk/database");
}

TEST_F(NodeLookup, ANodeIsAtItselfAndBelowWhatHoldsIt)
{
    EXPECT_TRUE(isAtOrBelow(node("ab/deep"), node("ab/deep")));
    EXPECT_TRUE(isAtOrBelow(node("ab/deep/z"), node("ab")));
    EXPECT_FALSE(isAtOrBelow(node("ab"), node("ab/deep")));
    EXPECT_FALSE(isAtOrBelow(node("a/x"), node("ab")));
}

} // namespace
} // namespace tessera
