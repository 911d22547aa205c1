// SPDX-License-Identifier: MIT
#include "Model/Allocation.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr std::uint64_t kLargest = 0x7FFF'FFFF'FFFF'FFFF;
constexpr std::uint64_t kAllBits = 0xFFFF'FFFF'FFFF'FFFF;

TEST(Allocation, SumsStopAtTheLargestSize)
{
    EXPECT_EQ(saturatingSum(2, 3), 5U);
    EXPECT_EQ(saturatingSum(kLargest - 1, 1), kLargest);
    EXPECT_EQ(saturatingSum(kLargest, 1), kLargest);
    EXPECT_EQ(saturatingSum(kAllBits, kAllBits), kLargest);
}

TEST(Allocation, ProductsStopAtTheLargestSize)
{
    constexpr std::uint64_t kBlocks = 0x3F'FFFF'FFFF'FFFF; // as many of 512 bytes as there can be
    EXPECT_EQ(saturatingProduct(3, 512), 1536U);
    EXPECT_EQ(saturatingProduct(kBlocks, 512), 0x7FFF'FFFF'FFFF'FE00U);
    EXPECT_EQ(saturatingProduct(kBlocks + 1, 512), kLargest);
    EXPECT_EQ(saturatingProduct(kAllBits, 1), kLargest);
    EXPECT_EQ(saturatingProduct(kAllBits, 0), 0U);
}

TEST(Allocation, DifferencesStopAtNothing)
{
    EXPECT_EQ(saturatingDifference(5, 3), 2U);
    EXPECT_EQ(saturatingDifference(3, 5), 0U);
}

} // namespace
} // namespace tessera
