// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/TextOrBinary.h"

#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

using namespace std::string_literals;

QString whole(std::string_view bytes)
{
    return decodedText(bytes, TextExtent::Whole).value_or(QStringLiteral("(no text)"));
}

TEST(TextOrBinary, ReadsUtf8)
{
    EXPECT_EQ(whole("Grüße, 世界\n"), QString::fromUtf8("Grüße, 世界\n"));
}

TEST(TextOrBinary, ABeginningMayEndInsideACharacter)
{
    EXPECT_EQ(decodedText("caf\xC3", TextExtent::Beginning), QStringLiteral("caf"));
}

TEST(TextOrBinary, WhatIsNotUtf8IsLatin1)
{
    EXPECT_EQ(whole("caf\xE9 \xC3"), QString::fromUtf8("café Ã"));
}

TEST(TextOrBinary, ReadsUtf16BehindItsMark)
{
    EXPECT_EQ(whole("\xFF\xFEh\0i\0"s), QStringLiteral("hi"));
    EXPECT_EQ(whole("\xFE\xFF\0h\0i"s), QStringLiteral("hi"));
}

TEST(TextOrBinary, BytesWithAZeroAreNoText)
{
    EXPECT_FALSE(decodedText("text\0text"s, TextExtent::Whole));
}

TEST(TextOrBinary, BytesFullOfControlsAreNoText)
{
    EXPECT_FALSE(decodedText("\x01\x02 program \x03\x04", TextExtent::Whole));
    EXPECT_FALSE(decodedText("\x81\x8D program \x90\x9D\xFF", TextExtent::Whole));
}

TEST(TextOrBinary, OneControlInAHundredIsStillText)
{
    EXPECT_TRUE(decodedText(std::string(99, 'a') + '\x01', TextExtent::Whole));
    EXPECT_FALSE(decodedText(std::string(98, 'a') + '\x01', TextExtent::Whole));
}

TEST(TextOrBinary, ControlsAreShownAndNotObeyed)
{
    EXPECT_EQ(whole("\x1B[31mred\tand\b"), QString::fromUtf8("␛[31mred\tand␈"));
}

TEST(TextOrBinary, EveryKindOfLineEndEndsOneLine)
{
    EXPECT_EQ(whole("a\r\nb\rc\nd"), QStringLiteral("a\nb\nc\nd"));
}

TEST(TextOrBinary, ALineWithoutEndIsBroken)
{
    const QString text = whole(std::string(4500, 'x'));

    EXPECT_EQ(text.count(u'\n'), 2);
    EXPECT_EQ(text.indexOf(u'\n'), 2000);
    EXPECT_EQ(text.count(u'x'), 4500);
}

TEST(TextOrBinary, TheBreakSparesCharactersOfTwoUnits)
{
    const QString text = whole(std::string(1999, 'x') + "\xF0\x9F\x98\x80y");

    EXPECT_EQ(text.indexOf(u'\n'), 2001);
    EXPECT_TRUE(text.at(2000).isLowSurrogate());
}

} // namespace
} // namespace tessera
