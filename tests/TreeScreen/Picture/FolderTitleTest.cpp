// SPDX-License-Identifier: MIT
#include "Model/Defaults.h"
#include "Model/Folder.h"
#include "Model/UserDefaults.h"
#include "TreeScreen/Picture/FolderTitles.h"
#include "TreeScreen/Picture/Styles.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/LevelPicture.h"

#include <QFontMetricsF>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace tessera {
namespace {

constexpr double kGap = 6;
constexpr double kTextLeft = 20; ///< of a box at 10 on the top level
constexpr double kTextMargins = 15; ///< of a box on the top level

/// Where two pictures differ, or what a picture has on its ground; the ends are exclusive.
struct Extent {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

template <typename IsInk>
Extent extentOf(const QImage& image, IsInk isInk)
{
    Extent found{image.width(), image.height(), 0, 0};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isInk(x, y)) {
                found
                    = {std::min(found.left, x),
                       std::min(found.top, y),
                       std::max(found.right, x + 1),
                       std::max(found.bottom, y + 1)};
            }
        }
    }
    return found;
}

/// Titles at one device pixel a point and at two. How wide a text is QPainter is asked, which knows
/// nothing of boxes.
class FolderTitle : public testing::TestWithParam<double> {
protected:
    FolderTitle()
    {
        m_font.setPixelSize(static_cast<int>(10 * GetParam()));
        m_font.setHintingPreference(QFont::PreferFullHinting);
        node->setHue(3);
        node->setTotalAllocation(400'000);
    }

    /// In points.
    double widthOf(const QString& text) const
    {
        return std::ceil(QFontMetricsF(m_font).horizontalAdvance(text)) / GetParam();
    }

    /// Of the text's ink, in device pixels from its start and its baseline.
    Extent inkOf(const QString& text) const
    {
        constexpr int kOrigin = 100;
        QImage image(4 * kOrigin, 2 * kOrigin, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(m_font);
        painter.drawText(kOrigin, kOrigin, text);
        painter.end();
        const Extent ink
            = extentOf(image, [&image](int x, int y) { return image.pixel(x, y) != 0xFFFFFFFF; });
        return {ink.left - kOrigin, ink.top - kOrigin, ink.right - kOrigin, ink.bottom - kOrigin};
    }

    QImage picture(FolderTitles titles, double boxWidth = 200)
    {
        test::LevelPicture level(0, GetParam());
        level.add(node.get(), {10, 10, boxWidth, 60});
        level.paint(titles);
        return level.image();
    }

    /// What the size adds to the picture of names alone.
    Extent sizeIn(double boxWidth = 200)
    {
        const QImage names = picture(FolderTitles::Names, boxWidth);
        const QImage sizes = picture(FolderTitles::NamesAndSizes, boxWidth);
        return extentOf(
            sizes, [&](int x, int y) { return sizes.pixel(x, y) != names.pixel(x, y); });
    }

    bool hasSize(double boxWidth)
    {
        return picture(FolderTitles::NamesAndSizes, boxWidth)
            != picture(FolderTitles::Names, boxWidth);
    }

    const QString kName = QStringLiteral("docs");
    const QString kSize = QStringLiteral("400 KB");
    QFont m_font = Styles::textAttributes().font;
    std::unique_ptr<Folder> node = makeNode<Folder>("docs");
};

INSTANTIATE_TEST_SUITE_P(Scales, FolderTitle, testing::Values(1.0, 2.0));

TEST_P(FolderTitle, TheSizeStandsSixPointsBehindTheName)
{
    const double begin = (kTextLeft + widthOf(kName) + kGap) * GetParam();
    const Extent size = sizeIn();
    EXPECT_NEAR(size.left, begin + inkOf(kSize).left, 1);
    EXPECT_NEAR(size.right, begin + inkOf(kSize).right, 1);
}

TEST_P(FolderTitle, TheSizeStandsOnTheLineOfTheName)
{
    const double baseline = 19 * GetParam() + std::ceil(QFontMetricsF(m_font).ascent());
    EXPECT_NEAR(sizeIn().bottom, baseline + inkOf(kSize).bottom, 1);
    EXPECT_NEAR(sizeIn().top, baseline + inkOf(kSize).top, 1);
}

TEST_P(FolderTitle, TheSizeNeedsRoomForAllOfIt)
{
    const double fitting = widthOf(kName) + kGap + widthOf(kSize) + kTextMargins;
    EXPECT_TRUE(hasSize(fitting));
    EXPECT_FALSE(hasSize(fitting - 1));
}

TEST_P(FolderTitle, ANameThatIsCutHasNoSizeBehindIt)
{
    node = makeNode<Folder>("a long name of a folder");
    node->setTotalAllocation(1);
    const double fitting = widthOf(QStringLiteral("a long name of a folder")) + kTextMargins;
    EXPECT_FALSE(hasSize(fitting - 1));
    EXPECT_FALSE(hasSize(fitting / 2));
}

/// It is cut at its left, where nothing stands behind it.
TEST_P(FolderTitle, NorHasOneThatRunsToTheLeft)
{
    const QString name = QString(QChar(0x05E9)).repeated(20);
    node = makeNode<Folder>(name.toStdString());
    node->setTotalAllocation(1);
    for (double boxWidth = 60; boxWidth < widthOf(name); ++boxWidth) {
        EXPECT_FALSE(hasSize(boxWidth)) << boxWidth;
    }
    EXPECT_TRUE(hasSize(widthOf(name) + 80));
}

TEST_P(FolderTitle, TheSizeIsInAQuieterInkThanTheName)
{
    const auto darkestIn = [](const QImage& image, const Extent& part) {
        int darkest = 255;
        for (int y = part.top; y < part.bottom; ++y) {
            for (int x = part.left; x < part.right; ++x) {
                darkest = std::min(darkest, qGray(image.pixel(x, y)));
            }
        }
        return darkest;
    };
    const QImage image = picture(FolderTitles::NamesAndSizes);
    const Extent size = sizeIn();
    const Extent name{
        static_cast<int>(kTextLeft * GetParam()), size.top, size.left - 1, size.bottom};
    EXPECT_GT(darkestIn(image, size), darkestIn(image, name) + 20);
}

TEST_P(FolderTitle, ASelectedFolderHasItsSizeAtTheSamePlace)
{
    const Extent before = sizeIn();
    node->setSelected(true);
    EXPECT_NEAR(sizeIn().left, before.left, 1);
    EXPECT_NEAR(sizeIn().right, before.right, 1);
}

TEST(FolderTitles, HaveSizesUnlessTheUserWantsNone)
{
    test::FakeUserDefaults defaults;
    registerDefaults(defaults);
    EXPECT_EQ(folderTitles(defaults), FolderTitles::NamesAndSizes);
    defaults.setBoolean(kFolderSizesKey, false);
    EXPECT_EQ(folderTitles(defaults), FolderTitles::Names);
}

} // namespace
} // namespace tessera
