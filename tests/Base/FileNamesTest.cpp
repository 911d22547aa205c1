// SPDX-License-Identifier: MIT
#include "Base/FileNames.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(BeginningOfName, AShortNameIsAllOfIt)
{
    EXPECT_EQ(beginningOfName("name", 4), "name");
}

TEST(BeginningOfName, HasNoMoreBytesThanItMay)
{
    EXPECT_EQ(beginningOfName("name", 3), "nam");
}

TEST(BeginningOfName, EndsBeforeACharacterThatDoesNotFit)
{
    EXPECT_EQ(beginningOfName("a\u00fcb", 2), "a");
}

TEST(BeginningOfName, EndsBeforeTheLargestCharactersToo)
{
    EXPECT_EQ(beginningOfName("a\U0001F600", 4), "a");
}

TEST(BeginningOfName, KeepsACharacterThatJustFits)
{
    EXPECT_EQ(beginningOfName("a\u00fcb", 3), "a\u00fc");
}

TEST(BeginningOfName, OfOneLargeCharacterIsCutApart)
{
    EXPECT_EQ(beginningOfName("\xF0\x9F\x98\x80", 2), "\xF0\x9F");
}

TEST(BeginningOfName, BytesThatAreNoTextAreCutAnywhere)
{
    EXPECT_EQ(beginningOfName("\x80\x80\x80\x80\x80\x80", 5), "\x80\x80\x80\x80\x80");
}

TEST(SurroundedName, HasBothAround)
{
    EXPECT_EQ(surroundedName("._", "name", ".part"), "._name.part");
}

TEST(SurroundedName, TheLongestThatFitsIsKept)
{
    const std::string name(248, 'n');
    EXPECT_EQ(surroundedName("._", name, ".part"), "._" + name + ".part");
}

TEST(SurroundedName, ALongerOneIsMarkedByAllOfIt)
{
    // FNV-1a of 249 times "n", by another program.
    EXPECT_EQ(
        surroundedName("._", std::string(249, 'n'), ".part"),
        "._" + std::string(239, 'n') + "~d4432911.part");
}

} // namespace
} // namespace tessera
