// SPDX-License-Identifier: MIT
#include "TreeScreen/Map/TreeMapViewFixture.h"

#include <QContextMenuEvent>

namespace tessera {

namespace {

using namespace test;

/// Notes what the map reports, and marks what is clicked as selected, as whoever hears of it does.
class TreeMapViewClickTest : public TreeMapViewTest {
protected:
    struct Menu {
        File* node;
        QPoint onScreen;
        bool operator==(const Menu&) const = default;
    };

    TreeMapViewClickTest()
    {
        QObject::connect(view, &TreeMapView::clickTreeItem, [this](File& node) {
            clicked.push_back(&node);
            node.setSelected(true);
        });
        QObject::connect(view, &TreeMapView::doubleClickTreeItem, [this] { ++doubleClicks; });
        QObject::connect(view, &TreeMapView::menuRequested, [this](File& node, QPoint onScreen) {
            menus.push_back({&node, onScreen});
        });
    }

    void press(QPoint point)
    {
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, point);
    }
    void release(QPoint point)
    {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, point);
    }
    void click(QPoint point)
    {
        press(point);
        release(point);
    }

    std::vector<File*> clicked;
    int doubleClicks = 0;
    std::vector<Menu> menus;
};

} // namespace
TEST_F(TreeMapViewClickTest, AClickIsReportedOnce)
{
    click(kInA);

    EXPECT_EQ(clicked, std::vector<File*>{&a});
    EXPECT_EQ(doubleClicks, 0);
}

TEST_F(TreeMapViewClickTest, APressAloneDoesNothing)
{
    press(kInA);
    EXPECT_TRUE(clicked.empty());
    release(kInMargin);
}

TEST_F(TreeMapViewClickTest, TheSecondClickOfADoubleClickIsADoubleClick)
{
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, kInNested);

    EXPECT_EQ(clicked, std::vector<File*>{&x});
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(TreeMapViewClickTest, TheBoxUnderTheReleaseIsClicked)
{
    press({201, 12});
    release({205, 12});

    EXPECT_EQ(clicked, std::vector<File*>{&a});
}

TEST_F(TreeMapViewClickTest, ThePressDecidesInWhichBranch)
{
    press(kInNested);
    release(kInA);

    EXPECT_TRUE(clicked.empty());
}

TEST_F(TreeMapViewClickTest, AReleaseWithoutAPressHereDoesNothing)
{
    press(kBesideTheMap);
    release(kInA);

    EXPECT_TRUE(clicked.empty());
}

TEST_F(TreeMapViewClickTest, TheMiddleButtonClicksNothing)
{
    QTest::mouseClick(window.windowHandle(), Qt::MiddleButton, {}, kInA);

    EXPECT_TRUE(clicked.empty());
}

TEST_F(TreeMapViewClickTest, AListenerMayReplaceTheBranchesAtOnce)
{
    QObject::connect(view, &TreeMapView::clickTreeItem, [this] {
        view->removeAllBranches();
        addBranches();
    });
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, kInNested);

    EXPECT_EQ(doubleClicks, 1);
    EXPECT_EQ(view->branches().size(), 1);
}

TEST_F(TreeMapViewClickTest, APressOnABranchThatIsReplacedIsLost)
{
    press(kInA);
    view->removeAllBranches();
    addBranches();
    release(kInA);

    EXPECT_TRUE(clicked.empty());
}

TEST_F(TreeMapViewClickTest, ARightClickAsksForTheMenuOfTheBoxAndHidesTheTooltip)
{
    moveTo(kInNested);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, kInNested);

    EXPECT_EQ(menus, (std::vector<Menu>{{&x, window.mapToGlobal(kInNested)}}));
    EXPECT_FALSE(isTooltipShown());
    EXPECT_EQ(clicked, std::vector<File*>{&x});
}

TEST_F(TreeMapViewClickTest, ARightClickOnAGroupAsksForNoMenu)
{
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, kInGroup);

    EXPECT_TRUE(menus.empty());
    EXPECT_TRUE(clicked.empty());
}

TEST_F(TreeMapViewClickTest, TheMenuKeyAsksForTheMenuInTheMiddleOfTheSelectedBox)
{
    x.setSelected(true);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(view, &event);

    EXPECT_EQ(menus, (std::vector<Menu>{{&x, window.mapToGlobal(QPoint(103, 111))}}));
}

TEST_F(TreeMapViewClickTest, TheMenuKeyAsksForNothingWithoutASelection)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(view, &event);

    EXPECT_TRUE(menus.empty());
}

} // namespace tessera
