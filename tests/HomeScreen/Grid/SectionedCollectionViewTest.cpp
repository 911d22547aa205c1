// SPDX-License-Identifier: MIT
#include "SectionedCollectionViewFixture.h"

#include <QScrollArea>
#include <QScrollBar>

#include <gmock/gmock.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SectionedCollectionViewTest : public test::SectionedCollectionViewFixture { };

TEST_F(SectionedCollectionViewTest, ItemsShareTheWidthAmongAsManyColumnsAsFit)
{
    show({{5, 200, 0}}, 450);
    EXPECT_THAT(
        frames(),
        ElementsAre(
            QRect(0, 0, 450, 30),
            QRect(0, 30, 225, 72),
            QRect(225, 30, 225, 72),
            QRect(0, 102, 225, 72),
            QRect(225, 102, 225, 72),
            QRect(0, 174, 225, 72)));
}

TEST_F(SectionedCollectionViewTest, TheGreatestWidthLeavesRoomAtTheRightOfEachRow)
{
    show({{5, 200, 200}}, 450);
    EXPECT_THAT(
        frames(),
        ElementsAre(
            QRect(0, 0, 450, 30),
            QRect(0, 30, 200, 72),
            QRect(200, 30, 200, 72),
            QRect(0, 102, 200, 72),
            QRect(200, 102, 200, 72),
            QRect(0, 174, 200, 72)));
}

TEST_F(SectionedCollectionViewTest, FewItemsGetThatManyWiderColumns)
{
    show({{2, 100, 0}}, 450);
    EXPECT_EQ(frames().at(1), QRect(0, 30, 225, 72));
    EXPECT_EQ(frames().at(2), QRect(225, 30, 225, 72));
}

TEST_F(SectionedCollectionViewTest, FewItemsGrowToTheGreatestWidthAtMost)
{
    show({{2, 100, 150}}, 450);
    EXPECT_EQ(frames().at(1), QRect(0, 30, 150, 72));
    EXPECT_EQ(frames().at(2), QRect(150, 30, 150, 72));
}

TEST_F(SectionedCollectionViewTest, NarrowItemsGoOnInTheRowUntilTheNextWouldNotFit)
{
    // One column would be 450 wide, but three of the greatest width fit beside each other.
    show({{4, 300, 150}}, 450);
    EXPECT_EQ(frames().at(3), QRect(300, 30, 150, 72));
    EXPECT_EQ(frames().at(4), QRect(0, 102, 150, 72));
}

TEST_F(SectionedCollectionViewTest, WidthsAreWholePoints)
{
    show({{3, 100, 0}}, 500);
    EXPECT_EQ(frames().at(1).width(), 166);
    EXPECT_EQ(frames().at(3), QRect(332, 30, 166, 72));
}

TEST_F(SectionedCollectionViewTest, EachSectionBeginsBelowTheLastRowOfTheOneBefore)
{
    show({{1, 200, 400}, {1, 100, 200}}, 450);
    EXPECT_EQ(frames().at(2), QRect(0, 102, 450, 30));
    EXPECT_EQ(frames().at(3), QRect(0, 132, 200, 72));
}

TEST_F(SectionedCollectionViewTest, ASectionWithoutItemsIsItsHeaderAlone)
{
    show({{0, 100, 200}, {1, 100, 200}}, 450);
    EXPECT_EQ(frames().at(1), QRect(0, 30, 450, 30));
    EXPECT_EQ(view.height(), 30 + 30 + 72);
}

TEST_F(SectionedCollectionViewTest, ARowNarrowerThanTheLeastWidthHoldsOneItemOfTheGreatest)
{
    show({{2, 200, 400}}, 150);
    EXPECT_EQ(frames().at(1), QRect(0, 30, 400, 72));
    EXPECT_EQ(frames().at(2), QRect(0, 102, 400, 72));
}

TEST_F(SectionedCollectionViewTest, PositionsAreSinglePrecisionNumbers)
{
    // In double precision 25 times 30.4 would be 760, and a 25th item would fit.
    show({{26, 31, 30.4}}, 760);
    EXPECT_EQ(view.sections().front().maximumWidth, 30.4F);
    EXPECT_EQ(frames().at(24), QRect(699, 30, 30, 72));
    EXPECT_EQ(frames().at(25), QRect(0, 102, 30, 72));
}

TEST_F(SectionedCollectionViewTest, IsAsHighAsItsContentAndAsWideAsItsSurroundings)
{
    show({{5, 200, 200}}, 450);
    EXPECT_EQ(view.size(), QSize(450, 30 + 3 * 72));
}

TEST_F(SectionedCollectionViewTest, ReflowsWhenItsSurroundingsChangeTheirWidth)
{
    show({{5, 200, 200}}, 450);
    surroundings.resize(650, 1000);
    EXPECT_EQ(view.size(), QSize(650, 30 + 2 * 72));
    EXPECT_EQ(frames().at(3), QRect(400, 30, 200, 72));
}

TEST_F(SectionedCollectionViewTest, AScrollAreaScrollsOverTheWholeContent)
{
    QScrollArea area;
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area.resize(450, 100);
    auto grid = std::make_unique<SectionedCollectionView>();
    SectionedCollectionView& scrolled = *grid;
    area.setWidget(grid.release());
    scrolled.setScrollView(&area);
    scrolled.setSections(test::made({{5, 200, 200}}));
    area.show();
    for (const int width : {450, 800, 300, 1200}) {
        area.resize(width, 100);
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(scrolled.width(), area.viewport()->width());
        EXPECT_EQ(
            area.verticalScrollBar()->maximum(), scrolled.height() - area.viewport()->height());
    }
}

TEST_F(SectionedCollectionViewTest, TheSectionsSayWhatIsShownInItsOrder)
{
    show({{2, 200, 400}}, 450);
    ASSERT_EQ(view.sections().size(), 1U);
    const CollectionSection& section = view.sections().front();
    ASSERT_EQ(section.items.size(), 2U);
    EXPECT_EQ(section.header->geometry(), frames().at(0));
    EXPECT_EQ(section.items[0].get(), &item(1));
    EXPECT_EQ(section.items[1].get(), &item(2));
}

TEST_F(SectionedCollectionViewTest, AClickSelectsTheItem)
{
    show({{1, 200, 400}, {2, 100, 200}}, 450);
    click(4);
    EXPECT_THAT(told, ElementsAre("select 1.1"));
    EXPECT_EQ(selection(), "selected 1.1");
    EXPECT_EQ(view.selectedView(), &item(4));
}

TEST_F(SectionedCollectionViewTest, AClickOnAnotherItemDeselectsTheFirst)
{
    show({{2, 200, 400}}, 450);
    click(1);
    click(2);
    EXPECT_THAT(told, ElementsAre("select 0.0", "deselect 0.0", "select 0.1"));
}

TEST_F(SectionedCollectionViewTest, AClickOnTheSelectedItemDeselectsAndSelectsIt)
{
    show({{2, 200, 400}}, 450);
    click(1);
    told.clear();
    click(1);
    EXPECT_THAT(told, ElementsAre("deselect 0.0", "select 0.0"));
    EXPECT_EQ(selection(), "selected 0.0");
}

TEST_F(SectionedCollectionViewTest, ADoubleClickSelectsDeselectsAndTellsOfItself)
{
    show({{2, 200, 400}}, 450);
    click(2);
    doubleClick(2);
    EXPECT_THAT(told, ElementsAre("select 0.1", "deselect 0.1", "double 0.1"));
    EXPECT_EQ(selection(), "selected 0.1");
}

TEST_F(SectionedCollectionViewTest, AClickOnAnUnavailableItemChangesNothing)
{
    show({{2, 200, 400}}, 450);
    click(1);
    told.clear();
    item(2).isUnavailable = true;
    click(2);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(selection(), "selected 0.0");
}

TEST_F(SectionedCollectionViewTest, AClickBesideTheItemsChangesNothing)
{
    show({{1, 200, 200}}, 450);
    click(1);
    told.clear();
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(300, 60));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(selection(), "selected 0.0");
}

TEST_F(SectionedCollectionViewTest, OtherButtonsChangeNothing)
{
    show({{1, 200, 200}}, 450);
    QTest::mouseClick(&view, Qt::RightButton, {}, item(1).geometry().center());
    EXPECT_EQ(selection(), "selected -1.-1");
}

TEST_F(SectionedCollectionViewTest, WithoutAHandlerOfSelectionsNothingIsSelected)
{
    show({{2, 200, 400}}, 450);
    handlers.didSelectView = nullptr;
    view.setHandlers(handlers);
    doubleClick(1);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(selection(), "selected -1.-1");
}

TEST_F(SectionedCollectionViewTest, WhileNotInteractiveClicksChangeNothing)
{
    show({{2, 200, 400}}, 450);
    click(1);
    told.clear();
    view.setInteractive(false);
    doubleClick(2);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(selection(), "selected 0.0");
}

TEST_F(SectionedCollectionViewTest, WhileNotInteractiveItCanBeDeselected)
{
    show({{2, 200, 400}}, 450);
    click(1);
    told.clear();
    view.setInteractive(false);
    view.deselectAll();
    EXPECT_THAT(told, ElementsAre("deselect 0.0"));
    EXPECT_EQ(selection(), "selected -1.-1");
    EXPECT_EQ(view.selectedView(), nullptr);
}

TEST_F(SectionedCollectionViewTest, NotInteractiveItLeavesTheItemViewsAsTheyAre)
{
    show({{1, 200, 400}}, 450);
    view.setInteractive(false);
    EXPECT_FALSE(view.isInteractive());
    EXPECT_TRUE(item(1).isEnabled());
}

TEST_F(SectionedCollectionViewTest, KeepsItsSelectionWhereNobodyIsToldOfItsEnd)
{
    show({{2, 200, 400}}, 450);
    click(1);
    handlers.didDeselectView = nullptr;
    view.setHandlers(handlers);
    view.deselectAll();
    EXPECT_EQ(selection(), "selected 0.0");
    view.setHandlers({});
    view.deselectAll();
    EXPECT_EQ(selection(), "selected 0.0");
}

TEST_F(SectionedCollectionViewTest, LoadingAfreshForgetsTheSelectionSilently)
{
    show({{2, 200, 400}}, 450);
    click(1);
    told.clear();
    view.setSections(test::made({{2, 200, 400}}));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(selection(), "selected -1.-1");
}

TEST_F(SectionedCollectionViewTest, LoadingAfreshReplacesTheViews)
{
    show({{2, 200, 400}}, 450);
    view.setSections(test::made({{1, 200, 400}}));
    EXPECT_EQ(frames().size(), 2U);
    EXPECT_EQ(view.findChildren<test::PlainItem*>().size(), 1);
    EXPECT_EQ(view.height(), 30 + 72);
}

TEST_F(SectionedCollectionViewTest, AnItemCanBeSelectedWithoutAClick)
{
    show({{1, 200, 400}, {2, 100, 200}}, 450);
    click(1);
    view.selectItem(1, 1);
    EXPECT_THAT(told, ElementsAre("select 0.0", "deselect 0.0", "select 1.1"));
    EXPECT_EQ(view.selectedView(), &item(4));
}

TEST_F(SectionedCollectionViewTest, AnUnavailableOrMissingItemIsNotSelected)
{
    show({{2, 200, 400}}, 450);
    item(2).isUnavailable = true;
    view.selectItem(0, 1);
    view.selectItem(0, 2);
    view.selectItem(1, 0);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(view.selectedView(), nullptr);
}

TEST_F(SectionedCollectionViewTest, WithoutSectionsItIsEmpty)
{
    show({{2, 200, 400}}, 450);
    view.setSections({});
    EXPECT_THAT(view.sections(), IsEmpty());
    EXPECT_EQ(view.height(), 0);
}

} // namespace
} // namespace tessera
