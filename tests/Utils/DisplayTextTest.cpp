// SPDX-License-Identifier: MIT
#include "Utils/DisplayText.h"

#include <gtest/gtest.h>

#include <string>

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
