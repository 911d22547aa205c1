// SPDX-License-Identifier: MIT
#include "Shell/FolderCollectionView.h"
#include "Shell/NonBlockingTextField.h"
#include "Shell/ProgramColors.h"
#include "Shell/VolumeCollectionView.h"
#include "TreeView/Bar.h"
#include "TreeView/ColorHelper.h"
#include "Utils/Util.h"
#include "support/becomesActive.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace tessera {
namespace {

QImage picture(QWidget& view)
{
    QImage image(view.size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    view.render(&image, QPoint(), QRegion(), {});
    return image;
}

class HomeItemViewsTest : public testing::Test {
protected:
    HomeItemViewsTest()
    {
        volume->setPalette(lightProgramColors());
        folder->setPalette(lightProgramColors());
        volume->setUrl(Url("/mnt/data", true), QIcon());
        folder->setUrl(Url("/home/eve/Music", true), QIcon(), QStringLiteral("Music"));
    }

    std::unique_ptr<VolumeCollectionView> volume
        = Util::loadViewFromNib<VolumeCollectionView>("VolumeCollectionView");
    std::unique_ptr<FolderCollectionView> folder
        = Util::loadViewFromNib<FolderCollectionView>("FolderCollectionView");
};

TEST_F(HomeItemViewsTest, AVolumeIsCalledAsItsFolder)
{
    EXPECT_EQ(volume->nameLabel().text(), QStringLiteral("data"));
    EXPECT_EQ(volume->toolTip(), QStringLiteral("data"));
    volume->setUrl(Url("/", true), QIcon());
    EXPECT_EQ(volume->nameLabel().text(), QStringLiteral("File System"));
}

TEST_F(HomeItemViewsTest, NamesThatLookLikeMarkupAreShownAsTheyAre)
{
    volume->setUrl(Url("/mnt/<b>disk", true), QIcon());
    EXPECT_TRUE(volume->toolTip().contains(QStringLiteral("&lt;b&gt;disk")));
}

TEST_F(HomeItemViewsTest, TheBarIsFilledByWhatIsNotFree)
{
    volume->setFileSystemSizes(FileSystemSizes{3000000000, 1000000000});
    EXPECT_EQ(
        volume->spaceBar().percentFilled(),
        static_cast<double>(static_cast<float>(1.0 - 1.0 / 3.0)));
    EXPECT_EQ(volume->spaceLabel().text(), QStringLiteral("Free Space: 1.0 GB"));
}

TEST_F(HomeItemViewsTest, WithoutSizesTheBarIsEmpty)
{
    volume->setFileSystemSizes(std::nullopt);
    EXPECT_EQ(volume->spaceBar().percentFilled(), 0);
    EXPECT_EQ(volume->spaceLabel().text(), QStringLiteral("Free Space: 0 B"));
}

TEST_F(HomeItemViewsTest, AVolumesTextsTellWhetherItIsSelected)
{
    volume->setSelected(true);
    EXPECT_EQ(volume->nameLabel().textColor(), QColor(Qt::white));
    EXPECT_EQ(volume->spaceLabel().textColor(), colorWithHex(0xC3C7D1));
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

TEST_F(HomeItemViewsTest, ADisabledVolumeBecomesPaleAndStaysSo)
{
    volume->setDisabled(true);
    EXPECT_TRUE(volume->disabled());
    EXPECT_DOUBLE_EQ(volume->alphaValue(), 0.7);
    volume->setDisabled(false);
    EXPECT_FALSE(volume->disabled());
    EXPECT_DOUBLE_EQ(volume->alphaValue(), 0.7);
}

TEST_F(HomeItemViewsTest, ADisabledFolderIsPaleUntilItIsEnabled)
{
    folder->setDisabled(true);
    EXPECT_DOUBLE_EQ(folder->alphaValue(), 0.6);
    folder->setDisabled(false);
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
    EXPECT_EQ(image.pixelColor(50, 101), selection);
    EXPECT_EQ(image.pixelColor(50, 102), QColor(Qt::magenta));
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
    EXPECT_EQ(picture(*folder).pixelColor(50, 4), colorWithHex(0x3875D7));
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
    EXPECT_EQ(image.pixelColor(50, 2), colorWithHex(0x3875D7));
    EXPECT_NE(image.pixelColor(50, 6), colorWithHex(0x3875D7));
}

TEST(NonBlockingTextField, NeverTakesTheMouse)
{
    EXPECT_TRUE(NonBlockingTextField().testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST(NonBlockingTextField, MayBeNarrowerThanItsText)
{
    NonBlockingTextField field;
    field.setText(QStringLiteral("a rather long name"));
    EXPECT_EQ(field.minimumSizeHint().width(), 0);
}

} // namespace
} // namespace tessera
