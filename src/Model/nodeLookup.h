// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tessera {

class File;
class TopFolder;

/// Whether `node` is `above` or lies below it.
[[nodiscard]] bool isAtOrBelow(const File& node, const File& above);

/// The node of exactly that absolute path, or null: names are compared whole, component by
/// component.
[[nodiscard]] File* nodeAtPath(TopFolder& top, std::string_view absolutePath);

/// The same, or else the deepest node on the way there; null when the path is not the top folder's
/// nor below it.
[[nodiscard]] File* nearestNodeAtPath(TopFolder& top, std::string_view absolutePath);

} // namespace tessera
