// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tessera {

/// Whether the bytes are valid UTF-8 by RFC 3629: shortest forms only, no surrogates, nothing
/// above U+10FFFF.
bool isUtf8(std::string_view bytes);

} // namespace tessera
