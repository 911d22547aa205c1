// SPDX-License-Identifier: MIT
#include "Base/FileNames.h"

#include <cstdint>

namespace tessera {

namespace {

/// Whether the byte continues a UTF-8 character.
bool continuesCharacter(char byte)
{
    constexpr unsigned kMarkMask = 0xC0;
    constexpr unsigned kContinuationMark = 0x80;
    return (static_cast<unsigned char>(byte) & kMarkMask) == kContinuationMark;
}

/// "~" and eight digits that depend on the whole name (FNV-1a).
std::string markOf(std::string_view name)
{
    constexpr std::uint32_t kStart = 2166136261;
    constexpr std::uint32_t kFactor = 16777619;
    constexpr unsigned kBits = 32;
    constexpr unsigned kBitsPerDigit = 4;
    std::uint32_t sum = kStart;
    for (const char byte : name) {
        sum = (sum ^ static_cast<unsigned char>(byte)) * kFactor;
    }
    std::string mark = "~";
    for (unsigned shift = kBits; shift > 0; shift -= kBitsPerDigit) {
        mark += "0123456789abcdef"[(sum >> (shift - kBitsPerDigit)) & 0xFU];
    }
    return mark;
}

} // namespace

std::string_view beginningOfName(std::string_view name, std::size_t maxBytes)
{
    constexpr std::size_t kMaxContinuationBytes = 3;
    if (name.size() <= maxBytes) {
        return name;
    }
    std::size_t end = maxBytes;
    for (std::size_t i = 0; i < kMaxContinuationBytes && end > 0 && continuesCharacter(name[end]);
         ++i) {
        --end;
    }
    // More of them than a character has are no UTF-8, and may be cut anywhere.
    return name.substr(0, end == 0 || continuesCharacter(name[end]) ? maxBytes : end);
}

std::string surroundedName(std::string_view prefix, std::string_view name, std::string_view suffix)
{
    const std::size_t room = kMaxNameBytes - prefix.size() - suffix.size();
    std::string result(prefix);
    if (name.size() <= room) {
        result += name;
    } else {
        const std::string mark = markOf(name);
        result += beginningOfName(name, room - mark.size());
        result += mark;
    }
    return result += suffix;
}

} // namespace tessera
