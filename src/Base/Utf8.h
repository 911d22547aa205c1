// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace tessera {

/// Whether the bytes are valid UTF-8 by RFC 3629: shortest forms only, no surrogates, nothing
/// above U+10FFFF.
bool isUtf8(std::string_view bytes);

/// The character that bytes begin with. Its length is 0 when they begin with no valid UTF-8.
struct Utf8Character {
    char32_t codePoint = 0;
    std::size_t length = 0; ///< in bytes
};

Utf8Character firstUtf8Character(std::string_view bytes);

} // namespace tessera
