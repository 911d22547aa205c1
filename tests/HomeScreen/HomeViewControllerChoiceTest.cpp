// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/HoverButton.h"
#include "HomeViewControllerFixture.h"
#include "support/BecomesActive.h"

#include <QApplication>
#include <QDialog>
#include <QSignalSpy>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HomeViewControllerChoiceTest : public test::HomeViewControllerFixture { };

TEST_F(HomeViewControllerChoiceTest, SelectsTheMostRecentScanFirst)
{
    show();
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerChoiceTest, WithoutRecentScansNothingIsSelected)
{
    modelServices.documents.urls.clear();
    show();
    home->scanSelected();
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerChoiceTest, SelectingAVolumeDeselectsTheRecentScan)
{
    show();
    click(2);
    EXPECT_TRUE(item(2).selected());
    EXPECT_TRUE(table().selectionModel()->selectedIndexes().isEmpty());
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///mnt/data/"));
}

TEST_F(HomeViewControllerChoiceTest, SelectingARecentScanDeselectsTheGrid)
{
    show();
    click(2);
    clickRecent(1);
    EXPECT_FALSE(item(2).selected());
    EXPECT_EQ(grid().selectedView(), nullptr);
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/two/"));
}

TEST_F(HomeViewControllerChoiceTest, WhatIsScannedIsLogged)
{
    show();
    click(5);
    testing::internal::CaptureStderr();
    QTest::mouseClick(&home->scanButton(), Qt::LeftButton);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "scanning file:///home/eve/Music/\n");
}

TEST_F(HomeViewControllerChoiceTest, ALocationIsScanned)
{
    show();
    click(5);
    QTest::mouseClick(&home->scanButton(), Qt::LeftButton);
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/Music/"));
}

TEST_F(HomeViewControllerChoiceTest, ADoubleClickInTheGridScans)
{
    show();
    click(1);
    QTest::mouseDClick(&grid(), Qt::LeftButton, {}, centerOf(1));
    EXPECT_THAT(scanned, ElementsAre("file:///"));
}

TEST_F(HomeViewControllerChoiceTest, WhatWasDoubleClickedIsShownAsSelected)
{
    show();
    click(1);
    QTest::mouseDClick(&grid(), Qt::LeftButton, {}, centerOf(1));
    EXPECT_TRUE(item(1).selected());
    EXPECT_EQ(grid().selectedView(), &item(1));
}

TEST_F(HomeViewControllerChoiceTest, ADoubleClickOnARecentScanScans)
{
    show();
    clickRecent(1);
    const QModelIndex index = table().model()->index(1, 0);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(index).center());
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/two/"));
}

TEST_F(HomeViewControllerChoiceTest, ReturnScans)
{
    show();
    home->takeFocus();
    ASSERT_TRUE(test::becomesActive(home->view()));
    QTest::keyClick(&table(), Qt::Key_Return);
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerChoiceTest, ReturnPressesTheButtonThatHasTheFocus)
{
    show();
    ASSERT_TRUE(test::becomesActive(home->view()));
    const QSignalSpy asked(home.get(), &HomeViewController::openFolder);
    home->openButton().setFocus();
    QTest::keyClick(&home->openButton(), Qt::Key_Return);
    EXPECT_EQ(asked.size(), 1);
    home->clearRecentsButton().setFocus();
    QTest::keyClick(&home->clearRecentsButton(), Qt::Key_Enter);
    EXPECT_THAT(model->recents().recentsList(), IsEmpty());
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerChoiceTest, ReturnOnTheScanButtonScansOnce)
{
    show();
    ASSERT_TRUE(test::becomesActive(home->view()));
    home->scanButton().setFocus();
    QTest::keyClick(&home->scanButton(), Qt::Key_Return);
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

TEST_F(HomeViewControllerChoiceTest, ReturnGoesThroughNoSheet)
{
    show();
    home->takeFocus();
    ASSERT_TRUE(test::becomesActive(home->view()));
    QDialog sheet(&home->view());
    sheet.setWindowModality(Qt::WindowModal);
    sheet.show();
    // As window managers do that give a blocked window the keyboard.
    QApplication::setActiveWindow(&home->view());
    table().setFocus();
    QTest::keyClick(home->view().windowHandle(), Qt::Key_Return);
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerChoiceTest, ARightDoubleClickStartsNothing)
{
    show();
    const QPoint row = table().visualRect(table().model()->index(1, 0)).center();
    QTest::mouseDClick(table().viewport(), Qt::RightButton, {}, row);
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerChoiceTest, TheFirstArrowInTheListTakesItsFirstRow)
{
    show();
    clickRecent(1);
    click(2);
    table().setFocus();
    QTest::keyClick(&table(), Qt::Key_Down);
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

} // namespace
} // namespace tessera
