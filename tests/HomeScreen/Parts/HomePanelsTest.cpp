// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/HoverButton.h"
#include "HomeScreen/Recents/RoundHeaderView.h"
#include "Widgets/ProgramColors.h"

#include <QApplication>
#include <QEnterEvent>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>

namespace tessera {
namespace {

QImage picture(QWidget& view, const QSize& size)
{
    view.setPalette(lightProgramColors());
    view.resize(size);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    view.render(&image, QPoint(), QRegion(), {});
    return image;
}

/// Gradients come from a table of colours, which may be a step or two away.
testing::AssertionResult isAbout(const QColor& found, const QColor& expected)
{
    constexpr int kSteps = 3;
    const bool isClose = std::abs(found.red() - expected.red()) <= kSteps
        && std::abs(found.green() - expected.green()) <= kSteps
        && std::abs(found.blue() - expected.blue()) <= kSteps;
    return isClose ? testing::AssertionSuccess()
                   : testing::AssertionFailure()
            << found.name().toStdString() << " instead of " << expected.name().toStdString();
}

TEST(RoundHeaderView, FillsItselfFromLightToDarkWithinAnOutline)
{
    RoundHeaderView view;
    const QImage image = picture(view, {100, 40});
    EXPECT_TRUE(isAbout(image.pixelColor(50, 1), QColor(209, 209, 209)));
    EXPECT_TRUE(isAbout(image.pixelColor(50, 20), QColor(185, 185, 190)));
    EXPECT_TRUE(isAbout(image.pixelColor(50, 38), QColor(161, 161, 171)));
    EXPECT_TRUE(isAbout(image.pixelColor(50, 0), QColor(155, 155, 155)));
    EXPECT_TRUE(isAbout(image.pixelColor(99, 20), QColor(155, 155, 155)));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::magenta));
}

TEST(RoundHeaderView, ItsCornersHaveARadiusOfEight)
{
    RoundHeaderView view;
    const QImage image = picture(view, {100, 40});
    // The arc crosses the diagonal 8 - 8 / sqrt(2), about 2.3, from the corner.
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::magenta));
    EXPECT_NE(image.pixelColor(2, 2), QColor(Qt::magenta));
    EXPECT_TRUE(isAbout(image.pixelColor(4, 4), QColor(205, 205, 206)));
}

class HoverButtonTest : public testing::Test {
protected:
    QImage shown() { return picture(button, {290, 60}); }

    HoverButton button;
};

TEST_F(HoverButtonTest, DrawsItsBezelFromLightToDarkWithinAnOutline)
{
    const QImage image = shown();
    EXPECT_TRUE(isAbout(image.pixelColor(200, 1), QColor(248, 248, 248)));
    EXPECT_TRUE(isAbout(image.pixelColor(200, 58), QColor(230, 230, 230)));
    EXPECT_TRUE(isAbout(image.pixelColor(200, 0), QColor(155, 155, 155)));
    EXPECT_TRUE(isAbout(image.pixelColor(289, 30), QColor(155, 155, 155)));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::magenta));
}

TEST_F(HoverButtonTest, ItsCornersHaveARadiusOfFive)
{
    const QImage image = shown();
    // The arc crosses the diagonal 5 - 5 / sqrt(2), about 1.5, from the corner.
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::magenta));
    EXPECT_NE(image.pixelColor(1, 1), QColor(Qt::magenta));
    EXPECT_GT(image.pixelColor(2, 2).green(), 150);
    EXPECT_TRUE(isAbout(image.pixelColor(3, 3), QColor(248, 248, 248)));
}

TEST_F(HoverButtonTest, ItsArrowStandsInAFixedPlaceHoweverLargeItIs)
{
    for (const QSize size : {QSize(290, 60), QSize(400, 60)}) {
        const QImage image = picture(button, size);
        QRect arrow;
        for (int y = 3; y < 57; ++y) {
            for (int x = 200; x < 287; ++x) {
                if (image.pixelColor(x, y).lightness() < 200) {
                    arrow |= QRect(x, y, 1, 1);
                }
            }
        }
        // The disc leaves half a point free all around.
        EXPECT_EQ(arrow, QRect(246, 20, 20, 20));
    }
}

TEST_F(HoverButtonTest, HidesItsBezelUntilTheMouseIsInside)
{
    button.setShowsBorderOnlyWhileMouseInside(true);
    EXPECT_EQ(shown().pixelColor(200, 50), QColor(Qt::magenta));
    button.setAttribute(Qt::WA_UnderMouse);
    EXPECT_NE(shown().pixelColor(200, 50), QColor(Qt::magenta));
}

TEST_F(HoverButtonTest, ADisabledOneHidesItsBezelFromTheMouseToo)
{
    button.setShowsBorderOnlyWhileMouseInside(true);
    button.setAttribute(Qt::WA_UnderMouse);
    button.setEnabled(false);
    EXPECT_EQ(shown().pixelColor(200, 50), QColor(Qt::magenta));
}

} // namespace
} // namespace tessera
