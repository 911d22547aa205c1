// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace tessera {

/// Whether the joiner or variation selector at `index` does there what it is made for: joiners
/// between letters of scripts whose letters join, at the end of a word that they shape, and between
/// pictures that make up one; selectors behind a character that has several looks. Anywhere else
/// they are letters that nobody sees.
bool isNeededByScript(std::u32string_view text, std::size_t index);

} // namespace tessera
