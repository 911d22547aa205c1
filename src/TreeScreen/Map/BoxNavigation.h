// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

class File;
class TreeBranch;

enum class Direction : std::uint8_t { Left, Right, Up, Down };

/// The folder or document to select when the selection moves in a direction: of the boxes on the
/// selected one's own level that lie that way, the nearest, those beside it before those further
/// up or down. Null where none lies that way. Without a selection in the picture it is the first
/// box of the top branch.
[[nodiscard]] File* nextSelection(const TreeBranch& top, const File* selected, Direction direction);

} // namespace tessera
