// SPDX-License-Identifier: MIT
#include "ScanScreen/ApplicationDockTile.h"

#include "Desktop/LauncherProgress.h"
#include "ScanScreen/DockImage.h"

#include <QApplication>
#include <QIcon>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FakeLauncherProgress final : public LauncherProgress {
public:
    void show(double fraction) override
    {
        shown.push_back(fraction);
        isVisible = true;
    }
    void hide() override { isVisible = false; }

    std::vector<double> shown;
    bool isVisible = false;
};

class ApplicationDockTileTest : public testing::Test {
protected:
    ~ApplicationDockTileTest() override { QApplication::setWindowIcon(QIcon()); }

    static QIcon standardIcon()
    {
        QPixmap picture(32, 32);
        picture.fill(Qt::red);
        return picture;
    }

    /// The standard icon must be set before the tile is made.
    const QIcon standard = [] {
        QIcon icon = standardIcon();
        QApplication::setWindowIcon(icon);
        return icon;
    }();
    FakeLauncherProgress launcher;
    ApplicationDockTile tile{launcher};
    DockImage image;
};

TEST_F(ApplicationDockTileTest, TheWindowsIconBecomesThePictureWithTheBar)
{
    tile.setContentView(image);
    image.setPercent(0.5);
    tile.display();
    const QImage icon = QApplication::windowIcon().pixmap(128, 128).toImage();

    EXPECT_EQ(icon.size(), QSize(128, 128));
    EXPECT_GT(icon.pixelColor(30, 108).saturation(), 100);
    EXPECT_EQ(icon.pixelColor(100, 108).saturation(), 0);
}

TEST_F(ApplicationDockTileTest, TheLauncherShowsTheSameFraction)
{
    tile.setContentView(image);
    image.setPercent(0.5);
    tile.display();

    EXPECT_THAT(launcher.shown, ElementsAre(0.5));
}

TEST_F(ApplicationDockTileTest, TheIconIsDrawnAnewForEachHundredthOnly)
{
    tile.setContentView(image);
    for (const double percent : {0.5, 0.503, 0.509, 0.511}) {
        image.setPercent(percent);
        tile.display();
    }

    EXPECT_THAT(launcher.shown, ElementsAre(0.5, 0.511));
}

TEST_F(ApplicationDockTileTest, TheStandardIconComesBackWhenThePictureIsTakenOut)
{
    tile.setContentView(image);
    tile.display();
    EXPECT_NE(QApplication::windowIcon().cacheKey(), standard.cacheKey());
    tile.removeContentView(image);

    EXPECT_EQ(QApplication::windowIcon().cacheKey(), standard.cacheKey());
    EXPECT_FALSE(launcher.isVisible);
}

TEST_F(ApplicationDockTileTest, APictureThatWasReplacedTakesNothingAway)
{
    DockImage other;
    tile.setContentView(image);
    tile.setContentView(other);
    tile.display();
    tile.removeContentView(image);

    EXPECT_TRUE(launcher.isVisible);
}

TEST_F(ApplicationDockTileTest, WithoutAPictureNothingIsDrawn)
{
    tile.display();
    EXPECT_THAT(launcher.shown, IsEmpty());
}

} // namespace
} // namespace tessera
