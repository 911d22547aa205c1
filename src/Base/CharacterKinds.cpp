// SPDX-License-Identifier: MIT
#include "Base/CharacterKinds.h"

#include <algorithm>
#include <array>
#include <span>

namespace tessera {

namespace {

/// Both ends belong to it.
struct CharacterRange {
    char32_t first;
    char32_t last;
};

constexpr std::array<CharacterRange, 2> kControlCharacters{{{0x00, 0x1F}, {0x7F, 0x9F}}};

constexpr std::array<CharacterRange, 4> kSteering{
    {{0x061C, 0x061C}, {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}}};

constexpr std::array<CharacterRange, 4> kVariationSelectors{
    {{0x180B, 0x180D}, {0x180F, 0x180F}, {0xFE00, 0xFE0F}, {0xE0100, 0xE01EF}}};

/// Default_Ignorable_Code_Point in Unicode's DerivedCoreProperties.txt, without the kinds above;
/// and the marks of interlinear annotations, which programs show as nothing as well.
constexpr std::array<CharacterRange, 16> kInvisible{
    {{0x00AD, 0x00AD},
     {0x034F, 0x034F},
     {0x115F, 0x1160},
     {0x17B4, 0x17B5},
     {0x180E, 0x180E},
     {0x200B, 0x200B},
     {0x2060, 0x2065},
     {0x206A, 0x206F},
     {0x3164, 0x3164},
     {0xFEFF, 0xFEFF},
     {0xFFA0, 0xFFA0},
     {0xFFF0, 0xFFFB},
     {0x1BCA0, 0x1BCA3},
     {0x1D173, 0x1D17A},
     {0xE0000, 0xE00FF},
     {0xE01F0, 0xE0FFF}}};

bool isIn(std::span<const CharacterRange> ranges, char32_t character)
{
    return std::any_of(ranges.begin(), ranges.end(), [=](const CharacterRange& range) {
        return character >= range.first && character <= range.last;
    });
}

} // namespace

bool isControlCharacter(char32_t character)
{
    return isIn(kControlCharacters, character);
}

bool steersText(char32_t character)
{
    return isIn(kSteering, character);
}

bool isJoiner(char32_t character)
{
    return character == 0x200C || character == 0x200D;
}

bool isVariationSelector(char32_t character)
{
    return isIn(kVariationSelectors, character);
}

bool isInvisible(char32_t character)
{
    return isIn(kInvisible, character);
}

} // namespace tessera
