// SPDX-License-Identifier: MIT
#include "Base/Decimals.h"

#include "support/CommaLocale.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessera {
namespace {

TEST(Decimals, AreAsManyAsAskedForAndRounded)
{
    EXPECT_EQ(decimals(0.02, 4), "0.0200");
    EXPECT_EQ(decimals(2.0 / 3.0, 6), "0.666667");
    EXPECT_EQ(decimals(1234.5, 0), "1234");
}

TEST(Decimals, StandBehindAPointInEveryLocale)
{
    const test::CommaLocale locale;
    if (!locale.isThere()) {
        GTEST_SKIP() << "there is no locale with a decimal comma";
    }
    EXPECT_EQ(decimals(1.5, 2), "1.50");
}

TEST(Decimals, OfTheLargestAndOfNoNumberAreTextToo)
{
    EXPECT_EQ(decimals(std::numeric_limits<double>::max(), 6).size(), 309U + 7U);
    EXPECT_EQ(decimals(std::numeric_limits<double>::infinity(), 6), "inf");
    EXPECT_EQ(decimals(std::numeric_limits<double>::quiet_NaN(), 6), "nan");
}

} // namespace
} // namespace tessera
