// SPDX-License-Identifier: MIT
#include "Base/Utf8.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(Utf8, TextOfEveryLengthOfSequenceIsValid)
{
    EXPECT_TRUE(isUtf8("a\xC3\xB6\xE2\x82\xAC\xF0\x9F\x98\x80z"));
}

TEST(Utf8, NothingIsValid)
{
    EXPECT_TRUE(isUtf8(""));
}

TEST(Utf8, ControlCharactersAreValid)
{
    EXPECT_TRUE(isUtf8("a\n\x01\x7F"));
}

TEST(Utf8, ALoneContinuationByteIsNot)
{
    EXPECT_FALSE(isUtf8("a\x80"));
}

TEST(Utf8, ASequenceThatIsCutOffIsNot)
{
    EXPECT_FALSE(isUtf8("a\xE2\x82"));
}

TEST(Utf8, ASequenceThatIsInterruptedIsNot)
{
    EXPECT_FALSE(isUtf8("\xE2\x82z"));
}

TEST(Utf8, FormsLongerThanNeededAreNot)
{
    EXPECT_FALSE(isUtf8("\xC0\xAF"));
    EXPECT_FALSE(isUtf8("\xE0\x9F\xBF"));
    EXPECT_FALSE(isUtf8("\xF0\x8F\xBF\xBF"));
}

TEST(Utf8, SurrogatesAreNot)
{
    EXPECT_TRUE(isUtf8("\xED\x9F\xBF"));
    EXPECT_FALSE(isUtf8("\xED\xA0\x80"));
}

TEST(Utf8, TheLastCodePointIsTheLastValidOne)
{
    EXPECT_TRUE(isUtf8("\xF4\x8F\xBF\xBF"));
    EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80"));
}

TEST(Utf8, TheFirstCharacterIsReadWithItsLength)
{
    const auto isFirst = [](std::string_view bytes, char32_t codePoint, std::size_t length) {
        const Utf8Character first = firstUtf8Character(bytes);
        return first.codePoint == codePoint && first.length == length;
    };
    EXPECT_TRUE(isFirst("zoo", U'z', 1));
    EXPECT_TRUE(isFirst("\xC3\xB6z", U'\u00F6', 2));
    EXPECT_TRUE(isFirst("\xE2\x82\xAC\x80", U'\u20AC', 3));
    EXPECT_TRUE(isFirst("\xF0\x9F\x98\x80", U'\U0001F600', 4));
}

TEST(Utf8, WhatBeginsWithNoCharacterHasAFirstOfNoLength)
{
    EXPECT_EQ(firstUtf8Character("").length, 0U);
    EXPECT_EQ(firstUtf8Character("\x80zoo").length, 0U);
    EXPECT_EQ(firstUtf8Character("\xE2\x82").length, 0U);
}

} // namespace
} // namespace tessera
