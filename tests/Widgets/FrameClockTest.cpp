// SPDX-License-Identifier: MIT
#include "Widgets/FrameClock.h"

#include "Widgets/WaitForFrames.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(EaseIn, BeginsAndEndsWithTheTime)
{
    EXPECT_EQ(easeIn(0), 0);
    EXPECT_EQ(easeIn(1), 1);
}

TEST(EaseIn, StaysWhereItIsOutsideOfTheTime)
{
    EXPECT_EQ(easeIn(-0.5), 0);
    EXPECT_EQ(easeIn(7), 1);
}

TEST(EaseIn, FollowsTheCurve)
{
    // x = 1.26 s + 0.48 s^2 - 0.74 s^3 and y = 3 s^2 - 2 s^3, at s = 1/2 and 1/4.
    EXPECT_NEAR(easeIn(0.6575), 0.5, 1e-12);
    EXPECT_NEAR(easeIn(0.3334375), 0.15625, 1e-12);
    // Where s has to be found first.
    EXPECT_NEAR(easeIn(0.1), 0.017026609651562934, 1e-12);
    EXPECT_NEAR(easeIn(0.5), 0.3153568125725393, 1e-12);
    EXPECT_NEAR(easeIn(0.9), 0.8394278457624664, 1e-12);
}

TEST(EaseIn, IsCloseToTheEndJustBeforeIt)
{
    EXPECT_LT(easeIn(1 - 1e-9), 1);
    EXPECT_GT(easeIn(1 - 1e-9), 0.99999);
}

TEST(EaseInOut, IsSlowAtBothEnds)
{
    EXPECT_EQ(easeInOut(0), 0);
    EXPECT_NEAR(easeInOut(0.25), 0.1464466094067262, 1e-12);
    EXPECT_NEAR(easeInOut(0.5), 0.5, 1e-12);
    EXPECT_NEAR(easeInOut(1), 1, 1e-12);
}

TEST(EaseOut, SlowsDown)
{
    EXPECT_EQ(easeOut(0), 0);
    EXPECT_EQ(easeOut(0.5), 0.75);
    EXPECT_EQ(easeOut(1), 1);
}

/// At a time of the test's own.
class FrameClockRun : public testing::Test {
protected:
    double now = 7;
    FrameClock clock{[this] { return now; }};
};

TEST_F(FrameClockRun, CountsFromEachStart)
{
    clock.start();
    now = 7.5;
    EXPECT_EQ(clock.passed(), 0.5);
    clock.start();
    EXPECT_EQ(clock.passed(), 0);
}

TEST_F(FrameClockRun, GivesThePartOfTheTimeFromNoneToAllOfIt)
{
    clock.start();
    EXPECT_EQ(clock.partOf(2), 0);
    now = 7.5;
    EXPECT_EQ(clock.partOf(2), 0.25);
    now = 70;
    EXPECT_EQ(clock.partOf(2), 1);
    now = 6;
    EXPECT_EQ(clock.partOf(2), 0);
}

TEST_F(FrameClockRun, LetsFramesBeDueWhileItRuns)
{
    QSignalSpy frames(&clock, &FrameClock::frameDue);
    clock.start(0);
    EXPECT_TRUE(clock.isRunning());
    EXPECT_TRUE(frames.wait());
    clock.stop();
    frames.clear();
    ASSERT_TRUE(test::waitForFrames());
    EXPECT_FALSE(clock.isRunning());
    EXPECT_TRUE(frames.isEmpty());
}

} // namespace
} // namespace tessera
