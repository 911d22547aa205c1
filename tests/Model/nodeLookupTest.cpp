// SPDX-License-Identifier: MIT
#include "Model/nodeLookup.h"

#include "support/makeTree.h"

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

TEST_F(NodeLookup, ANodeIsAtItselfAndBelowWhatHoldsIt)
{
    EXPECT_TRUE(isAtOrBelow(node("ab/deep"), node("ab/deep")));
    EXPECT_TRUE(isAtOrBelow(node("ab/deep/z"), node("ab")));
    EXPECT_FALSE(isAtOrBelow(node("ab"), node("ab/deep")));
    EXPECT_FALSE(isAtOrBelow(node("a/x"), node("ab")));
}

} // namespace
} // namespace tessera
