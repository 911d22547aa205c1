// SPDX-License-Identifier: MIT
#include "Base/CharacterKinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace tessera {
namespace {

constexpr std::uint32_t kLastCodePoint = 0x10FFFF;

int kindsOf(std::uint32_t character)
{
    return static_cast<int>(isControlCharacter(character)) + static_cast<int>(steersText(character))
        + static_cast<int>(isJoiner(character)) + static_cast<int>(isVariationSelector(character))
        + static_cast<int>(isInvisible(character));
}

/// How many kinds each character is of. Asking for all of them takes a while.
const std::vector<int>& kindsOfAll()
{
    static const std::vector<int> kinds = [] {
        std::vector<int> counts(kLastCodePoint + 1);
        for (std::uint32_t character = 0; character <= kLastCodePoint; ++character) {
            counts[character] = kindsOf(character);
        }
        return counts;
    }();
    return kinds;
}

TEST(CharacterKinds, ControlCharactersAreTheThirtyTwoDelAndThirtyTwoMore)
{
    int count = 0;
    for (std::uint32_t character = 0; character <= 0xFF; ++character) {
        count += isControlCharacter(character) ? 1 : 0;
    }
    EXPECT_EQ(count, 65);
    for (const int control : {0x00, 0x1F, 0x7F, 0x80, 0x9B, 0x9F}) {
        EXPECT_TRUE(isControlCharacter(static_cast<std::uint32_t>(control))) << control;
    }
}

TEST(CharacterKinds, MarksOfDirectionAndBreaksOfTheLineSteer)
{
    for (const int mark : {0x061C, 0x200E, 0x200F, 0x2028, 0x202E, 0x2066, 0x2069}) {
        EXPECT_TRUE(steersText(static_cast<std::uint32_t>(mark))) << mark;
    }
}

TEST(CharacterKinds, LettersWithoutAnyLookAreInvisible)
{
    for (const int letter :
         {0x00AD, 0x034F, 0x115F, 0x1160, 0x180E, 0x200B,  0x2060,  0x2064,  0x206A,  0x206F,
          0x3164, 0xFEFF, 0xFFA0, 0xFFF9, 0xFFFB, 0x1D173, 0xE0001, 0xE0020, 0xE007F, 0xE0FFF}) {
        EXPECT_TRUE(isInvisible(static_cast<std::uint32_t>(letter))) << letter;
    }
}

TEST(CharacterKinds, WhatIsSeenIsOfNoKind)
{
    for (const int character :
         {0x20,
          0x7E,
          0xA0,
          0xE9,
          0x0915,
          0x064A,
          0x2003,
          0x2027,
          0x202F,
          0x4E00,
          0xFFFD,
          0x1F600}) {
        EXPECT_EQ(kindsOf(static_cast<std::uint32_t>(character)), 0) << character;
    }
}

TEST(CharacterKinds, NoCharacterIsOfTwoKinds)
{
    EXPECT_LE(*std::max_element(kindsOfAll().begin(), kindsOfAll().end()), 1);
}

TEST(CharacterKinds, AllThatUnicodeHasProgramsIgnoreIsOfAKind)
{
    // Unicode 15 counts 4174 default ignorable code points. Control characters, the separators of
    // lines and paragraphs and the marks of annotations are none of them.
    const std::vector<int>& kinds = kindsOfAll();
    EXPECT_EQ(std::accumulate(kinds.begin(), kinds.end(), 0), 4174 + 65 + 2 + 3);
}

} // namespace
} // namespace tessera
