// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerBar.h"

#include "LedgerPanel/LedgerRow.h"

#include <QImage>
#include <QLabel>

#include <gtest/gtest.h>

#include <utility>

namespace tessera {
namespace {

using Kind = LedgerLine::Kind;

constexpr int kMiddle = 7;

QImage pictureOf(std::vector<LedgerLine> lines, double scale = 1)
{
    LedgerBar bar;
    bar.resize(100, 14);
    bar.setLines(std::move(lines));
    QImage image(QSize(100, 14) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    bar.render(&image);
    return image;
}

QColor colorAt(const QImage& image, int x)
{
    return image.pixelColor(x, kMiddle * static_cast<int>(image.devicePixelRatio()));
}

TEST(LedgerBar, GivesEachLineItsShare)
{
    const QImage image = pictureOf({{Kind::Files, 500}, {Kind::Rest, 250}, {Kind::Available, 250}});
    EXPECT_EQ(colorAt(image, 49), ledgerColor(Kind::Files));
    EXPECT_EQ(colorAt(image, 51), ledgerColor(Kind::Rest));
    EXPECT_EQ(colorAt(image, 74), ledgerColor(Kind::Rest));
    EXPECT_EQ(colorAt(image, 76), QColor(Qt::black));
    EXPECT_EQ(colorAt(image, 97), QColor(Qt::black));
}

TEST(LedgerBar, GivesEachLineItsShareOnAFineScreen)
{
    const QImage image = pictureOf({{Kind::Files, 500}, {Kind::Available, 500}}, 2);
    EXPECT_EQ(colorAt(image, 99), ledgerColor(Kind::Files));
    EXPECT_EQ(colorAt(image, 101), QColor(Qt::black));
}

TEST(LedgerBar, ALineBelowNothingHasNoShare)
{
    const QImage image = pictureOf({{Kind::Files, 500}, {Kind::Rest, -400}, {Kind::Reserved, 500}});
    EXPECT_EQ(colorAt(image, 49), ledgerColor(Kind::Files));
    EXPECT_EQ(colorAt(image, 51), ledgerColor(Kind::Reserved));
}

TEST(LedgerBar, OfNothingIsEmpty)
{
    LedgerBar bar;
    const QImage image = pictureOf({});
    EXPECT_EQ(colorAt(image, 50), bar.palette().color(QPalette::Window));
}

TEST(LedgerBar, LinesWithoutBytesHaveNoColor)
{
    EXPECT_FALSE(ledgerColor(Kind::UnreadableFolders).isValid());
    EXPECT_FALSE(ledgerColor(Kind::CoveredFolders).isValid());
    EXPECT_FALSE(ledgerColor(Kind::FoldersLeftOut).isValid());
}

TEST(LedgerBar, TheColorsBesideTheNamesHaveItsOutline)
{
    LedgerRow row;
    row.setTexts(
        {.name = {}, .number = {}, .exactNumber = {}, .explanation = {}, .color = Qt::black});
    QImage image;
    for (const QLabel* const label : row.findChildren<QLabel*>()) {
        image = label->pixmap().isNull() ? image : label->pixmap().toImage();
    }
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.pixelColor(0, 0), ledgerOutline());
    EXPECT_EQ(image.pixelColor(image.rect().center()), QColor(Qt::black));
}

} // namespace
} // namespace tessera
