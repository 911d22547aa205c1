// SPDX-License-Identifier: MIT
#include "Base/Mnemonic.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(Mnemonic, LeavesTheLetterThatIsTyped)
{
    EXPECT_EQ(withoutMnemonic(QStringLiteral("Open &With…")), QStringLiteral("Open With…"));
}

TEST(Mnemonic, InBracketsGoesWithThem)
{
    EXPECT_EQ(withoutMnemonic(QStringLiteral("開く(&O)")), QStringLiteral("開く"));
    EXPECT_EQ(withoutMnemonic(QStringLiteral("開く (&W)…")), QStringLiteral("開く…"));
}

TEST(Mnemonic, BracketsWithoutOneStay)
{
    EXPECT_EQ(withoutMnemonic(QStringLiteral("a (b)")), QStringLiteral("a (b)"));
}

} // namespace
} // namespace tessera
