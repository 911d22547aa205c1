// SPDX-License-Identifier: MIT
#include "Base/ByteSize.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessera {
namespace {

TEST(FormatSize, BytesAndKilobytesHaveNoDecimals)
{
    EXPECT_EQ(formatSize(0), "0 B");
    EXPECT_EQ(formatSize(1), "1 B");
    EXPECT_EQ(formatSize(999), "999 B");
    EXPECT_EQ(formatSize(1000), "1 KB");
    EXPECT_EQ(formatSize(1500), "2 KB");
    EXPECT_EQ(formatSize(999999), "1000 KB");
}

TEST(FormatSize, MegabytesAndAboveHaveOne)
{
    EXPECT_EQ(formatSize(1000000), "1.0 MB");
    EXPECT_EQ(formatSize(1234567890), "1.2 GB");
    EXPECT_EQ(formatSize(5000000000000), "5.0 TB");
}

TEST(FormatSize, NothingIsLargerThanATerabyte)
{
    EXPECT_EQ(formatSize(5000000000000000), "5000.0 TB");
    EXPECT_EQ(formatSize(std::numeric_limits<std::uint64_t>::max()), "18446744.1 TB");
}

TEST(FormatSize, AHalfIsRoundedToTheEvenDigit)
{
    EXPECT_EQ(formatSize(2500), "2 KB");
    EXPECT_EQ(formatSize(1250000), "1.2 MB");
}

} // namespace
} // namespace tessera
