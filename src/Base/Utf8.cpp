// SPDX-License-Identifier: MIT
#include "Base/Utf8.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

/// One row of the table of well-formed sequences in RFC 3629, section 4. Bytes after the second
/// are always plain continuation bytes.
struct SequenceForm {
    unsigned char firstMin;
    unsigned char firstMax;
    unsigned char secondMin;
    unsigned char secondMax;
    std::size_t length;
};

constexpr unsigned char kAsciiMax = 0x7F;
constexpr unsigned char kContinuationMin = 0x80;
constexpr unsigned char kContinuationMax = 0xBF;

constexpr std::array<SequenceForm, 9> kForms{{
    {0x00, kAsciiMax, 0x00, 0x00, 1},
    {0xC2, 0xDF, kContinuationMin, kContinuationMax, 2},
    {0xE0, 0xE0, 0xA0, kContinuationMax, 3},
    {0xE1, 0xEC, kContinuationMin, kContinuationMax, 3},
    {0xED, 0xED, kContinuationMin, 0x9F, 3},
    {0xEE, 0xEF, kContinuationMin, kContinuationMax, 3},
    {0xF0, 0xF0, 0x90, kContinuationMax, 4},
    {0xF1, 0xF3, kContinuationMin, kContinuationMax, 4},
    {0xF4, 0xF4, kContinuationMin, 0x8F, 4},
}};

bool isWithin(char byte, unsigned char min, unsigned char max)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= min && value <= max;
}

/// How long the sequence is that the bytes begin with; 0 when it is none.
std::size_t sequenceLength(std::string_view bytes)
{
    const auto* const form
        = std::find_if(kForms.begin(), kForms.end(), [&](const SequenceForm& candidate) {
              return isWithin(bytes.front(), candidate.firstMin, candidate.firstMax);
          });
    if (form == kForms.end() || bytes.size() < form->length) {
        return 0;
    }
    const std::string_view rest = bytes.substr(1, form->length - 1);
    const bool isWellFormed = rest.empty()
        || (isWithin(rest.front(), form->secondMin, form->secondMax)
            && std::all_of(rest.begin() + 1, rest.end(), [](char byte) {
                   return isWithin(byte, kContinuationMin, kContinuationMax);
               }));
    return isWellFormed ? form->length : 0;
}

} // namespace

bool isUtf8(std::string_view bytes)
{
    // Most names are plain ASCII and may be long: paths out of deep trees.
    const auto* const firstOther = std::find_if(
        bytes.begin(), bytes.end(), [](char byte) { return !isWithin(byte, 0, kAsciiMax); });
    bytes.remove_prefix(static_cast<std::size_t>(firstOther - bytes.begin()));
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

Utf8Character firstUtf8Character(std::string_view bytes)
{
    const std::size_t length = bytes.empty() ? 0 : sequenceLength(bytes);
    if (length == 0) {
        return {};
    }
    constexpr std::array<unsigned, 4> kFirstByteMasks{0x7F, 0x1F, 0x0F, 0x07};
    constexpr unsigned kContinuationMask = 0x3F;
    constexpr unsigned kContinuationBits = 6;
    char32_t codePoint = static_cast<unsigned char>(bytes.front()) & kFirstByteMasks.at(length - 1);
    for (const char byte : bytes.substr(1, length - 1)) {
        codePoint = (codePoint << kContinuationBits)
            | (static_cast<unsigned char>(byte) & kContinuationMask);
    }
    return {codePoint, length};
}

} // namespace tessera
