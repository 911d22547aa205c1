// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class BoxCanvas;
class MultiLayoutObject;
class TreeBranch;

/// Paints a group of small items: a box in its branch's colour, engraved with a grid.
void paintGroupBox(BoxCanvas& canvas, const TreeBranch& branch, const MultiLayoutObject& group);

} // namespace tessera
