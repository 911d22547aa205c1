// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Picture/FolderTitles.h"

namespace tessera {

class BoxCanvas;
class TreeBranch;

/// Paints the boxes of one level, not of the ones nested in it: the canvas's coordinates are the
/// branch's. What the nested levels' boxes hide may be left out, so they are to be painted next.
void paintLevel(BoxCanvas& canvas, const TreeBranch& branch, FolderTitles titles);

} // namespace tessera
