// SPDX-License-Identifier: MIT
#include "HomeScreen/Grid/CollectionHeaderView.h"
#include "HomeScreen/Parts/HoverButton.h"
#include "HomeScreen/Recents/RecentsTableCell.h"
#include "HomeViewControllerFixture.h"
#include "Widgets/Bar.h"
#include "Widgets/PassiveLabel.h"

#include <QApplication>
#include <QImage>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

int darkest(const QImage& image)
{
    int least = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            least = std::min(least, image.pixelColor(x, y).lightness());
        }
    }
    return least;
}

class HomeViewControllerTest : public test::HomeViewControllerFixture { };

TEST_F(HomeViewControllerTest, ListsTheVolumesInTheSystemsOrder)
{
    show();
    EXPECT_THAT(home->volumes(), testing::ElementsAreArray(volumes.list));
    EXPECT_EQ(item(1).url(), Url("/", true));
    EXPECT_EQ(item(2).url(), Url("/mnt/data", true));
}

TEST_F(HomeViewControllerTest, ListsOnlyTheLocationsThatThereAre)
{
    show();
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve", "/home/eve/Music", "/home/eve/Public"));
    resourceValues->directories.erase("/home/eve/Public");
    show();
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve", "/home/eve/Music"));
}

TEST_F(HomeViewControllerTest, AHomeThatIsAVolumeIsCalledByThePathThatScansOfItHave)
{
    account.home = "/link";
    homeDirectory = "/srv/eve";
    volumes.list = {{Url("/srv/eve", true), MountedVolume::Kind::Disk}};
    show();
    const auto& cell = dynamic_cast<RecentsTableCell&>(*table().itemDelegate());
    EXPECT_EQ(cell.title({"/srv/eve", 0, {}}), QStringLiteral("/srv/eve"));
}

TEST_F(HomeViewControllerTest, AnEquivalentTakesThePlaceOfAMissingLocation)
{
    modelServices.folders.equivalents
        = {{LocationKind::Movies, "/Videos"}, {LocationKind::Music, "/Other Music"}};
    resourceValues->directories
        = {"/home/eve", "/home/eve/Videos", "/home/eve/Music", "/home/eve/Other Music"};
    show();
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve", "/home/eve/Videos", "/home/eve/Music"));
}

TEST_F(HomeViewControllerTest, RunByRootItHasNoLocationsButTheirHeader)
{
    isRunningAsRoot = true;
    show();
    EXPECT_THAT(home->locations(), IsEmpty());
    const auto headers = grid().findChildren<CollectionHeaderView*>();
    ASSERT_EQ(headers.size(), 2);
    EXPECT_EQ(headers.at(0)->nameLabel().text(), QStringLiteral("Disks"));
    EXPECT_EQ(headers.at(1)->nameLabel().text(), QStringLiteral("Locations"));
}

TEST_F(HomeViewControllerTest, SectionsHaveTheirLeastAndGreatestWidths)
{
    show();
    const auto& sections = grid().sections();
    EXPECT_EQ(sections.at(0).minimumWidth, 200.0F);
    EXPECT_EQ(sections.at(0).maximumWidth, 400.0F);
    EXPECT_EQ(sections.at(1).minimumWidth, 100.0F);
    EXPECT_EQ(sections.at(1).maximumWidth, 200.0F);
}

TEST_F(HomeViewControllerTest, ScanIsEnabledWhileSomethingIsSelected)
{
    modelServices.documents.urls.clear();
    show();
    EXPECT_FALSE(home->scanButton().isEnabled());
    click(2);
    EXPECT_TRUE(home->scanButton().isEnabled());
    home->setEnabled(false);
    EXPECT_FALSE(home->scanButton().isEnabled());
}

TEST_F(HomeViewControllerTest, ClearIsEnabledWhileThereAreRecentScans)
{
    show();
    EXPECT_TRUE(home->clearRecentsButton().isEnabled());
    home->clearList();
    EXPECT_FALSE(home->clearRecentsButton().isEnabled());
    EXPECT_FALSE(home->scanButton().isEnabled());
    home->setEnabled(false);
    home->setEnabled(true);
    EXPECT_FALSE(home->clearRecentsButton().isEnabled());
    EXPECT_FALSE(home->scanButton().isEnabled());
}

TEST_F(HomeViewControllerTest, TheGridLooksInactiveWhileItIs)
{
    show();
    const QRect part(0, 0, grid().width(), grid().height());
    const QImage usual = home->view().grab(part).toImage();
    home->setEnabled(false);
    const QImage inactive = home->view().grab(part).toImage();
    home->setEnabled(true);
    EXPECT_EQ(home->view().grab(part).toImage(), usual);
    EXPECT_LT(darkest(usual), 20);
    EXPECT_GT(darkest(inactive), 100);
}

TEST_F(HomeViewControllerTest, InALargeFontNothingInTheGridIsCut)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(16);
    QApplication::setFont(large);
    show();
    home->view().resize(760, 400);
    QApplication::processEvents();
    EXPECT_GE(item(1).height(), item(1).minimumSizeHint().height());
    EXPECT_LE(item(1).geometry().right(), grid().width());
    EXPECT_GE(firstVolume().nameLabel().height(), firstVolume().nameLabel().fontMetrics().height());
    EXPECT_GE(
        firstVolume().spaceLabel().height(), firstVolume().spaceLabel().fontMetrics().height());
    EXPECT_GE(
        home->clearRecentsButton().height(), home->clearRecentsButton().minimumSizeHint().height());
    QApplication::setFont(usual);
}

TEST_F(HomeViewControllerTest, ClearingEmptiesTheList)
{
    show();
    QTest::mouseClick(&home->clearRecentsButton(), Qt::LeftButton);
    EXPECT_EQ(table().model()->rowCount(), 0);
    EXPECT_THAT(model->recents().recentsList(), IsEmpty());
    EXPECT_THAT(modelServices.documents.urls, IsEmpty());
}

TEST_F(HomeViewControllerTest, AfterClearingNothingIsSelected)
{
    show();
    home->clearList();
    EXPECT_TRUE(table().selectionModel()->selectedIndexes().isEmpty());
    home->scanSelected();
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerTest, TheOpenButtonAsksForAFolder)
{
    show();
    const QSignalSpy asked(home.get(), &HomeViewController::openFolder);
    QTest::mouseClick(&home->openButton(), Qt::LeftButton);
    EXPECT_EQ(asked.size(), 1);
    EXPECT_TRUE(home->openButton().showsBorderOnlyWhileMouseInside());
}

TEST_F(HomeViewControllerTest, DisabledItHidesItsButtonsAndHearsNothing)
{
    show();
    home->setEnabled(false);
    EXPECT_FALSE(home->enabled());
    EXPECT_TRUE(home->scanButton().isHidden());
    EXPECT_TRUE(home->clearRecentsButton().isHidden());
    EXPECT_FALSE(home->scanButton().isEnabled());
    EXPECT_FALSE(home->clearRecentsButton().isEnabled());
    EXPECT_FALSE(home->openButton().isEnabled());
    EXPECT_FALSE(table().isEnabled());
    EXPECT_FALSE(grid().isInteractive());
}

TEST_F(HomeViewControllerTest, EnabledAgainItShowsItsButtons)
{
    show();
    home->setEnabled(false);
    home->setEnabled(true);
    EXPECT_TRUE(home->scanButton().isVisible());
    EXPECT_TRUE(home->clearRecentsButton().isVisible());
    EXPECT_TRUE(home->scanButton().isEnabled());
    EXPECT_TRUE(home->openButton().isEnabled());
    EXPECT_TRUE(table().isEnabled());
    EXPECT_TRUE(grid().isInteractive());
}

TEST_F(HomeViewControllerTest, TheScreenIsLaidOutInFixedMeasures)
{
    show();
    const QWidget& view = home->view();
    const auto* const bar = view.findChild<QWidget*>(QStringLiteral("scanBar"));
    EXPECT_EQ(bar->geometry(), QRect(0, 660 - 56, 1080, 56));
    const auto* const line = view.findChild<QWidget*>(QStringLiteral("scanBarLine"));
    EXPECT_EQ(line->geometry(), QRect(0, 0, 1080, 1));
    EXPECT_EQ(view.findChild<QWidget*>(QStringLiteral("recentsColumn"))->width(), 300);
    EXPECT_EQ(home->openButton().size(), QSize(290, 60));
    EXPECT_EQ(table().visualRect(table().model()->index(0, 0)).height(), 48);
    EXPECT_EQ(item(1).height(), 72);
    EXPECT_EQ(item(4).height(), 120);
}

} // namespace
} // namespace tessera
