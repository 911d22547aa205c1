// SPDX-License-Identifier: MIT
#include "ScanScreen/DockImage.h"

#include "Widgets/Bar.h"
#include "Widgets/ColorHelper.h"

#include <QImage>
#include <QLabel>
#include <QPalette>

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr QRect kFrame{0, 0, 128, 128};

QImage painted(DockImage& view)
{
    QImage image(view.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    view.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

TEST(DockImage, ThePictureFillsTheFrame)
{
    DockImage view;
    view.setFrame(kFrame);
    EXPECT_EQ(view.imageView().geometry(), kFrame);
    const QImage image = painted(view);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(64, 12).alpha(), 255);
}

TEST(DockImage, TheBarLiesTenPointsAboveTheLowerEdgeSixFromTheSides)
{
    DockImage view;
    view.setFrame(kFrame);
    EXPECT_EQ(view.barView().geometry(), QRect(6, 98, 116, 20));
}

TEST(DockImage, TheBarIsBlue)
{
    const DockImage view;
    EXPECT_EQ(view.barView().lightColor(), colorWithHex(0x6485F4));
    EXPECT_EQ(view.barView().darkColor(), colorWithHex(0x2B5CF1));
}

TEST(DockImage, IsTheSameForDarkWindows)
{
    DockImage view;
    view.setFrame(kFrame);
    const QImage usual = painted(view);
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    view.setPalette(dark);
    EXPECT_EQ(painted(view), usual);
}

TEST(DockImage, HandsTheFractionToTheBarAsItIs)
{
    DockImage view;
    view.setPercent(1.3);
    EXPECT_EQ(view.barView().percentFilled(), 1.3);
}

TEST(DockImage, TheBarFillsFromTheLeft)
{
    DockImage view;
    view.setFrame(kFrame);
    view.setPercent(0.5);
    const QImage image = painted(view);
    EXPECT_GT(image.pixelColor(30, 108).saturation(), 100);
    EXPECT_EQ(image.pixelColor(100, 108).saturation(), 0);
}

} // namespace
} // namespace tessera
