// SPDX-License-Identifier: MIT
#include "TreeScreen/Map/BoxNavigation.h"

#include "Layout/MultiLayoutObject.h"
#include "Model/FreeSpace.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace tessera {
namespace {

/// Two rows of boxes with free space and a group beside them, and a level nested in the first:
///
///     +------+------+--------+
///     | docs |  b   |        |
///     | p|q  +------+  free  |
///     |      |  c   |        |
///     +------+------+--------+
///     |   d (wide)  | group  |
///     +-------------+--------+
class BoxNavigation : public testing::Test {
protected:
    BoxNavigation()
    {
        Items items;
        add(items, node("docs"), {0, 0, 100, 100});
        add(items, node("b"), {100, 0, 100, 50});
        add(items, node("c"), {100, 50, 100, 50});
        add(items, *m_free, {200, 0, 100, 100});
        add(items, node("d"), {0, 100, 200, 100});
        auto group = std::make_unique<MultiLayoutObject>();
        group->rect = {200, 100, 100, 100};
        items.push_back(std::move(group));
        top.setLayoutItems(std::move(items));

        auto nested = std::make_unique<TreeBranch>(Rect{8, 24, 84, 68});
        Items inside;
        add(inside, node("docs/p"), {0, 0, 42, 68});
        add(inside, node("docs/q"), {42, 0, 42, 68});
        nested->setLayoutItems(std::move(inside));
        top.addSubBranch(std::move(nested));
    }

    File& node(std::string_view path) { return test::at(*m_tree, path); }
    File* next(std::string_view from, Direction direction)
    {
        return nextSelection(top, &node(from), direction);
    }

    TreeBranch top{{0, 0, 300, 200}};

private:
    using Items = std::vector<std::unique_ptr<LayoutObject>>;

    static void add(Items& items, File& file, const Rect& rect)
    {
        items.push_back(std::make_unique<LayoutObject>());
        items.back()->ref = &file;
        items.back()->rect = rect;
    }

    std::unique_ptr<TopFolder> m_tree
        = test::makeTree("/data", "docs/ ( p:5 q:5 ) b:5 c:5 d:5 unseen:1");
    std::unique_ptr<FreeSpace> m_free = makeNode<FreeSpace>("");
};

TEST_F(BoxNavigation, WithoutASelectionTheFirstBoxIsNext)
{
    EXPECT_EQ(nextSelection(top, nullptr, Direction::Left), &node("docs"));
}

TEST_F(BoxNavigation, ASelectionThatIsNotInThePictureCountsAsNone)
{
    EXPECT_EQ(next("unseen", Direction::Down), &node("docs"));
}

TEST_F(BoxNavigation, MovesToTheBoxThatLiesThatWay)
{
    EXPECT_EQ(next("b", Direction::Left), &node("docs"));
    EXPECT_EQ(next("b", Direction::Down), &node("c"));
    EXPECT_EQ(next("c", Direction::Up), &node("b"));
    EXPECT_EQ(next("docs", Direction::Down), &node("d"));
    EXPECT_EQ(next("c", Direction::Down), &node("d"));
}

TEST_F(BoxNavigation, OfSeveralTheOneBesideTheCentreIsNext)
{
    EXPECT_EQ(next("d", Direction::Up), &node("docs"));
}

TEST_F(BoxNavigation, StaysAtTheEdge)
{
    EXPECT_EQ(next("b", Direction::Up), nullptr);
    EXPECT_EQ(next("docs", Direction::Left), nullptr);
    EXPECT_EQ(next("d", Direction::Down), nullptr);
}

TEST_F(BoxNavigation, PassesOverSpaceAndGroups)
{
    EXPECT_EQ(next("b", Direction::Right), nullptr);
    EXPECT_EQ(next("d", Direction::Right), nullptr);
}

TEST_F(BoxNavigation, StaysOnItsLevel)
{
    EXPECT_EQ(next("docs/p", Direction::Right), &node("docs/q"));
    EXPECT_EQ(next("docs/q", Direction::Right), nullptr);
    EXPECT_EQ(next("docs/p", Direction::Down), nullptr);
}

TEST_F(BoxNavigation, AnEmptyPictureHasNothingToSelect)
{
    EXPECT_EQ(nextSelection(TreeBranch({0, 0, 10, 10}), nullptr, Direction::Up), nullptr);
}

} // namespace
} // namespace tessera
