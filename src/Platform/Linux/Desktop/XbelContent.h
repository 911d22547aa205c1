// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tessera {

/// Whether a bookmark file written anew says all that the original says: every element, attribute,
/// text and comment, whatever their order, with times compared as times. What the copy says beyond
/// that does not matter. False also when one of them is no XML.
[[nodiscard]] bool saysAll(std::string_view copy, std::string_view original);

} // namespace tessera
