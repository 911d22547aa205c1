// SPDX-License-Identifier: MIT
#include "Widgets/DesktopFont.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tessera {
namespace {

/// A desktop with letters of so many pixels.
class DesktopFont : public testing::Test {
protected:
    ~DesktopFont() override { QApplication::setFont(m_before); }

    static void haveFont(int pixels)
    {
        QFont font = QApplication::font();
        font.setPixelSize(pixels);
        QApplication::setFont(font);
    }

private:
    QFont m_before = QApplication::font();
};

TEST_F(DesktopFont, AtTheUsualOneNothingGrows)
{
    haveFont(13);
    EXPECT_EQ(withDesktopFont(100), 100);
    EXPECT_EQ(widthWithDesktopFont(100), 100);
}

TEST_F(DesktopFont, ASmallerOneMakesNothingSmaller)
{
    haveFont(9);
    EXPECT_EQ(withDesktopFont(100), 100);
    EXPECT_EQ(widthWithDesktopFont(100), 100);
}

TEST_F(DesktopFont, WidthsGrowHalfAsMuchAsHeights)
{
    haveFont(18);
    EXPECT_EQ(withDesktopFont(130), 180);
    EXPECT_EQ(widthWithDesktopFont(130), 155);
}

TEST_F(DesktopFont, WidthsGrowByFourInTenAtMost)
{
    haveFont(39);
    EXPECT_EQ(withDesktopFont(100), 300);
    EXPECT_EQ(widthWithDesktopFont(100), 140);
}

} // namespace
} // namespace tessera
