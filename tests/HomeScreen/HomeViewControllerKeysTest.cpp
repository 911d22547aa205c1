// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/HoverButton.h"
#include "HomeViewControllerFixture.h"
#include "support/BecomesActive.h"

#include <QAccessible>
#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

class HomeViewControllerKeysTest : public test::HomeViewControllerFixture {
protected:
    /// From the grid.
    void tabToTheList() const
    {
        for (int key = 0; key < 3; ++key) {
            QTest::keyClick(home->view().focusWidget(), Qt::Key_Tab);
        }
        ASSERT_EQ(home->view().focusWidget(), &table());
    }

    /// A line of two points lies two points inside the row.
    bool hasOutline(int row) const
    {
        const QRect frame = table().visualRect(table().model()->index(row, 0));
        const QImage image = table().viewport()->grab().toImage();
        const QColor line = image.pixelColor(frame.left() + 2, frame.center().y());
        return line != table().palette().color(QPalette::Base);
    }
};

TEST_F(HomeViewControllerKeysTest, TabGoesFromTheGridToTheScanButton)
{
    show();
    const QWidget& view = home->view();
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Tab);
    EXPECT_EQ(view.focusWidget(), &home->openButton());
    QTest::keyClick(&home->openButton(), Qt::Key_Tab);
    EXPECT_EQ(view.focusWidget(), &home->clearRecentsButton());
    QTest::keyClick(&home->clearRecentsButton(), Qt::Key_Tab);
    EXPECT_EQ(view.focusWidget(), &table());
    QTest::keyClick(&table(), Qt::Key_Tab);
    EXPECT_EQ(view.focusWidget(), &home->scanButton());
}

TEST_F(HomeViewControllerKeysTest, TabbedIntoTheListOutlinesItsFirstRow)
{
    show();
    ASSERT_TRUE(test::becomesActive(home->view()));
    click(2);
    tabToTheList();
    EXPECT_TRUE(hasOutline(0));
    EXPECT_FALSE(hasOutline(1));
    EXPECT_TRUE(table().selectionModel()->selectedIndexes().isEmpty());
}

TEST_F(HomeViewControllerKeysTest, TheFirstArrowInTheListTakesTheRowWithTheOutline)
{
    show();
    click(2);
    tabToTheList();
    QTest::keyClick(&table(), Qt::Key_Down);
    home->scanSelected();
    EXPECT_THAT(scanned, testing::ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerKeysTest, ScreenReadersLearnWhatIsSelected)
{
    show();
    const auto isSelected = [this](std::size_t place) {
        return bool(QAccessible::queryAccessibleInterface(&item(place))->state().selected);
    };
    EXPECT_FALSE(isSelected(1));
    grid().selectItem(0, 0);
    EXPECT_TRUE(isSelected(1));
    EXPECT_FALSE(isSelected(2));
}

TEST_F(HomeViewControllerKeysTest, TabReachesTheGridFromOutside)
{
    show();
    QWidget window;
    QPushButton outside(&window);
    home->view().setParent(&window);
    home->view().show();
    window.show();
    outside.setFocus();
    QTest::keyClick(&outside, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &grid());
    home->view().setParent(nullptr);
}

TEST_F(HomeViewControllerKeysTest, TheKeyboardBeginsAtTheRecentScans)
{
    show();
    home->takeFocus();
    EXPECT_EQ(home->view().focusWidget(), &table());
}

TEST_F(HomeViewControllerKeysTest, TheKeyboardGoesOnInTheGridWhereItHoldsTheSelection)
{
    show();
    click(2);
    home->setEnabled(false);
    home->setEnabled(true);
    home->takeFocus();
    EXPECT_EQ(home->view().focusWidget(), &grid());
}

TEST_F(HomeViewControllerKeysTest, WithoutRecentScansTheKeyboardBeginsAtTheGrid)
{
    modelServices.documents.urls.clear();
    show();
    home->takeFocus();
    EXPECT_EQ(home->view().focusWidget(), &grid());
}

} // namespace
} // namespace tessera
