// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class BoxCanvas;
class File;
struct TextAttributes;
struct Rect;

/// Writes an item's name into the middle of its box, with its size below it when there is room.
/// Small boxes get no label.
void drawCenteredLabel(
    BoxCanvas& canvas, const File& item, const Rect& box, const TextAttributes& attributes);

} // namespace tessera
