// SPDX-License-Identifier: MIT
#include "Base/TerminalText.h"

#include "Base/CharacterKinds.h"
#include "Base/Utf8.h"

#include <algorithm>

namespace tessera {

namespace {

bool isPlain(const Utf8Character& character)
{
    return character.length > 0 && !isControlCharacter(character.codePoint)
        && !steersText(character.codePoint) && !isInvisible(character.codePoint);
}

void appendEscaped(std::string& text, std::string_view bytes)
{
    constexpr const char* kHexDigits = "0123456789abcdef";
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += "\\x";
        text += kHexDigits[byte >> 4U];
        text += kHexDigits[byte & 0x0FU];
    }
}

} // namespace

std::string terminalText(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const Utf8Character character = firstUtf8Character(bytes);
        const std::string_view taken = bytes.substr(0, std::max<std::size_t>(character.length, 1));
        if (isPlain(character)) {
            text += taken;
        } else {
            appendEscaped(text, taken);
        }
        bytes.remove_prefix(taken.size());
    }
    return text;
}

} // namespace tessera
