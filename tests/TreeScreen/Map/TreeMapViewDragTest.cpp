// SPDX-License-Identifier: MIT
#include "TreeScreen/Map/TreeMapViewFixture.h"

namespace tessera::test {
namespace {

class TreeMapViewDragTest : public TreeMapViewTest {
protected:
    TreeMapViewDragTest()
    {
        QObject::connect(
            view, &TreeMapView::dragBegun, [this](File& node) { dragged.push_back(&node); });
        QObject::connect(
            view, &TreeMapView::clickTreeItem, [this](File& node) { clicked.push_back(&node); });
    }

    void press(QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(window.windowHandle(), button, {}, point);
    }
    void release(QPoint point)
    {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, point);
    }

    /// With the button held down.
    void moveBy(int distance) { moveTo(m_from + QPoint(distance, 0)); }

    const QPoint m_from = kInA;
    std::vector<File*> dragged;
    std::vector<File*> clicked;
};

TEST_F(TreeMapViewDragTest, ABoxIsDraggedOnceThePointerHasLeftThePlace)
{
    press(m_from);
    moveBy(QApplication::startDragDistance() - 1);
    EXPECT_TRUE(dragged.empty());
    moveBy(QApplication::startDragDistance());
    EXPECT_EQ(dragged, std::vector<File*>{&a});
}

TEST_F(TreeMapViewDragTest, ADragBeginsOnce)
{
    press(m_from);
    moveBy(20);
    moveBy(30);
    EXPECT_EQ(dragged.size(), 1U);
}

TEST_F(TreeMapViewDragTest, TheBoxUnderThePressIsDraggedHoweverFastThePointerIs)
{
    press(kInA);
    moveTo(kInNested);
    EXPECT_EQ(dragged, std::vector<File*>{&a});
}

TEST_F(TreeMapViewDragTest, ADragIsNoClick)
{
    press(m_from);
    moveBy(20);
    release(m_from + QPoint(20, 0));
    EXPECT_TRUE(clicked.empty());
}

TEST_F(TreeMapViewDragTest, AHandThatTremblesClicks)
{
    press(m_from);
    moveBy(2);
    release(m_from + QPoint(2, 0));
    EXPECT_TRUE(dragged.empty());
    EXPECT_EQ(clicked, std::vector<File*>{&a});
}

TEST_F(TreeMapViewDragTest, AGroupCannotBeDragged)
{
    press(kInGroup);
    moveTo(kInA);
    EXPECT_TRUE(dragged.empty());
}

TEST_F(TreeMapViewDragTest, TheOtherButtonDragsNothing)
{
    press(m_from, Qt::RightButton);
    moveBy(20);
    EXPECT_TRUE(dragged.empty());
}

TEST_F(TreeMapViewDragTest, APictureThatIsMadeAnewUnderTheButtonIsNotDragged)
{
    press(m_from);
    view->removeAllBranches();
    addBranches();
    moveBy(20);
    EXPECT_TRUE(dragged.empty());
}

} // namespace
} // namespace tessera::test
