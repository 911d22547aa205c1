// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <cstdint>

namespace tessera {

class File;

/// The seven colours of the boxes of folders and of groups, one for each colour slot of a node.
/// Slot 0 is the neutral grey of a node that never received a slot. Usable on any thread.
const QColor& branchPaletteColor(std::uint8_t hue);

/// The colour of a box that stands for `node` on a branch of the given level. Below the top level
/// that is the colour of the top level's item that contains the node, paler with every level down
/// to the third. Selection does not count.
QColor boxColor(const File& node, long level);

/// The colour of a folder's box: boxColor(), darker when the folder is selected.
QColor folderBoxColor(const File& folder, long level);

} // namespace tessera
