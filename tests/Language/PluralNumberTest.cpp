// SPDX-License-Identifier: MIT
#include "Language/PluralNumber.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace tessera {
namespace {

TEST(PluralNumber, IsTheNumberWhereQtKnowsIt)
{
    EXPECT_EQ(pluralNumber(0), 0);
    EXPECT_EQ(pluralNumber(1), 1);
    EXPECT_EQ(pluralNumber(2'147'483'647), 2'147'483'647);
}

TEST(PluralNumber, EndsInTheSameDigitsWhereQtDoesNot)
{
    EXPECT_EQ(pluralNumber(2'147'483'648), 1'483'648);
    EXPECT_EQ(pluralNumber(5'000'000'001), 1'000'001) << "no language takes it for one";
    EXPECT_EQ(pluralNumber(std::numeric_limits<std::uint64_t>::max()), 1'551'615);
}

} // namespace
} // namespace tessera
