// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// What shown text must not pass on as it is, for anybody may put it into the name of a file.
/// Each function is true for characters of its kind alone; no character is of two kinds.

/// Commands to a terminal or printer: C0, DEL and C1.
bool isControlCharacter(char32_t character);

/// Breaks the line, or turns the direction of the text around it.
bool steersText(char32_t character);

/// U+200C and U+200D: invisible themselves, but letters of some scripts look different with them.
bool isJoiner(char32_t character);

/// Chooses between the looks of the character before it: U+FE0F makes a symbol an emoji.
bool isVariationSelector(char32_t character);

/// Leaves no trace where it stands: zero width spaces, soft hyphens, fillers, tags and all else
/// that Unicode calls default ignorable and that is not of one of the kinds above.
bool isInvisible(char32_t character);

} // namespace tessera
