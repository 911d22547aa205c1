// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class BoxCanvas;
class MultiLayoutObject;

/// Paints a group of small items, on a level of that depth: a box in its branch's colour, engraved
/// with a grid.
void paintGroupBox(BoxCanvas& canvas, const MultiLayoutObject& group, long level);

} // namespace tessera
