// SPDX-License-Identifier: MIT
#include "Widgets/ColorHelper.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr float kSixteenBits = 1.0F / 65535;

TEST(ColorHelper, HexIgnoresTheTopByte)
{
    EXPECT_EQ(colorWithHex(0xFF6F9CDA), colorWithHex(0x006F9CDA));
    EXPECT_EQ(colorWithHex(0x006F9CDA), QColor(0x6F, 0x9C, 0xDA, 0xFF));
}

TEST(ColorHelper, RgbaHasItsAlphaInTheLowByte)
{
    const QColor color = colorWithRgba(0xFFFFFF33);
    EXPECT_EQ(color.rgb(), QColor(Qt::white).rgb());
    EXPECT_FLOAT_EQ(color.alphaF(), 0.2F);
}

TEST(ColorHelper, ComponentsAreBytesOver255)
{
    EXPECT_NEAR(colorWithHex(0x123456).redF(), 0x12 / 255.0F, kSixteenBits);
    EXPECT_NEAR(colorWithHex(0x123456).greenF(), 0x34 / 255.0F, kSixteenBits);
    EXPECT_NEAR(colorWithHex(0x123456).blueF(), 0x56 / 255.0F, kSixteenBits);
}

TEST(ColorHelper, AddedBrightnessKeepsHueAndSaturation)
{
    const QColor before = colorWithHex(0x5AA89F);
    const QColor after = withBrightnessAdded(before, 0.2);
    EXPECT_NEAR(after.valueF(), before.valueF() + 0.2F, 2 * kSixteenBits);
    EXPECT_NEAR(after.hsvHueF(), before.hsvHueF(), 1e-3);
    EXPECT_NEAR(after.hsvSaturationF(), before.hsvSaturationF(), 1e-3);
}

TEST(ColorHelper, BrightnessIsClampedToWhatThereIs)
{
    EXPECT_EQ(withBrightnessAdded(Qt::white, 0.2), QColor(Qt::white));
    EXPECT_EQ(withBrightnessAdded(colorWithHex(0x202020), -0.3), QColor(Qt::black));
}

TEST(ColorHelper, BrightnessAddedToBlackGivesGrey)
{
    EXPECT_EQ(withBrightnessAdded(Qt::black, 0.2).rgb(), qRgb(51, 51, 51));
}

TEST(ColorHelper, HighlightBlendsTowardWhite)
{
    const QColor color = highlightWithLevel(QColor::fromRgbF(0.5F, 0.2F, 0), 0.15);
    EXPECT_NEAR(color.redF(), 0.575, kSixteenBits * 2);
    EXPECT_NEAR(color.greenF(), 0.32, kSixteenBits * 2);
    EXPECT_NEAR(color.blueF(), 0.15, kSixteenBits * 2);
}

TEST(ColorHelper, ShadowBlendsTowardBlack)
{
    const QColor color = shadowWithLevel(QColor::fromRgbF(0.5F, 0.2F, 1), 0.6);
    EXPECT_NEAR(color.redF(), 0.2, kSixteenBits * 2);
    EXPECT_NEAR(color.greenF(), 0.08, kSixteenBits * 2);
    EXPECT_NEAR(color.blueF(), 0.4, kSixteenBits * 2);
}

} // namespace
} // namespace tessera
