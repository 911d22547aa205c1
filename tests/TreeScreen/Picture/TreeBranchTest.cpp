// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/TreeBranch.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

/// A top branch with one branch at (8, 24) in it, and one more at (5, 6) in that.
class NestedBranches : public testing::Test {
protected:
    NestedBranches()
    {
        auto inner = std::make_unique<TreeBranch>(Rect{5, 6, 50, 50});
        auto middle = std::make_unique<TreeBranch>(Rect{8, 24, 100, 100});
        m_inner = inner.get();
        m_middle = middle.get();
        middle->addSubBranch(std::move(inner));
        m_top.addSubBranch(std::move(middle));
    }

    TreeBranch m_top{Rect{1, 2, 300, 200}};
    TreeBranch* m_middle = nullptr;
    TreeBranch* m_inner = nullptr;
};

TEST(TreeBranch, StartsAtLevelZero)
{
    const TreeBranch branch(Rect{0, 0, 10, 10});
    EXPECT_EQ(branch.level(), 0);
}

TEST_F(NestedBranches, KnowTheirParent)
{
    EXPECT_EQ(m_inner->parentBranch(), m_middle);
    EXPECT_EQ(m_middle->parentBranch(), &m_top);
    EXPECT_EQ(m_top.parentBranch(), nullptr);
}

TEST_F(NestedBranches, SumTheOriginsUpToTheMap)
{
    EXPECT_EQ(m_inner->originInTreeView(), (Point{14, 32}));
}

TEST_F(NestedBranches, ConvertPointsFromTheMap)
{
    EXPECT_EQ(m_inner->convertFromTreeView({20, 40}), (Point{6, 8}));
}

TEST_F(NestedBranches, ConvertRectanglesToTheMap)
{
    EXPECT_EQ(m_middle->convertToTreeView({1, 1, 10, 20}), (Rect{10, 27, 10, 20}));
}

TEST_F(NestedBranches, TheDeepestUnderAPointIsFound)
{
    EXPECT_EQ(m_top.branchAt({14, 32}), m_inner);
    EXPECT_EQ(m_top.branchAt({13.5, 32}), m_middle);
    EXPECT_EQ(m_top.branchAt({2, 3}), &m_top);
}

TEST_F(NestedBranches, NoneIsFoundOutsideTheFrame)
{
    EXPECT_EQ(m_top.branchAt({0, 50}), nullptr);
    EXPECT_EQ(m_top.branchAt({301, 50}), nullptr);
}

TEST_F(NestedBranches, OfTwoThatOverlapTheTopmostIsFound)
{
    auto above = std::make_unique<TreeBranch>(Rect{8, 24, 100, 100});
    const TreeBranch* expected = above.get();
    m_top.addSubBranch(std::move(above));
    EXPECT_EQ(m_top.branchAt({20, 40}), expected);
}

} // namespace
} // namespace tessera
