// SPDX-License-Identifier: MIT
#include "Base/FileIdentity.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessera {
namespace {

constexpr auto kLargest = std::numeric_limits<std::uint64_t>::max();

TEST(FileIdentityLine, IsTwoNumbers)
{
    EXPECT_EQ(fileIdentityLine({2049, 12}), "2049 12\n");
}

TEST(FileIdentityLine, IsReadAsItWasWritten)
{
    const FileIdentity identity{kLargest, kLargest - 1};
    EXPECT_EQ(readFileIdentityLine(fileIdentityLine(identity)), identity);
}

TEST(FileIdentityLine, IsNothingElse)
{
    for (const char* text :
         {"",
          "1",
          "1 ",
          "1 2",
          "1 2\n3",
          "1 2\n\n",
          " 1 2\n",
          "1  2\n",
          "-1 2\n",
          "1 x\n",
          "1\n2\n",
          "18446744073709551616 2\n"}) {
        EXPECT_FALSE(readFileIdentityLine(text).has_value()) << text;
    }
}

} // namespace
} // namespace tessera
