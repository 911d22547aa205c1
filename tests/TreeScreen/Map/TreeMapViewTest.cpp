// SPDX-License-Identifier: MIT
#include "Model/TooltipType.h"
#include "TreeScreen/Map/TreeMapViewFixture.h"
#include "support/BecomesActive.h"

#include <QSignalSpy>

namespace tessera {

namespace {

using namespace test;

/// Counts the events of one type that an object gets.
class EventCounter final : public QObject {
public:
    EventCounter(QObject& watched, QEvent::Type type)
        : m_type(type)
    {
        watched.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

    int count = 0;

private:
    QEvent::Type m_type;
};

} // namespace

TEST_F(TreeMapViewTest, TheDeepestBranchUnderThePointerIsTheHoveredOne)
{
    EXPECT_EQ(view->hoveredBranch(), nullptr);
    moveTo(kInNested);
    EXPECT_EQ(view->hoveredBranch(), nestedBranch);
    moveTo(kInDocsHeader);
    EXPECT_EQ(view->hoveredBranch(), topBranch);
}

TEST_F(TreeMapViewTest, MovingOverABoxShowsItsDetailsAtThePointer)
{
    moveTo(kInA);

    EXPECT_TRUE(isTooltipShown());
    EXPECT_EQ(shownText("fileName"), "a");
    EXPECT_EQ(tooltipGeometry(), expectedFrame(kInA, tooltip().desiredRect().height));
}

TEST_F(TreeMapViewTest, TheNestedBoxHidesTheFolderAroundIt)
{
    moveTo(kInNested);
    EXPECT_EQ(tooltip().contentRef()->objectName(), QStringLiteral("fileView"));
    EXPECT_EQ(shownText("fileName"), "x");

    moveTo(kInDocsHeader);
    EXPECT_EQ(tooltip().contentRef()->objectName(), QStringLiteral("folderView"));
    EXPECT_EQ(shownText("folderName"), "docs");
}

TEST_F(TreeMapViewTest, GroupsAreDescribedToo)
{
    moveTo(kInGroup);

    EXPECT_EQ(shownText("multiPath"), "b\rc\r");
}

TEST_F(TreeMapViewTest, WhereBoxesOverlapTheLastOneWins)
{
    std::vector<std::unique_ptr<LayoutObject>> items;
    items.push_back(box(&a, {0, 0, 400, 300}));
    items.push_back(box(&b, {0, 0, 400, 300}));
    auto branch = std::make_unique<TreeBranch>(Rect{0, 0, 400, 300});
    branch->setLayoutItems(std::move(items));
    view->addBranch(std::move(branch));
    moveTo(kInA);

    EXPECT_EQ(shownText("fileName"), "b");
}

TEST_F(TreeMapViewTest, TheTooltipFollowsThePointerWithoutBeingFilledAgain)
{
    moveTo(kInA);
    const int asked = icons.askedCount;
    moveTo(kInA + QPoint(10, 7));

    EXPECT_EQ(
        tooltipGeometry(), expectedFrame(kInA + QPoint(10, 7), tooltip().desiredRect().height));
    EXPECT_EQ(icons.askedCount, asked);
}

TEST_F(TreeMapViewTest, WithoutTooltipsNothingIsEverShown)
{
    setTooltipType(defaults, TooltipType::None);
    moveTo(kInA);
    moveTo(kInGroup);
    moveTo(kInNested);

    EXPECT_FALSE(isTooltipShown());
    EXPECT_EQ(view->currentToolTip(), nullptr);
}

TEST_F(TreeMapViewTest, TheShortTooltipIsAlwaysFortyTwoHigh)
{
    setTooltipType(defaults, TooltipType::Short);
    for (const QPoint point : {kInA, kInGroup, kInNested, kInDocsHeader}) {
        moveTo(point);
        EXPECT_EQ(tooltipGeometry(), expectedFrame(point, 42));
    }
}

TEST_F(TreeMapViewTest, TheFullTooltipHasTheHeightOfItsContent)
{
    moveTo(kInGroup);

    EXPECT_EQ(tooltipGeometry().height(), tooltip().desiredRect().height);
    EXPECT_GT(tooltipGeometry().height(), 67);
}

TEST_F(TreeMapViewTest, AChangedSettingHoldsFromTheNextMoveOn)
{
    moveTo(kInA);
    setTooltipType(defaults, TooltipType::Short);
    moveTo(kInA + QPoint(1, 0));

    EXPECT_EQ(tooltipGeometry().height(), 42);
}

TEST_F(TreeMapViewTest, TheTooltipFlipsNearTheRightEdgeOfTheScreen)
{
    const QRect screen = window.screen()->geometry();
    window.move(screen.right() - 300, 100);
    moveTo(kInA);

    EXPECT_EQ(tooltipGeometry().x() + 210, window.mapToGlobal(kInA).x());
}

TEST_F(TreeMapViewTest, TheTooltipFlipsNearTheBottomEdgeOfTheScreen)
{
    const QRect screen = window.screen()->geometry();
    window.move(100, screen.bottom() - 150);
    moveTo(kInA);
    const int pointerY = window.mapToGlobal(kInA).y();

    EXPECT_EQ(tooltipGeometry().y(), pointerY + 20 - (tooltipGeometry().height() + 28));
}

TEST_F(TreeMapViewTest, TheTooltipHidesWhenThePointerLeaves)
{
    moveTo(kInA);
    moveTo(kBesideTheMap);

    EXPECT_FALSE(isTooltipShown());
}

TEST_F(TreeMapViewTest, ComingBackToTheSameBoxShowsTheTooltipWithoutFillingIt)
{
    moveTo(kInA);
    const int asked = icons.askedCount;
    moveTo(kBesideTheMap);
    moveTo(kInA);

    EXPECT_TRUE(isTooltipShown());
    EXPECT_EQ(icons.askedCount, asked);
}

TEST_F(TreeMapViewTest, TheMarginShowsNothingBeforeTheFirstBox)
{
    moveTo(kInMargin);

    EXPECT_FALSE(isTooltipShown());
}

TEST_F(TreeMapViewTest, ADragLeavesTheTooltipAlone)
{
    moveTo(kInDocsHeader);
    const QRect before = tooltipGeometry();
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, kInDocsHeader);
    moveTo(kInA);

    EXPECT_EQ(tooltipGeometry(), before);
    EXPECT_EQ(shownText("folderName"), "docs");
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, kInMargin);
}

TEST_F(TreeMapViewTest, TheTooltipTakesNeitherActivationNorFocus)
{
    view->setFocus();
    moveTo(kInA);

    EXPECT_EQ(QApplication::activeWindow(), &window);
    EXPECT_EQ(QApplication::focusWidget(), view);
}

TEST_F(TreeMapViewTest, AnotherActiveWindowMeansNoTooltip)
{
    moveTo(kInA);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(test::becomesActive(other));
    EXPECT_FALSE(isTooltipShown());

    moveTo(kInGroup);
    EXPECT_FALSE(isTooltipShown());
}

TEST_F(TreeMapViewTest, TheTooltipGoesWhenTheMapIsHidden)
{
    moveTo(kInA);
    view->hide();

    EXPECT_FALSE(isTooltipShown());
}

TEST_F(TreeMapViewTest, TheTooltipGoesWithTheMap)
{
    moveTo(kInA);
    ownedView.reset();

    EXPECT_FALSE(isTooltipShown());
}

TEST_F(TreeMapViewTest, HoveringPaintsNothingButTheTooltip)
{
    QApplication::processEvents();
    const EventCounter paints(*view, QEvent::Paint);
    moveTo(kInA);
    moveTo(kInGroup);
    moveTo(kInNested);
    QApplication::processEvents();

    EXPECT_EQ(paints.count, 0);
}

TEST_F(TreeMapViewTest, RemovedBranchesAreForgotten)
{
    moveTo(kInNested);
    ASSERT_NE(view->currentToolTip(), nullptr);
    view->removeAllBranches();

    EXPECT_EQ(view->hoveredBranch(), nullptr);
    EXPECT_EQ(view->currentToolTip(), nullptr);
    EXPECT_TRUE(view->branches().empty());
}

TEST_F(TreeMapViewTest, AnEmptyMapShowsNoTooltip)
{
    view->removeAllBranches();
    moveTo(kInA);

    EXPECT_FALSE(isTooltipShown());
}

TEST_F(TreeMapViewTest, ANodesBoxIsFoundInTheMapsCoordinates)
{
    EXPECT_EQ(view->findRectForFile(a), (Rect{203, 3, 100, 294}));
    EXPECT_EQ(view->findRectForFile(x), (Rect{11, 27, 184, 168}));
}

TEST_F(TreeMapViewTest, ANodeWithoutABoxHasNoRectangle)
{
    EXPECT_EQ(view->findRectForFile(*tree), std::nullopt);
    EXPECT_EQ(view->findRectForFile(b), std::nullopt);
}

TEST_F(TreeMapViewTest, ANodeShownTwiceIsFoundInTheFirstBranch)
{
    auto second = std::make_unique<TreeBranch>(Rect{0, 0, 400, 300});
    std::vector<std::unique_ptr<LayoutObject>> items;
    items.push_back(box(&x, {50, 60, 70, 80}));
    second->setLayoutItems(std::move(items));
    const TreeBranch* const secondBranch = second.get();
    view->addBranch(std::move(second));

    EXPECT_EQ(view->findRectForFile(x), (Rect{11, 27, 184, 168}));
    EXPECT_EQ(view->findRectForFile(x, *secondBranch), (Rect{50, 60, 70, 80}));
}

TEST_F(TreeMapViewTest, ABranchIsSearchedBeforeThoseNestedInIt)
{
    std::vector<std::unique_ptr<LayoutObject>> items;
    items.push_back(box(&docs, {1, 2, 3, 4}));
    nestedBranch->setLayoutItems(std::move(items));

    EXPECT_EQ(view->findRectForFile(docs), (Rect{3, 3, 200, 294}));
    EXPECT_EQ(view->findRectForFile(docs, *nestedBranch), (Rect{12, 29, 3, 4}));
}

TEST_F(TreeMapViewTest, TheCanvasIsBlackWithoutBranches)
{
    view->removeAllBranches();
    const QImage picture = view->grab().toImage();

    EXPECT_EQ(picture.pixelColor(kInA), QColor(Qt::black));
    EXPECT_EQ(picture.pixelColor(399, 299), QColor(Qt::black));
}

TEST_F(TreeMapViewTest, BoxesArePaintedOnBlack)
{
    const QImage picture = view->grab().toImage();

    EXPECT_NE(picture.pixelColor(kInA), QColor(Qt::black));
    EXPECT_EQ(picture.pixelColor(kInMargin), QColor(Qt::black));
}

TEST_F(TreeMapViewTest, ThePictureIsPaintedOnceForEachChange)
{
    const qint64 first = view->picture().cacheKey();
    view->grab();
    EXPECT_EQ(view->picture().cacheKey(), first);

    view->removeAllBranches();
    addBranches();
    EXPECT_NE(view->picture().cacheKey(), first);
}

TEST_F(TreeMapViewTest, ThePictureHasTheResolutionOfTheScreen)
{
    const double scale = view->devicePixelRatioF();

    EXPECT_EQ(view->picture().devicePixelRatio(), scale);
    EXPECT_EQ(view->picture().size(), (QSizeF(400, 300) * scale).toSize());
}

TEST_F(TreeMapViewTest, ANewSizeIsReported)
{
    const QSignalSpy changes(view, &TreeMapView::frameChanged);
    view->resize(300, 200);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(view->picture().size(), (QSizeF(300, 200) * view->devicePixelRatioF()).toSize());

    view->move(10, 10);
    EXPECT_EQ(changes.size(), 1);
}

} // namespace tessera
