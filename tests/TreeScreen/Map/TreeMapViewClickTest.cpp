// SPDX-License-Identifier: MIT
#include "Base/NotificationCenter.h"
#include "TreeScreen/Map/TreeMapViewFixture.h"

#include <QContextMenuEvent>

namespace tessera {

namespace {

using namespace test;

/// Notes what the map's branches report.
class TreeMapViewClickTest : public TreeMapViewTest {
protected:
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
    Observation clickObservation = NotificationCenter::defaultCenter().addObserver(
        "ClickTreeItem",
        [this](const NotificationObject& object) { clicked.push_back(std::get<File*>(object)); });
    Observation doubleClickObservation = NotificationCenter::defaultCenter().addObserver(
        "DoubleClickTreeItem", [this](const NotificationObject&) { ++doubleClicks; });
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
    press(kInDocsHeader);
    release(kInA);

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
    const Observation rebuild = NotificationCenter::defaultCenter().addObserver(
        "ClickTreeItem", [this](const NotificationObject&) {
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

TEST_F(TreeMapViewClickTest, ARightClickOpensTheMenuOfTheBoxAndHidesTheTooltip)
{
    moveTo(kInNested);
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, kInNested);

    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->pos(), window.mapToGlobal(kInNested));
    EXPECT_FALSE(isTooltipShown());
    EXPECT_EQ(clicked, std::vector<File*>{&x});
    QApplication::activePopupWidget()->close();
}

TEST_F(TreeMapViewClickTest, ARightClickOnAGroupOpensNoMenu)
{
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, kInGroup);

    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(clicked.empty());
}

TEST_F(TreeMapViewClickTest, TheMenuKeyOpensTheMenuInTheMiddleOfTheSelectedBox)
{
    x.setSelected(true);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(view, &event);

    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->pos(), window.mapToGlobal(QPoint(103, 111)));
    QApplication::activePopupWidget()->close();
}

TEST_F(TreeMapViewClickTest, TheMenuKeyOpensNothingWithoutASelection)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(view, &event);

    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

} // namespace tessera
