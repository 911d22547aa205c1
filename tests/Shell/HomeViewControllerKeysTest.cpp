// SPDX-License-Identifier: MIT
#include "HomeViewControllerFixture.h"
#include "Shell/HiddenButtonCell.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace tessera {
namespace {

class HomeViewControllerKeysTest : public test::HomeViewControllerFixture { };

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

TEST_F(HomeViewControllerKeysTest, ScreenReadersLearnWhatIsSelected)
{
    show();
    const auto isSelected = [this](std::size_t metric) {
        return bool(QAccessible::queryAccessibleInterface(&item(metric))->state().selected);
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
