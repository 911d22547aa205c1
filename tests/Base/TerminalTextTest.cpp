// SPDX-License-Identifier: MIT
#include "Base/TerminalText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tessera {
namespace {

using namespace std::string_view_literals;

TEST(TerminalText, PrintableTextStaysAsItIs)
{
    const auto text = "na\xC3\xAFve ~ \xE6\x96\x87 \xF0\x9F\x98\x80.txt"sv;
    EXPECT_EQ(terminalText(text), text);
    EXPECT_EQ(terminalText(""), "");
}

TEST(TerminalText, ControlCharactersAreWrittenOut)
{
    EXPECT_EQ(terminalText("a\x1B[31m\n\x7Fz\0"sv), "a\\x1b[31m\\x0a\\x7fz\\x00");
}

TEST(TerminalText, ControlCharactersOfTheSecondSetAreWrittenOut)
{
    EXPECT_EQ(
        terminalText("\xC2\x80\xC2\x9B"sv
                     "31m\xC2\x9F"sv),
        "\\xc2\\x80\\xc2\\x9b31m\\xc2\\x9f");
    EXPECT_EQ(terminalText("\xC2\xA0"), "\xC2\xA0");
}

TEST(TerminalText, BytesThatAreNoTextAreWrittenOut)
{
    EXPECT_EQ(
        terminalText("a\x9B"sv
                     "31m"sv),
        "a\\x9b31m");
    EXPECT_EQ(terminalText("\xC0\x9B\xFFz"), "\\xc0\\x9b\\xffz");
    EXPECT_EQ(terminalText("\xE2\x82z\xE2"), "\\xe2\\x82z\\xe2");
}

TEST(TerminalText, MarksOfDirectionAreWrittenOut)
{
    // NOLINTNEXTLINE(misc-misleading-bidirectional): such names are what is tested
    EXPECT_EQ(terminalText("exe\xE2\x80\xAEgpj"), "exe\\xe2\\x80\\xaegpj");
}

TEST(TerminalText, InvisibleLettersAreWrittenOut)
{
    EXPECT_EQ(
        terminalText("ab\xE2\x81\xA0"
                     "cd"),
        "ab\\xe2\\x81\\xa0cd");
    EXPECT_EQ(terminalText("\xE3\x85\xA4"), "\\xe3\\x85\\xa4");
}

TEST(TerminalText, NothingOfAllTwoByteSequencesCommandsATerminal)
{
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const std::string shown
                = terminalText(std::string{static_cast<char>(first), static_cast<char>(second)});
            for (const char c : shown) {
                const auto byte = static_cast<unsigned char>(c);
                ASSERT_TRUE(byte >= 0x20 && byte != 0x7F) << shown;
            }
            ASSERT_FALSE(shown.size() == 2 && shown[0] == '\xC2' && shown[1] < '\xA0') << shown;
        }
    }
}

} // namespace
} // namespace tessera
