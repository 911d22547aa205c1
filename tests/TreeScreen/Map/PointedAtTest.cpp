// SPDX-License-Identifier: MIT
#include "TreeScreen/Map/TreeMapViewFixture.h"
#include "TreeScreen/Map/ZoomAnimation.h"

#include <cstddef>

namespace tessera {

using namespace test;

/// The items that the map says the pointer points at, one after the other.
class TreeMapViewPointedAt : public TreeMapViewTest {
protected:
    TreeMapViewPointedAt()
    {
        QObject::connect(view, &TreeMapView::pointedAt, &m_ears, [this](const LayoutObject* item) {
            pointedAt.push_back(item);
        });
    }

    const LayoutObject* last() const { return pointedAt.empty() ? nullptr : pointedAt.back(); }
    const File* lastNode() const { return last() == nullptr ? nullptr : last()->ref; }

    std::vector<const LayoutObject*> pointedAt;

private:
    /// The fixture moves the pointer once more when the list is gone.
    QObject m_ears;
};

TEST_F(TreeMapViewPointedAt, EachMoveTellsTheBoxUnderThePointer)
{
    moveTo(kInA);
    EXPECT_EQ(lastNode(), &a);
    moveTo(kInNested);
    EXPECT_EQ(lastNode(), &x);
    moveTo(kInDocsHeader);
    EXPECT_EQ(lastNode(), &docs);
}

TEST_F(TreeMapViewPointedAt, AMoveWithinTheBoxTellsItAgain)
{
    moveTo(kInA);
    const std::size_t before = pointedAt.size();
    moveTo(kInA + QPoint(3, 3));
    EXPECT_GT(pointedAt.size(), before);
    EXPECT_EQ(lastNode(), &a);
}

TEST_F(TreeMapViewPointedAt, GroupsAreToldToo)
{
    moveTo(kInGroup);
    EXPECT_NE(dynamic_cast<const MultiLayoutObject*>(last()), nullptr);
}

TEST_F(TreeMapViewPointedAt, BesideAllBoxesTheLastOneIsStillMeant)
{
    moveTo(kInA);
    moveTo(kInMargin);
    EXPECT_EQ(lastNode(), &a);
}

TEST_F(TreeMapViewPointedAt, NothingIsMeantOnceThePointerHasLeft)
{
    moveTo(kInA);
    moveTo(kBesideTheMap);
    EXPECT_EQ(last(), nullptr);
}

TEST_F(TreeMapViewPointedAt, NothingIsMeantOnceTheBranchesAreGone)
{
    moveTo(kInA);
    view->removeAllBranches();
    EXPECT_EQ(last(), nullptr);
}

TEST_F(TreeMapViewPointedAt, NothingIsMeantDuringAZoom)
{
    moveTo(kInA);
    view->startZoom(std::make_unique<ZoomAnimation>(ZoomLayer(), ZoomLayer(), [] { return 0.0; }));
    EXPECT_EQ(last(), nullptr);
    moveTo(kInGroup);
    EXPECT_EQ(last(), nullptr);
}

TEST_F(TreeMapViewPointedAt, NothingIsMeantInAWindowAtTheBack)
{
    moveTo(kInA);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(becomesActive(other));
    EXPECT_EQ(last(), nullptr);
}

} // namespace tessera
