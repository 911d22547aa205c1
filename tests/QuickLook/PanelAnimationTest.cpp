// SPDX-License-Identifier: MIT
#include "QuickLook/PanelAnimation.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessera {

namespace {

const QRectF kFrom(0, 0, 10, 20);
const QRectF kTo(100, 200, 410, 420);

class PanelAnimationTest : public testing::Test {
protected:
    PanelAnimationTest()
    {
        animation.setClock([this] { return now; });
        animation.start(kFrom, kTo);
    }

    void advanceTo(double seconds)
    {
        now = seconds;
        animation.advance();
    }

    double now = 7;
    std::vector<QRectF> steps;
    PanelAnimation animation{[this](const QRectF& frame) { steps.push_back(frame); }};
};

} // namespace

TEST_F(PanelAnimationTest, BeginsWhereItComesFrom)
{
    EXPECT_EQ(steps, std::vector{kFrom});
    EXPECT_TRUE(animation.isRunning());
}

TEST_F(PanelAnimationTest, HasThreeQuartersOfTheWayBehindItAfterHalfTheTime)
{
    advanceTo(7.1);

    EXPECT_NEAR(steps.back().x(), 75, 1e-9);
    EXPECT_NEAR(steps.back().y(), 150, 1e-9);
    EXPECT_NEAR(steps.back().width(), 310, 1e-9);
    EXPECT_NEAR(steps.back().height(), 320, 1e-9);
}

TEST_F(PanelAnimationTest, EndsWhereItGoesToAfterAFifthOfASecond)
{
    advanceTo(7.19);
    EXPECT_TRUE(animation.isRunning());

    advanceTo(7.201);

    EXPECT_FALSE(animation.isRunning());
    EXPECT_EQ(steps.back(), kTo);
}

TEST_F(PanelAnimationTest, CanBeLedElsewhereOnItsWay)
{
    advanceTo(7.1);
    animation.retarget({0, 0, 10, 20});
    advanceTo(7.3);

    EXPECT_EQ(steps.back(), QRectF(0, 0, 10, 20));
}

TEST_F(PanelAnimationTest, TakesNoStepOnceItIsStopped)
{
    animation.stop();
    advanceTo(7.1);

    EXPECT_EQ(steps.size(), 1U);
}

} // namespace tessera
