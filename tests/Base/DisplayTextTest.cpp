// SPDX-License-Identifier: MIT
#include "Base/DisplayText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace tessera {
namespace {

TEST(DisplayText, IsTheTextOfValidNames)
{
    EXPECT_EQ(
        displayText("na\xC3\xAFve \xE6\x96\x87.txt"), QStringLiteral(u"na\u00EFve \u6587.txt"));
}

TEST(DisplayText, ShowsBytesThatAreNotTextAsReplacementCharacters)
{
    EXPECT_EQ(displayText("a\xFFz"), QStringLiteral(u"a\uFFFDz"));
}

TEST(DisplayText, ShowsControlCharactersAsPictures)
{
    EXPECT_EQ(displayText("a\nb\tc\x1B"), QStringLiteral(u"a\u240Ab\u2409c\u241B"));
    EXPECT_EQ(displayText("\x7F"), QStringLiteral(u"\u2421"));
    EXPECT_EQ(displayText(std::string_view("\0", 1)), QStringLiteral(u"\u2400"));
}

TEST(DisplayText, DoesNotObeyLineSeparatorsOrDirectionOverrides)
{
    EXPECT_EQ(displayText("a\xE2\x80\xA8z"), QStringLiteral(u"a\uFFFDz"));
    // NOLINTNEXTLINE(misc-misleading-bidirectional): such names are what is tested
    EXPECT_EQ(displayText("exe\xE2\x80\xAEgpj"), QStringLiteral(u"exe\uFFFDgpj"));
    EXPECT_EQ(displayText("a\xC2\x85z"), QStringLiteral(u"a\uFFFDz"));
}

TEST(DisplayText, ShowsInvisibleLetters)
{
    for (const int letter :
         {0x00AD, 0x034F, 0x061C, 0x115F, 0x1160, 0x180E,  0x200B,  0x2060,  0x2064,  0x206A,
          0x206F, 0x3164, 0xFEFF, 0xFFA0, 0xFFFB, 0x1BCA0, 0xE0001, 0xE0020, 0xE0065, 0xE007F}) {
        const std::u32string name{U'a', U'b', static_cast<char32_t>(letter), U'c', U'd'};
        EXPECT_EQ(
            displayText(QString::fromStdU32String(name).toStdString()),
            QStringLiteral(u"ab\uFFFDcd"))
            << letter;
    }
}

TEST(DisplayText, ShowsAnInvisibleLetterInFront)
{
    EXPECT_EQ(
        displayText("\xEF\xBB\xBF"
                    "abcd"),
        QStringLiteral(u"\uFFFDabcd"));
}

TEST(DisplayText, ANameOfAByteOrderMarkAloneIsSeen)
{
    EXPECT_EQ(displayText("\xEF\xBB\xBF"), QStringLiteral(u"\uFFFD"));
}

TEST(DisplayText, ShowsTheBeginningOfACharacterThatEndsTooSoon)
{
    EXPECT_EQ(displayText("ab\xE6\x96"), QStringLiteral(u"ab\uFFFD\uFFFD"));
}

TEST(DisplayText, ANameOfInvisibleLettersAloneIsSeen)
{
    EXPECT_EQ(displayText("\xE3\x85\xA4"), QStringLiteral(u"\uFFFD"));
}

/// Whether the text is shown as it is.
bool isKept(std::u32string_view text)
{
    const QString name = QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
    return displayText(name.toStdString()) == name;
}

TEST(DisplayText, KeepsJoinersBetweenLettersOfScriptsThatNeedThem)
{
    EXPECT_TRUE(isKept(U"\u0645\u06CC\u200C\u062E\u0648\u0627\u0647\u0645")); // Persian
    EXPECT_TRUE(isKept(U"\u0645\u064E\u200C\u0647")); // with a vowel mark
    EXPECT_TRUE(isKept(U"\u0915\u094D\u200D\u0937")); // Devanagari
    EXPECT_TRUE(isKept(U"\u0915\u094D\u200C\u0937"));
    EXPECT_TRUE(isKept(U"\u0DC1\u0DCA\u200D\u0DBB\u0DD3")); // Sinhala
    EXPECT_TRUE(isKept(U"\u0CB0\u200D\u0CCD\u0C95")); // Kannada
    EXPECT_TRUE(isKept(U"\u1820\u200D\u1821")); // Mongolian
}

TEST(DisplayText, KeepsAJoinerThatShapesTheEndOfAWord)
{
    EXPECT_TRUE(isKept(U"\u0D28\u0D4D\u200D")); // Malayalam
    EXPECT_TRUE(isKept(U"\u0647\u200D.\u0634")); // Persian
    EXPECT_FALSE(isKept(U"\u0647\u200Da"));
    EXPECT_FALSE(isKept(U"\u0627\u200D")); // alef joins nothing behind it
    EXPECT_FALSE(isKept(U"\u0647\u200C")); // nothing is there to be kept apart
}

TEST(DisplayText, KeepsJoinersOfPictures)
{
    EXPECT_TRUE(isKept(U"\U0001F468\u200D\U0001F469\u200D\U0001F467")); // family
    EXPECT_TRUE(isKept(U"\U0001F469\U0001F3FD\u200D\u2695\uFE0F")); // doctor
    EXPECT_TRUE(isKept(U"\u2764\uFE0F\u200D\U0001F525")); // heart on fire
    EXPECT_TRUE(isKept(U"\U0001F642\u200D\u2194\uFE0F")); // shaking head
    EXPECT_FALSE(isKept(U"\U0001F525\u200D"));
    EXPECT_FALSE(isKept(U"\U0001F525\u200D+"));
    EXPECT_FALSE(isKept(U"a\u200D\U0001F525"));
}

TEST(DisplayText, ShowsJoinersThatNoScriptNeeds)
{
    EXPECT_EQ(
        displayText("ab\xE2\x80\x8D"
                    "cd"),
        QStringLiteral(u"ab\uFFFDcd"));
    EXPECT_EQ(
        displayText("ab\xE2\x80\x8C"
                    "cd"),
        QStringLiteral(u"ab\uFFFDcd"));
    EXPECT_EQ(displayText("\xE2\x80\x8D"), QStringLiteral(u"\uFFFD"));
    EXPECT_FALSE(isKept(U"\u05E9\u200D\u05DC")); // Hebrew letters stand alone
    EXPECT_FALSE(isKept(U"\u0645\u200Ca"));
    EXPECT_FALSE(isKept(U"\u0645\u200C\u200C\u0645"));
}

TEST(DisplayText, ShowsOtherSelectorsThanThatOfPicturesOnAKeycap)
{
    EXPECT_FALSE(isKept(U"1\uFE00\u20E3"));
}

TEST(DisplayText, KeepsVariationSelectorsWhereThereIsAChoice)
{
    EXPECT_TRUE(isKept(U"\u2764\uFE0F"));
    EXPECT_TRUE(isKept(U"1\uFE0F\u20E3"));
    EXPECT_TRUE(isKept(U"\u2139\uFE0F \u203C\uFE0F"));
    EXPECT_TRUE(isKept(U"\u8FBB\U000E0100"));
    EXPECT_TRUE(isKept(U"\u1820\u180B"));
    EXPECT_FALSE(isKept(U"a\uFE0F"));
    EXPECT_FALSE(isKept(U"1\uFE0F"));
    EXPECT_FALSE(isKept(U"+\uFE0F"));
    EXPECT_FALSE(isKept(U"\u2764\uFE0F\uFE0F"));
    EXPECT_FALSE(isKept(U"a\U000E0100"));
    EXPECT_FALSE(isKept(U"a\u180B"));
}

TEST(PlainTooltip, KeepsMarkupFromBeingObeyed)
{
    EXPECT_EQ(
        plainTooltip(QStringLiteral("<b>a")),
        QStringLiteral("<p style='white-space:pre'>&lt;b&gt;a</p>"));
}

TEST(PlainTooltip, LeavesOtherTextAsItIs)
{
    EXPECT_EQ(plainTooltip(QStringLiteral("A&B 1 < 2")), QStringLiteral("A&B 1 < 2"));
}

} // namespace
} // namespace tessera
