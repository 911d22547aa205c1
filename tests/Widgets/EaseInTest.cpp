// SPDX-License-Identifier: MIT
#include "Widgets/EaseIn.h"

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

} // namespace
} // namespace tessera
