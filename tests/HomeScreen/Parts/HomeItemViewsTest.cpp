// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/FolderCollectionView.h"
#include "HomeScreen/Parts/HomeColors.h"
#include "HomeScreen/Parts/VolumeCollectionView.h"
#include "Widgets/Bar.h"
#include "Widgets/ColorHelper.h"
#include "Widgets/PassiveLabel.h"
#include "Widgets/ProgramColors.h"
#include "support/BecomesActive.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace tessera {
namespace {

QImage picture(QWidget& view)
{
    QImage image(view.size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    view.render(&image, QPoint(), QRegion(), {});
    return image;
}

/// Nothing is reserved.
const FileSystemSizes kThirdAvailable{
    .totalBytes = 3000000000, .freeBytes = 1000000000, .availableBytes = 1000000000};

class HomeItemViewsTest : public testing::Test {
protected:
    HomeItemViewsTest()
    {
        volume->setPalette(lightProgramColors());
        folder->setPalette(lightProgramColors());
        volume->setUrl(Url("/mnt/data", true), QIcon());
        folder->setUrl(Url("/home/eve/Music", true), QIcon(), QStringLiteral("Music"));
    }

    std::unique_ptr<VolumeCollectionView> volume = std::make_unique<VolumeCollectionView>();
    std::unique_ptr<FolderCollectionView> folder = std::make_unique<FolderCollectionView>();
};

TEST_F(HomeItemViewsTest, AVolumeIsCalledAsItsFolder)
{
    EXPECT_EQ(volume->nameLabel().text(), QStringLiteral("data"));
    EXPECT_EQ(volume->toolTip().section(QLatin1Char('\n'), 0, 0), QStringLiteral("data"));
    volume->setUrl(Url("/", true), QIcon());
    EXPECT_EQ(volume->nameLabel().text(), QStringLiteral("File System"));
}

TEST_F(HomeItemViewsTest, DisksOfOneNameDifferInTheirTooltips)
{
    volume->setUrl(Url("/media/eve/b/data", true), QIcon());
    EXPECT_EQ(volume->toolTip(), QStringLiteral("data\n/media/eve/b/data"));
    volume->setFileSystemSizes(kThirdAvailable);
    EXPECT_EQ(volume->toolTip(), QStringLiteral("data\n/media/eve/b/data, 3.0 GB"));
}

TEST_F(HomeItemViewsTest, DisksOfOneNameDifferForScreenReaders)
{
    volume->setUrl(Url("/media/eve/b/data", true), QIcon());
    EXPECT_EQ(volume->accessibleName(), QStringLiteral("data"));
    EXPECT_EQ(volume->accessibleDescription(), QStringLiteral("/media/eve/b/data"));
    volume->setFileSystemSizes(kThirdAvailable);
    EXPECT_EQ(
        volume->accessibleDescription(),
        QStringLiteral("Free for you: 1.0 GB; /media/eve/b/data, 3.0 GB"));
}

TEST_F(HomeItemViewsTest, NamesThatLookLikeMarkupAreShownAsTheyAre)
{
    volume->setUrl(Url("/mnt/<b>disk", true), QIcon());
    EXPECT_TRUE(volume->toolTip().contains(QStringLiteral("&lt;b&gt;disk")));
}

TEST_F(HomeItemViewsTest, TheBarIsFilledByWhatIsNotFreeForTheUser)
{
    volume->setFileSystemSizes(kThirdAvailable);
    EXPECT_EQ(
        volume->spaceBar().percentFilled(),
        static_cast<double>(static_cast<float>(1.0 - 1.0 / 3.0)));
    EXPECT_EQ(volume->spaceLabel().text(), QStringLiteral("Free for you: 1.0 GB"));
}

TEST_F(HomeItemViewsTest, WhatIsReservedCountsAsNotFreeAndIsToldInTheTooltip)
{
    FileSystemSizes sizes{
        .totalBytes = 4000000000,
        .freeBytes = 1200000000,
        .availableBytes = 1000000000,
        .reservedBytes = 200000000,
        .type = "ext4"};
    volume->setFileSystemSizes(sizes);
    EXPECT_EQ(volume->spaceBar().percentFilled(), 0.75);
    EXPECT_EQ(volume->spaceLabel().text(), QStringLiteral("Free for you: 1.0 GB"));
    EXPECT_EQ(
        volume->toolTip(),
        QStringLiteral("data\n/mnt/data, 4.0 GB\nFree for you: 1.0 GB\n"
                       "Reserved for the administrator: 200.0 MB"));
    sizes.type = "btrfs";
    volume->setFileSystemSizes(sizes);
    EXPECT_TRUE(
        volume->toolTip().endsWith(QStringLiteral("Reserved by the file system: 200.0 MB")));
}

TEST_F(HomeItemViewsTest, ALocationSaysWhereItIs)
{
    EXPECT_EQ(folder->pathLabel().text(), QStringLiteral("/home/eve/Music"));
    folder->setUrl(
        Url("/home/eve/Music", true), QIcon(), QStringLiteral("Music"), QStringLiteral("~/Music"));
    EXPECT_EQ(folder->pathLabel().text(), QStringLiteral("~/Music"));
    EXPECT_EQ(folder->accessibleDescription(), QStringLiteral("/home/eve/Music"));
}

TEST_F(HomeItemViewsTest, WithoutSizesTheBarIsEmpty)
{
    volume->setFileSystemSizes(std::nullopt);
    EXPECT_EQ(volume->spaceBar().percentFilled(), 0);
    EXPECT_EQ(volume->spaceLabel().text(), QStringLiteral("Free for you: 0 B"));
}

TEST_F(HomeItemViewsTest, AVolumesTextsTellWhetherItIsSelected)
{
    volume->setSelected(true);
    EXPECT_EQ(volume->nameLabel().textColor(), QColor(Qt::white));
    EXPECT_EQ(volume->spaceLabel().textColor(), colorWithHex(0xE6E9F1));
    volume->setSelected(false);
    EXPECT_EQ(volume->nameLabel().textColor(), QColor(Qt::black));
    EXPECT_EQ(volume->spaceLabel().textColor(), colorWithHex(0x555555));
}

TEST_F(HomeItemViewsTest, AFoldersNameTellsWhetherItIsSelected)
{
    folder->setSelected(true);
    EXPECT_EQ(folder->nameLabel().textColor(), QColor(Qt::white));
    folder->setSelected(false);
    EXPECT_EQ(folder->nameLabel().textColor(), QColor(Qt::black));
}

TEST_F(HomeItemViewsTest, NamesAreLightInADarkTheme)
{
    folder->setPalette(darkProgramColors());
    EXPECT_GT(folder->nameLabel().textColor().lightnessF(), 0.9F);
}

TEST_F(HomeItemViewsTest, NamesFollowTheThemeWhileItChanges)
{
    folder->setPalette(darkProgramColors());
    folder->setPalette(lightProgramColors());
    EXPECT_EQ(folder->nameLabel().textColor(), QColor(Qt::black));
}

TEST_F(HomeItemViewsTest, TextsOnThePaleSelectionOfAnotherWindowAreDark)
{
    QWidget window;
    volume->setParent(&window);
    window.show();
    EXPECT_TRUE(test::becomesActive(window));
    volume->setSelected(true);
    EXPECT_EQ(volume->nameLabel().textColor(), QColor(Qt::white));
    QApplication::setActiveWindow(nullptr);
    EXPECT_EQ(volume->nameLabel().textColor(), QColor(Qt::black));
    EXPECT_EQ(volume->spaceLabel().textColor(), colorWithHex(0x555555));
    QApplication::setActiveWindow(&window);
    EXPECT_EQ(volume->nameLabel().textColor(), QColor(Qt::white));
    volume->setParent(nullptr);
}

TEST_F(HomeItemViewsTest, AFolderWithoutANameKeepsItsLabel)
{
    folder->setUrl(Url("/home/eve/Other", true), QIcon(), QString());
    EXPECT_EQ(folder->nameLabel().text(), QStringLiteral("Music"));
    EXPECT_EQ(folder->url(), Url("/home/eve/Other", true));
}

TEST_F(HomeItemViewsTest, AnUnavailableVolumeBecomesPaleAndStaysSo)
{
    volume->setUnavailable(true);
    EXPECT_TRUE(volume->unavailable());
    EXPECT_DOUBLE_EQ(volume->alphaValue(), 0.7);
    volume->setUnavailable(false);
    EXPECT_FALSE(volume->unavailable());
    EXPECT_DOUBLE_EQ(volume->alphaValue(), 0.7);
}

TEST_F(HomeItemViewsTest, AnUnavailableFolderIsPaleUntilItIsAvailable)
{
    folder->setUnavailable(true);
    EXPECT_DOUBLE_EQ(folder->alphaValue(), 0.6);
    folder->setUnavailable(false);
    EXPECT_DOUBLE_EQ(folder->alphaValue(), 1.0);
}

TEST_F(HomeItemViewsTest, NothingIsBehindAnItemThatIsNotSelected)
{
    const QImage image = picture(*folder);
    EXPECT_EQ(image.pixelColor(50, 5), QColor(Qt::magenta));
}

TEST_F(HomeItemViewsTest, TheSelectionIsInsetByTwoPointsWithRoundCorners)
{
    folder->setSelected(true);
    const QImage image = picture(*folder);
    const QColor selection = colorWithHex(0xD4D4D4);
    EXPECT_EQ(image.pixelColor(50, 1), QColor(Qt::magenta));
    EXPECT_EQ(image.pixelColor(50, 2), selection);
    EXPECT_EQ(image.pixelColor(50, folder->height() - 3), selection);
    EXPECT_EQ(image.pixelColor(50, folder->height() - 2), QColor(Qt::magenta));
    EXPECT_EQ(image.pixelColor(1, 50), QColor(Qt::magenta));
    EXPECT_EQ(image.pixelColor(2, 50), selection);
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::magenta));
    // The arc's middle is at (6, 6): it passes through these two and beside the third.
    EXPECT_NE(image.pixelColor(3, 2), QColor(Qt::magenta));
    EXPECT_NE(image.pixelColor(3, 3), QColor(Qt::magenta));
    EXPECT_EQ(image.pixelColor(4, 3), selection);
}

TEST_F(HomeItemViewsTest, TheSelectionIsBlueInTheWindowThatIsWorkedIn)
{
    folder->setSelected(true);
    folder->show();
    ASSERT_TRUE(test::becomesActive(*folder));
    EXPECT_EQ(picture(*folder).pixelColor(50, 4), colorWithHex(0x2E66C4));
}

TEST_F(HomeItemViewsTest, TheSelectionOfADarkThemeIsDark)
{
    folder->setPalette(darkProgramColors());
    folder->setSelected(true);
    EXPECT_LT(picture(*folder).pixelColor(50, 4).lightness(), 90);
}

TEST_F(HomeItemViewsTest, WhatAKeyWouldSelectHasAnOutline)
{
    folder->setNextForKeys(true);
    const QImage image = picture(*folder);
    EXPECT_EQ(image.pixelColor(50, 2), colorWithHex(0x2E66C4));
    EXPECT_NE(image.pixelColor(50, 6), colorWithHex(0x2E66C4));
}

/// By the formula of the Web Content Accessibility Guidelines.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

TEST_F(HomeItemViewsTest, TextsOnTheSelectionAreLegibleInBothThemes)
{
    for (const QPalette& theme : {lightProgramColors(), darkProgramColors()}) {
        volume->setPalette(theme);
        const HomeColors colors(theme);
        volume->setSelected(true);
        EXPECT_GE(contrast(volume->nameLabel().textColor(), colors.selection), 4.5);
        EXPECT_GE(contrast(volume->spaceLabel().textColor(), colors.selection), 4.5);
        EXPECT_GE(contrast(colors.inactiveDetail, colors.inactiveSelection), 4.5);
    }
}

TEST_F(HomeItemViewsTest, AnIconThatIsAsBlueAsTheSelectionCanBeSeenOnIt)
{
    QPixmap blue(64, 64);
    blue.fill(HomeColors(lightProgramColors()).selection);
    folder->setUrl(Url("/home/eve/Music", true), blue, QStringLiteral("Music"));
    folder->setSelected(true);
    folder->resize(100, 104);
    const QImage image = folder->grab().toImage();
    const QRect icon = folder->imageView().geometry();
    EXPECT_EQ(image.pixelColor(icon.center()), HomeColors(lightProgramColors()).selection);
    EXPECT_EQ(image.pixelColor(icon.center().x(), icon.top() - 1), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(icon.right() + 1, icon.center().y()), QColor(Qt::white));
}

TEST_F(HomeItemViewsTest, TextsGrowWithTheDesktopsFont)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(26);
    QApplication::setFont(large);
    const auto item = std::make_unique<VolumeCollectionView>();
    QApplication::setFont(usual);
    EXPECT_EQ(item->nameLabel().font().pixelSize(), 26);
    EXPECT_EQ(item->spaceLabel().font().pixelSize(), 22);
}

TEST_F(HomeItemViewsTest, TextsNeverShrinkWithIt)
{
    const QFont usual = QApplication::font();
    QFont small = usual;
    small.setPixelSize(8);
    QApplication::setFont(small);
    const auto item = std::make_unique<VolumeCollectionView>();
    QApplication::setFont(usual);
    EXPECT_EQ(item->nameLabel().font().pixelSize(), 13);
}

} // namespace
} // namespace tessera
