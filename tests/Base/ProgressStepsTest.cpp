// SPDX-License-Identifier: MIT
#include "Base/ProgressSteps.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessera {

TEST(ProgressSteps, AFractionIsItsShareOfAllSteps)
{
    EXPECT_EQ(progressSteps(0.25), kProgressSteps / 4);
}

TEST(ProgressSteps, MoreThanAllIsAll)
{
    EXPECT_EQ(progressSteps(1.1), kProgressSteps);
}

TEST(ProgressSteps, WhatIsNoFiniteNumberIsNothing)
{
    EXPECT_EQ(progressSteps(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(progressSteps(std::numeric_limits<double>::infinity()), 0);
}

} // namespace tessera
