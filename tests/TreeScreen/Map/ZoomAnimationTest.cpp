// SPDX-License-Identifier: MIT
#include "TreeScreen/Map/ZoomAnimation.h"

#include "Widgets/WaitForFrames.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace tessera {
namespace {

constexpr int kSide = 100;
/// Of the 0.7 seconds, when half of the way is gone.
constexpr double kHalfWay = 0.7 * 0.6575;

/// A picture whose left upper quarter has another colour than the rest.
QImage picture(QRgb quarter, QRgb rest)
{
    QImage image(kSide, kSide, QImage::Format_RGB32);
    image.fill(rest);
    QPainter(&image).fillRect(0, 0, kSide / 2, kSide / 2, QColor(quarter));
    return image;
}

MATCHER_P(IsNearly, expected, "")
{
    constexpr int kTolerance = 2;
    const auto isNear = [](int a, int b) { return std::abs(a - b) <= kTolerance; };
    return isNear(qRed(arg), qRed(expected)) && isNear(qGreen(arg), qGreen(expected))
        && isNear(qBlue(arg), qBlue(expected));
}

class ZoomAnimationTest : public testing::Test {
protected:
    QImage frameAfter(double seconds)
    {
        now = 5 + seconds;
        QImage result(kSide, kSide, QImage::Format_RGB32);
        result.fill(Qt::green);
        QPainter painter(&result);
        animation.paint(painter);
        return result;
    }

    // A zoom into the middle of the view.
    QImage oldPicture = picture(0xFF800000, 0xFFC80000);
    QImage newPicture = picture(0xFF000080, 0xFF0000C8);
    double now = 5;
    ZoomAnimation animation{
        {oldPicture, QTransform(), QTransform(2, 0, 0, 2, -50, -50), 1, 0},
        {newPicture, QTransform(0.5, 0, 0, 0.5, 25, 25), QTransform(), 0, 1},
        [this] { return now; }};
};

TEST_F(ZoomAnimationTest, BeginsWithTheOldPicture)
{
    EXPECT_EQ(frameAfter(0), oldPicture);
}

TEST_F(ZoomAnimationTest, EndsWithTheNewPicture)
{
    EXPECT_EQ(frameAfter(0.7), newPicture);
}

TEST_F(ZoomAnimationTest, KeepsTheNewPictureAfterTheEnd)
{
    EXPECT_EQ(frameAfter(3), newPicture);
}

TEST_F(ZoomAnimationTest, HalfWayTheLowerPictureIsHalfAsBright)
{
    const QImage frame = frameAfter(kHalfWay);
    EXPECT_THAT(frame.pixel(5, 5), IsNearly(0xFF400000));
    EXPECT_THAT(frame.pixel(95, 5), IsNearly(0xFF640000));
    EXPECT_THAT(frame.pixel(95, 95), IsNearly(0xFF640000));
}

TEST_F(ZoomAnimationTest, HalfWayTheUpperPictureHasHalfOfItsSizeToGo)
{
    // From a quarter of each side left and right to none: it lies from 12.5 to 87.5.
    const QImage frame = frameAfter(kHalfWay);
    EXPECT_EQ(qBlue(frame.pixel(11, 60)), 0);
    EXPECT_EQ(qBlue(frame.pixel(60, 11)), 0);
    EXPECT_EQ(qBlue(frame.pixel(89, 60)), 0);
    EXPECT_EQ(qBlue(frame.pixel(60, 89)), 0);
    EXPECT_GT(qBlue(frame.pixel(14, 60)), 0);
    EXPECT_GT(qBlue(frame.pixel(86, 60)), 0);
}

TEST_F(ZoomAnimationTest, HalfWayTheUpperPictureLiesOverTheLowerOne)
{
    const QImage frame = frameAfter(kHalfWay);
    // Half of its own colour and half of what is left of the one below.
    EXPECT_THAT(frame.pixel(30, 30), IsNearly(0xFF200040));
    EXPECT_THAT(frame.pixel(70, 70), IsNearly(0xFF320064));
}

TEST_F(ZoomAnimationTest, WhereNoPictureIsItIsBlack)
{
    ZoomAnimation small(
        {oldPicture, QTransform(0.5, 0, 0, 0.5, 0, 0), QTransform(), 1, 1},
        {newPicture, QTransform(0.5, 0, 0, 0.5, 0, 50), QTransform(), 1, 1},
        [] { return 0.0; });
    QImage frame(kSide, kSide, QImage::Format_RGB32);
    frame.fill(Qt::green);
    QPainter painter(&frame);
    small.paint(painter);
    EXPECT_EQ(frame.pixel(75, 25), 0xFF000000);
    EXPECT_EQ(frame.pixel(99, 99), 0xFF000000);
    EXPECT_EQ(frame.pixel(40, 40), 0xFFC80000);
    EXPECT_EQ(frame.pixel(40, 90), 0xFF0000C8);
}

TEST_F(ZoomAnimationTest, GoesByItsClock)
{
    EXPECT_EQ(animation.progress(), 0);
    now += kHalfWay;
    EXPECT_NEAR(animation.progress(), 0.5, 1e-9);
    now += 0.7;
    EXPECT_EQ(animation.progress(), 1);
}

TEST_F(ZoomAnimationTest, AsksForFramesUntilItEnds)
{
    QSignalSpy frames(&animation, &ZoomAnimation::frameDue);
    QSignalSpy end(&animation, &ZoomAnimation::finished);
    ASSERT_TRUE(frames.wait());
    ASSERT_TRUE(frames.wait());
    EXPECT_EQ(end.count(), 0);
    now += 0.7;
    ASSERT_TRUE(end.wait());
    const auto framesAtEnd = frames.count();
    ASSERT_TRUE(test::waitForFrames());
    EXPECT_EQ(frames.count(), framesAtEnd);
    EXPECT_EQ(end.count(), 1);
}

} // namespace
} // namespace tessera
