// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessera {

/// How long a name may be, in bytes, for every program to be able to read it.
inline constexpr std::size_t kMaxNameBytes = 255;

/// The longest beginning of a name that has at most so many bytes and cuts no UTF-8 character
/// apart. Names that are no text are cut anywhere.
std::string_view beginningOfName(std::string_view name, std::size_t maxBytes);

/// The name with something before and behind it. Where that is longer than a name may be, the name
/// is shortened and marked, so that no two names that begin alike become the same.
std::string surroundedName(std::string_view prefix, std::string_view name, std::string_view suffix);

} // namespace tessera
