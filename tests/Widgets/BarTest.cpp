// SPDX-License-Identifier: MIT
#include "Widgets/Bar.h"

#include "Widgets/ColorHelper.h"
#include "support/ParameterNames.h"

#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace tessera {

namespace {

constexpr QSize kSize{40, 12};
constexpr double kMiddle = 6;
constexpr QRgb kBackground = 0xFFFF00FF;
constexpr QRgb kOutline = 0xFF858C85;
constexpr double kFineScale = 16;

/// How far along the gradient of a bar of 12 points a pixel's middle lies.
double gradientShare(double y)
{
    return y / 11;
}

QRgb blend(QRgb top, QRgb bottom, double share)
{
    const auto channel = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return qRgb(
        channel(qRed(top), qRed(bottom)),
        channel(qGreen(top), qGreen(bottom)),
        channel(qBlue(top), qBlue(bottom)));
}

QRgb groove(double y)
{
    return blend(0xFFB1B1B1, 0xFFE1E1E1, gradientShare(y));
}

QRgb greenFill(double y)
{
    return blend(0xFF84E16D, 0xFF3F9834, gradientShare(y));
}

/// Gradients come from a table of colours, which may be a step or two away, and the outline's sides
/// begin to bend within a point.
testing::AssertionResult isAbout(QRgb found, QRgb expected)
{
    constexpr int kSteps = 2;
    const bool close = std::abs(qRed(found) - qRed(expected)) <= kSteps
        && std::abs(qGreen(found) - qGreen(expected)) <= kSteps
        && std::abs(qBlue(found) - qBlue(expected)) <= kSteps;
    return close ? testing::AssertionSuccess()
                 : testing::AssertionFailure() << std::hex << found << " instead of " << expected;
}

/// What a bar looks like on a background of its own colour.
class Picture {
public:
    explicit Picture(Bar& bar, double scale = 1)
        : m_scale(scale)
        , m_image((QSizeF(kSize) * scale).toSize(), QImage::Format_RGB32)
    {
        bar.resize(kSize);
        m_image.setDevicePixelRatio(scale);
        m_image.fill(kBackground);
        bar.render(&m_image, QPoint(), QRegion(), QWidget::DrawChildren);
    }

    /// The pixel that holds the point.
    QRgb at(double x, double y) const
    {
        return m_image.pixel(static_cast<int>(x * m_scale), static_cast<int>(y * m_scale));
    }

    const QImage& image() const { return m_image; }

private:
    double m_scale;
    QImage m_image;
};

class BarAtScale : public testing::TestWithParam<double> {
protected:
    Picture picture() { return Picture(bar, scale); }

    /// The middle of the pixel that begins at the point.
    double middle(double point) const { return point + 0.5 / scale; }

    Bar bar;
    double scale = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Scales, BarAtScale, testing::Values(1.0, 2.0), test::kNameOfScale);

} // namespace

TEST_P(BarAtScale, TheOutlineIsOnePointWideOnEverySide)
{
    const Picture shown = picture();
    const double justInside = 1 / scale;

    for (const double within : {0.0, 1 - justInside}) {
        EXPECT_EQ(shown.at(20, within), kOutline);
        EXPECT_EQ(shown.at(20, 12 - justInside - within), kOutline);
        EXPECT_TRUE(isAbout(shown.at(within, kMiddle), kOutline));
        EXPECT_TRUE(isAbout(shown.at(40 - justInside - within, kMiddle), kOutline));
    }
}

TEST_P(BarAtScale, TheGrooveIsDarkerAtTheTop)
{
    const Picture shown = picture();

    EXPECT_TRUE(isAbout(shown.at(20, 1), groove(middle(1))));
    EXPECT_TRUE(isAbout(shown.at(20, 5), groove(middle(5))));
    EXPECT_TRUE(isAbout(shown.at(20, 10), groove(middle(10))));
}

TEST_P(BarAtScale, AnEmptyBarShowsTheGrooveAlone)
{
    const Picture shown = picture();

    EXPECT_TRUE(isAbout(shown.at(1, kMiddle), groove(middle(kMiddle))));
    EXPECT_TRUE(isAbout(shown.at(38, kMiddle), groove(middle(kMiddle))));
}

TEST_P(BarAtScale, AFullBarIsFilledUpToOnePointFromEachEnd)
{
    bar.setPercentFilled(1.0);
    const Picture shown = picture();
    const double lastInside = 39 - 1 / scale;

    EXPECT_TRUE(isAbout(shown.at(0, kMiddle), kOutline));
    EXPECT_TRUE(isAbout(shown.at(1.5, kMiddle), greenFill(middle(kMiddle))));
    EXPECT_TRUE(isAbout(shown.at(lastInside - 0.5, kMiddle), greenFill(middle(kMiddle))));
    EXPECT_TRUE(isAbout(shown.at(39, kMiddle), kOutline));
}

TEST_P(BarAtScale, AHalfFullBarEndsItsFillInTheMiddleOfTheGroove)
{
    bar.setPercentFilled(0.5);
    const Picture shown = picture();

    EXPECT_TRUE(isAbout(shown.at(19, kMiddle), greenFill(middle(kMiddle))));
    EXPECT_TRUE(isAbout(shown.at(20, kMiddle), groove(middle(kMiddle))));
}

TEST_P(BarAtScale, TheFillIsLighterAtTheTop)
{
    bar.setPercentFilled(1.0);
    const Picture shown = picture();

    EXPECT_TRUE(isAbout(shown.at(20, 1), greenFill(middle(1))));
    EXPECT_TRUE(isAbout(shown.at(20, 10), greenFill(middle(10))));
}

TEST_P(BarAtScale, MoreThanAllIsDrawnBeyondTheGroove)
{
    bar.setPercentFilled(1.5);
    const Picture shown = picture();
    const double lastPixel = 40 - 1 / scale;

    EXPECT_TRUE(isAbout(shown.at(lastPixel, kMiddle), greenFill(middle(kMiddle))));
    EXPECT_TRUE(isAbout(shown.at(lastPixel, 2), greenFill(middle(2))));
}

TEST(Bar, ItsOutlineRunsAlongARadiusOfFive)
{
    Bar bar;
    const Picture shown(bar, kFineScale);
    // Where the outer edge of the outline, half a point outside, crosses the diagonal.
    const double crossing = 0.5 + 5 - 5.5 / std::sqrt(2.0);

    EXPECT_EQ(shown.at(crossing - 0.1, crossing - 0.1), kBackground);
    EXPECT_EQ(shown.at(crossing + 0.1, crossing + 0.1), kOutline);
}

TEST(Bar, ItsFillHasARadiusOfFour)
{
    Bar bar;
    bar.setPercentFilled(1.0);
    const Picture shown(bar, kFineScale);
    const double crossing = 1 + 4 - 4 / std::sqrt(2.0);

    EXPECT_FALSE(isAbout(shown.at(crossing - 0.1, crossing - 0.1), greenFill(crossing - 0.1)));
    EXPECT_TRUE(isAbout(shown.at(crossing + 0.1, crossing + 0.1), greenFill(crossing + 0.1)));
}

TEST(Bar, OnADarkWindowItsGrooveIsDarkAndItsFillTheSame)
{
    Bar bar;
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    bar.setPalette(dark);
    bar.setPercentFilled(0.5);
    const Picture shown(bar);

    EXPECT_LT(QColor(shown.at(30, 2)).lightness(), 80);
    EXPECT_LT(QColor(shown.at(30, 10)).lightness(), 80);
    EXPECT_GT(QColor(shown.at(30, 0)).lightness(), 100);
    EXPECT_TRUE(isAbout(shown.at(10, kMiddle), greenFill(kMiddle + 0.5)));
}

TEST(Bar, ItsOwnColoursReplaceTheGreen)
{
    Bar bar;
    bar.setLightColor(colorWithHex(0x6485F4));
    bar.setDarkColor(colorWithHex(0x2B5CF1));
    bar.setPercentFilled(1.0);
    const Picture shown(bar);

    EXPECT_TRUE(isAbout(shown.at(20, 1), blend(0xFF6485F4, 0xFF2B5CF1, gradientShare(1.5))));
    EXPECT_TRUE(isAbout(shown.at(20, 10), blend(0xFF6485F4, 0xFF2B5CF1, gradientShare(10.5))));
}

TEST(Bar, ItsColoursArePaintedOpaque)
{
    Bar bar;
    bar.setLightColor(QColor(10, 20, 30, 40));
    bar.setDarkColor(QColor(10, 20, 30, 40));
    bar.setPercentFilled(1.0);

    EXPECT_EQ(Picture(bar).at(20, kMiddle), qRgb(10, 20, 30));
}

TEST(Bar, IsEmptyAndGreenAtFirst)
{
    const Bar bar;

    EXPECT_EQ(bar.percentFilled(), 0.0);
    EXPECT_FALSE(bar.lightColor().isValid());
    EXPECT_FALSE(bar.darkColor().isValid());
}

TEST(Bar, AShareThatIsNoNumberShowsTheGrooveAlone)
{
    Bar empty;
    Bar unknown;
    unknown.setPercentFilled(std::numeric_limits<double>::quiet_NaN());

    EXPECT_EQ(Picture(unknown).image(), Picture(empty).image());
}

} // namespace tessera
