// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <string_view>

namespace tessera {

/// Whether the bytes are all of a file, or its beginning, which may end inside a character.
enum class TextExtent : bool { Whole, Beginning };

/// The text that the bytes are: UTF-8, UTF-16 behind its mark, or else Latin-1. Nothing when they
/// look like no text, and the preview shows none. Control characters become their pictures and do
/// nothing; lines end in "\n" and none is so long that laying it out takes noticeable time.
std::optional<QString> decodedText(std::string_view bytes, TextExtent extent);

} // namespace tessera
